#include "Settings/SettingsDialog.h"

#include "Support/TestValues.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>

namespace
{

const QVector<Language> s_languages = {{QString(), QStringLiteral("与桌面相同")},
                                       {QStringLiteral("zh"), QStringLiteral("中文")}};

/// Settings of which none is the default.
Settings Others(const QString& folder)
{
    Settings settings;
    settings.language = QStringLiteral("zh");
    settings.colours = Settings::Colours::Light;
    settings.unit = QStringLiteral("m");
    settings.snaps = {false, true, false, true, true};
    settings.isSpaceCommitting = false;
    settings.journalFolder = folder;
    settings.autosaveMinutes = 30;
    return settings;
}

struct Fixture
{
    explicit Fixture(const Settings& settings)
        : dialog(settings, s_languages, QStringLiteral("/usual"), nullptr)
    {
        dialog.show();
    }

    template <class Widget>
    Widget& Get(const char* name) const
    {
        return *dialog.findChild<Widget*>(QLatin1String(name));
    }

    SettingsDialog dialog;
};

}

/// Settings as the user edits them.
class SettingsDialogTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsShownIsWhatIsGiven()
    {
        const Settings settings = Others(QStringLiteral("/tmp"));

        const Fixture f(settings);

        QVERIFY(f.dialog.Get() == settings);
        QCOMPARE(f.Get<QComboBox>("Language").currentText(), QStringLiteral("中文"));
        QCOMPARE(f.Get<QComboBox>("Colours").currentText(), QStringLiteral("浅色"));
        QCOMPARE(f.Get<QComboBox>("Unit").currentText(), QString("m"));
        QCOMPARE(f.Get<QComboBox>("Space").currentText(), QStringLiteral("键入空格"));
        QVERIFY(!f.Get<QCheckBox>("Snap0").isChecked());
        QVERIFY(f.Get<QCheckBox>("Snap4").isChecked());
        QCOMPARE(f.Get<QSpinBox>("Autosave").text(), QStringLiteral("30 分钟"));
    }

    void whatTheUserChangesIsReturned()
    {
        Fixture f{Settings()};

        f.Get<QComboBox>("Language").setCurrentIndex(1);
        f.Get<QComboBox>("Colours").setCurrentIndex(1);
        f.Get<QComboBox>("Unit").setCurrentIndex(2);
        f.Get<QComboBox>("Space").setCurrentIndex(1);
        for (const char* snap : {"Snap0", "Snap1", "Snap3", "Snap4"})
            f.Get<QCheckBox>(snap).click();
        f.Get<QLineEdit>("JournalFolder").setText(QStringLiteral(" /tmp "));
        f.Get<QSpinBox>("Autosave").setValue(30);

        QVERIFY(f.dialog.Get() == Others(QStringLiteral("/tmp")));
    }

    void theDefaultsCanBeRestored()
    {
        Fixture f(Others(QStringLiteral("/tmp")));

        f.Get<QPushButton>("Defaults").click();

        QVERIFY(f.dialog.Get() == Settings());
        QVERIFY(f.dialog.isVisible());
    }

    void whatIsChosenElsewhereStays()
    {
        Settings settings;
        settings.isRibbonFolded = true;
        const Fixture f(settings);

        f.Get<QPushButton>("Defaults").click();

        QVERIFY(f.dialog.Get().isRibbonFolded);
    }

    void autosaveCanBeSwitchedOff()
    {
        Fixture f{Settings()};

        f.Get<QSpinBox>("Autosave").setValue(0);

        QCOMPARE(f.Get<QSpinBox>("Autosave").text(), QStringLiteral("关闭"));
        QCOMPARE(f.dialog.Get().autosaveMinutes, 0);
    }

    void anUnknownLanguageIsTheDesktops()
    {
        Settings settings;
        settings.language = QStringLiteral("xx");

        const Fixture f(settings);

        QCOMPARE(f.dialog.Get().language, QString());
    }

    void aFolderThatCanBeUsedIsAccepted_data()
    {
        QTest::addColumn<bool>("isEmpty");

        QTest::newRow("none") << true;
        QTest::newRow("one") << false;
    }

    void aFolderThatCanBeUsedIsAccepted()
    {
        QFETCH(bool, isEmpty);
        const QTemporaryDir folder;
        Fixture f{Settings()};
        f.Get<QLineEdit>("JournalFolder").setText(isEmpty ? QString() : folder.path());

        f.Get<QPushButton>("Accept").click();

        QCOMPARE(f.dialog.result(), int(QDialog::Accepted));
        QVERIFY(!f.dialog.isVisible());
    }

    void aFolderThatCannotBeUsedIsRefused_data()
    {
        QTest::addColumn<QString>("folder");

        QTest::newRow("missing") << "/no/such/folder";
        QTest::newRow("relative") << ".";
        QTest::newRow("a file") << QCoreApplication::applicationFilePath();
    }

    void aFolderThatCannotBeUsedIsRefused()
    {
        QFETCH(QString, folder);
        Fixture f{Settings()};
        f.Get<QLineEdit>("JournalFolder").setText(folder);

        f.Get<QPushButton>("Accept").click();

        QVERIFY(f.dialog.isVisible());
        QVERIFY(f.Get<QLabel>("SettingsMessage").isVisible());
        QCOMPARE(f.Get<QLabel>("SettingsMessage").text(), QStringLiteral("日志文件夹不存在"));
        QCOMPARE(f.Get<QLineEdit>("JournalFolder").text(), folder);
    }

    void theUsualFolderIsNamed()
    {
        const Fixture f{Settings()};

        QCOMPARE(f.Get<QLineEdit>("JournalFolder").placeholderText(),
                 QDir::toNativeSeparators(QStringLiteral("/usual")));
    }

    void labelsLeadToTheirFields_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("field");

        QTest::newRow("language") << int(Qt::Key_L) << "Language";
        QTest::newRow("colours") << int(Qt::Key_C) << "Colours";
        QTest::newRow("unit") << int(Qt::Key_U) << "Unit";
        QTest::newRow("Space") << int(Qt::Key_S) << "Space";
        QTest::newRow("folder") << int(Qt::Key_J) << "JournalFolder";
        QTest::newRow("autosave") << int(Qt::Key_A) << "Autosave";
    }

    void labelsLeadToTheirFields()
    {
        QFETCH(int, key);
        QFETCH(QString, field);
        Fixture f{Settings()};
        f.dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.dialog, vesk::test::PatienceMs));
        f.Get<QPushButton>("Accept").setFocus();

        QTest::keyClick(&f.dialog, static_cast<Qt::Key>(key), Qt::AltModifier);

        QCOMPARE(f.dialog.focusWidget()->objectName(), field);
    }

    void escapeChangesNothing()
    {
        Fixture f{Settings()};

        QTest::keyClick(&f.dialog, Qt::Key_Escape);

        QVERIFY(!f.dialog.isVisible());
        QCOMPARE(f.dialog.result(), int(QDialog::Rejected));
    }
};

VESK_TESTS(SettingsDialogTest);
#include "SettingsDialogTest.moc"
