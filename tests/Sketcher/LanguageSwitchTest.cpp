#include "LanguageSwitch.h"

#include "HostUi/TranslationCatalogue.h"
#include "Support/TestValues.h"

#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace
{

/// Counts how often what is on screen is built anew, and knows the language then.
struct SwitchFixture
{
    vesk::TranslationCatalogue catalogue{QCoreApplication::applicationDirPath() +
                                             QStringLiteral("/../share/sketcher/translations"),
                                         QStringLiteral("sketcher"), QLocale::c()};
    int rebuilt = 0;
    std::wstring text;
    LanguageSwitch languageSwitch{catalogue, [this] {
                                      ++rebuilt;
                                      text = vesk::TranslatorManager::Get()->Translate(L"Sketcher",
                                                                                       L"直线");
                                  }};
};

/// Lets everything happen that does not wait for something else: a timer that was started before
/// and fires as often as the switch tries.
void WaitForSeveralTries()
{
    int tries = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&tries] { ++tries; });
    timer.start(20);
    QTRY_VERIFY(tries >= 5);
}

}

/// When the language of the screen changes.
class LanguageSwitchTest final : public QObject
{
    Q_OBJECT

private slots:
    void languageChangesBeforeTheScreenIsBuiltAnew()
    {
        SwitchFixture f;

        f.languageSwitch.Set(QLocale(QLocale::German));

        QCOMPARE(f.rebuilt, 0);
        QTRY_COMPARE(f.rebuilt, 1);
        QCOMPARE(f.text, std::wstring(L"Linie"));
    }

    void ofSeveralAtOnceTheLastHolds()
    {
        SwitchFixture f;

        f.languageSwitch.Set(QLocale(QLocale::German));
        f.languageSwitch.Set(QLocale(QLocale::English));

        QTRY_COMPARE(f.rebuilt, 1);
        WaitForSeveralTries();
        QCOMPARE(f.rebuilt, 1);
        QCOMPARE(f.text, std::wstring(L"Line"));
    }

    void waitsWhileATextIsBeingTyped()
    {
        SwitchFixture f;
        QLineEdit field;
        field.show();
        field.activateWindow();
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        QTest::keyClicks(&field, "1");

        f.languageSwitch.Set(QLocale(QLocale::German));
        WaitForSeveralTries();

        QCOMPARE(f.rebuilt, 0);
        field.setModified(false);
        QTRY_COMPARE(f.rebuilt, 1);
    }

    void waitsWhileADialogIsOpen()
    {
        SwitchFixture f;
        QDialog dialog;
        dialog.open();

        f.languageSwitch.Set(QLocale(QLocale::German));
        WaitForSeveralTries();

        QCOMPARE(f.rebuilt, 0);
        dialog.reject();
        QTRY_COMPARE(f.rebuilt, 1);
    }

    void waitsWhileAMenuIsOpen()
    {
        SwitchFixture f;
        QMenu menu;
        menu.addAction("1");
        menu.popup({});

        f.languageSwitch.Set(QLocale(QLocale::German));
        WaitForSeveralTries();

        QCOMPARE(f.rebuilt, 0);
        menu.close();
        QTRY_COMPARE(f.rebuilt, 1);
    }
};

VESK_TESTS(LanguageSwitchTest);
#include "LanguageSwitchTest.moc"
