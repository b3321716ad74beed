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

/// Waits until the content follows: with a real screen, only when the system tells of the new size.
void Resize(ScriptedUser& user, const QSize& size)
{
    user.Do([size] { ScriptedUser::FindWindow()->resize(size); });
    user.Until([size] {
        const SketcherWindow& window = *ScriptedUser::FindWindow();
        const QRect content = window.layout()->geometry();
        return window.size() == size &&
               QPoint(size.width(), size.height()) == content.bottomRight() + QPoint(1, 1);
    });
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

        for (const QSize size : {QSize(800, 560), Screen, QSize(480, 400)})
        {
            Resize(user, size);
            user.Do([size] {
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
            });
        }

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

        Resize(user, window);
        user.Do([least] {
            const QSize view = ScriptedUser::FindView()->size();
            QVERIFY2(view.expandedTo(least) == view, qPrintable(TextOf(view)));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void panesComeBackWithTheRoom()
    {
        constexpr QSize Large(1200, 900);
        QRect view;
        ScriptedUser user;

        Resize(user, Large);
        user.Do([&view] { view = ScriptedUser::FindWindow()->centralWidget()->geometry(); });
        Resize(user, Screen);
        user.Do(
            [&view] { QVERIFY(ScriptedUser::FindWindow()->centralWidget()->geometry() != view); });
        Resize(user, Large);
        user.Do(
            [&view] { QCOMPARE(ScriptedUser::FindWindow()->centralWidget()->geometry(), view); });

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

        Resize(user, size);
        user.Do([size, text] {
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
