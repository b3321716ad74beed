#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "HostUi/QtText.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QLocale>
#include <QStatusBar>

namespace
{

/// What a screen of 640 x 480 leaves for the content of a window.
constexpr QSize Screen(630, 450);

QDialog* FindDialog()
{
    for (QWidget* pWidget : QApplication::topLevelWidgets())
    {
        auto* pDialog = qobject_cast<QDialog*>(pWidget);
        if (pDialog != nullptr && pDialog->isVisible())
            return pDialog;
    }
    return nullptr;
}

QString TextOf(const QSize& size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

bool Fits(const QSize& size)
{
    return size.boundedTo(Screen) == size;
}

void Resize(const QSize& size)
{
    SketcherWindow& window = *ScriptedUser::FindWindow();
    window.resize(size);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(window.size(), size);
}

}

/// The program on a small screen, in each of its languages.
class SmallScreenTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init()
    {
        ScenarioTest::init();
        m_former = QLocale();
    }

    void cleanup()
    {
        QLocale::setDefault(m_former);
        ScenarioTest::cleanup();
    }

    void nothingReachesBeyondTheWindow_data() { AddLanguages(); }
    void nothingReachesBeyondTheWindow()
    {
        QFETCH(QLocale, locale);
        QLocale::setDefault(locale);
        ScriptedUser user;

        user.Do([] {
            for (const QSize size : {QSize(800, 560), Screen, QSize(480, 400)})
            {
                Resize(size);
                const SketcherWindow& window = *ScriptedUser::FindWindow();
                const QRect inside = window.rect();
                QVERIFY(inside.contains(window.menuWidget()->geometry()));
                QVERIFY(inside.contains(window.statusBar()->geometry()));
                QVERIFY(inside.contains(window.centralWidget()->geometry()));
                QVERIFY(window.layout()->totalMinimumSize().width() <= size.width());
                QVERIFY(window.menuWidget()->geometry().bottom() <
                        window.centralWidget()->geometry().top());
                QVERIFY(window.centralWidget()->geometry().bottom() <
                        window.statusBar()->geometry().top());
            }
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void drawingStaysUsable_data()
    {
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QSize>("least");

        QTest::newRow("800 x 600") << QSize(800, 560) << QSize(400, 300);
        QTest::newRow("640 x 480") << Screen << QSize(400, 250);
        QTest::newRow("the smallest window") << QSize(480, 400) << QSize(480, 200);
    }

    void drawingStaysUsable()
    {
        QFETCH(QSize, window);
        QFETCH(QSize, least);
        ScriptedUser user;

        user.Do([window, least] {
            Resize(window);
            const QSize view = ScriptedUser::FindView()->size();
            QVERIFY2(view.expandedTo(least) == view, qPrintable(TextOf(view)));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void panesComeBackWithTheRoom()
    {
        ScriptedUser user;

        user.Do([] {
            SketcherWindow& window = *ScriptedUser::FindWindow();
            const QSize before = window.size();
            const QRect view = window.centralWidget()->geometry();
            Resize(Screen);
            QVERIFY(window.centralWidget()->geometry() != view);
            Resize(before);
            QCOMPARE(window.centralWidget()->geometry(), view);
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    /// Neither the window nor the drawing moves for what the program says.
    void whatIsSaidMovesNothing_data()
    {
        QTest::addColumn<QSize>("size");

        QTest::newRow("large") << QSize(1200, 900);
        QTest::newRow("640 x 480") << Screen;
        QTest::newRow("the smallest window") << QSize(480, 400);
    }

    void whatIsSaidMovesNothing()
    {
        QFETCH(QSize, size);
        ScriptedUser user;
        const QString text(300, QStringLiteral("汉").at(0));

        user.Do([size, text] {
            Resize(size);
            SketcherWindow& window = *ScriptedUser::FindWindow();
            const QRect view = window.centralWidget()->geometry();
            const QSize least = window.layout()->totalMinimumSize();
            ScriptedUser::FindView()->SetViewText(vesk::ToWide(text));
            window.ShowState("state", [text] { return text; });
            window.ShowNotice(text);
            QCoreApplication::sendPostedEvents();
            QCOMPARE(window.size(), size);
            QCOMPARE(window.centralWidget()->geometry(), view);
            QCOMPARE(window.layout()->totalMinimumSize(), least);
            QCOMPARE(window.findChild<QLabel*>("Hint")->toolTip(), text);
            window.RemoveState("state");
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void dialogFits_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("command");

        for (const QLocale::Language language : {QLocale::C, QLocale::English, QLocale::German})
        {
            for (const char* command :
                 {"Settings", "Help", "About", "Open", "SaveAs", "Export", "Import", "Print"})
                QTest::addRow("%s, %s", command, qPrintable(QLocale::languageToString(language)))
                    << QLocale(language) << QStringLiteral("Sketcher.") + command;
        }
    }

    void dialogFits()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, command);
        QLocale::setDefault(locale);
        const ScopedVariable attended("VESK_UNATTENDED", QStringLiteral("0"));
        ScriptedUser user;

        user.DrawLine(0, 0, 50, 20).Do([command] { ScriptedUser::FindButton(command)->click(); });
        user.Until([] { return FindDialog() != nullptr; }).Do([] {
            QDialog& dialog = *FindDialog();
            const QSize least = dialog.layout()->totalMinimumSize();
            QVERIFY2(Fits(least), qPrintable(TextOf(least)));
            QVERIFY2(Fits(dialog.minimumSize()), qPrintable(TextOf(dialog.minimumSize())));
            dialog.reject();
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

private:
    static void AddLanguages()
    {
        QTest::addColumn<QLocale>("locale");

        QTest::newRow("Chinese") << QLocale::c();
        QTest::newRow("English") << QLocale(QLocale::English);
        QTest::newRow("German") << QLocale(QLocale::German);
    }

    QLocale m_former;
};

VESK_TESTS(SmallScreenTest);
#include "SmallScreenTest.moc"
