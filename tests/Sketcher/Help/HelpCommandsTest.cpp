#include "Help/HelpCommands.h"

#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include "Command/IAction.h"

#include <QDialog>
#include <QTextBrowser>

using namespace vesk;

namespace
{

/// A window from which the help is opened.
struct Fixture
{
    Fixture()
    {
        const std::vector<CommandEntry> others = {
            CommandEntry::Plain(L"A", L"甲", [] {})
                .WithToolTip(L"tip of A")
                .WithKeys(L"Ctrl+J")
                .InGroup(L"组"),
            CommandEntry::Plain(L"B", L"乙", [] {}).WithToolTip(L"tip of B").InGroup(L"组"),
            CommandEntry::Plain(L"C", L"丙", [] {}).WithToolTip(L"tip of C").WithKeys(L"Ctrl+K"),
        };
        window.show();
        commands = MakeHelpCommands(others, window);
    }

    void Run(const std::wstring& id) const
    {
        for (const CommandEntry& entry : commands)
        {
            if (entry.id == id)
                entry.execute(nullptr, {});
        }
    }

    /// The windows with a text that are open.
    QList<QDialog*> Windows() const
    {
        QList<QDialog*> open;
        for (auto* pDialog : window.findChildren<QDialog*>())
        {
            if (pDialog->isVisible())
                open << pDialog;
        }
        return open;
    }

    QString Text() const { return Windows().front()->findChild<QTextBrowser*>()->toPlainText(); }

    vesk::test::HostFixture host;
    QWidget window;
    std::vector<CommandEntry> commands;
};

}

/// The help and the window about the program.
class HelpCommandsTest final : public QObject
{
    Q_OBJECT

private slots:
    void theHelpListsTheKeysOfTheButtons()
    {
        Fixture f;

        f.Run(L"Sketcher.Help");

        QVERIFY(f.Text().contains("Ctrl+J\ntip of A"));
        QVERIFY(f.Text().contains(QStringLiteral("F1\n按键，和可以键入的数值")));
        QVERIFY(!f.Text().contains("tip of B"));
        QVERIFY(!f.Text().contains("tip of C"));
    }

    void theHelpTellsWhatMayBeTyped()
    {
        Fixture f;

        f.Run(L"Sketcher.Help");

        QVERIFY(f.Text().contains(QStringLiteral("10'6\"\n英尺和英寸")));
        QVERIFY(f.Text().contains(QStringLiteral("1,000\n一千还是一？")));
    }

    void aboutNamesTheVersionAndTheLicences()
    {
        Fixture f;
        QCoreApplication::setApplicationVersion(QStringLiteral("7.8.9"));

        f.Run(L"Sketcher.About");

        for (const char* text : {"7.8.9", "Apache-2.0", "LGPL-3.0", "MPL-2.0", "MIT", "BSL-1.0"})
            QVERIFY2(f.Text().contains(QLatin1String(text)), text);
    }

    void neitherBlocksTheWindow_data()
    {
        QTest::addColumn<QString>("command");

        QTest::newRow("help") << "Sketcher.Help";
        QTest::newRow("about") << "Sketcher.About";
    }

    void neitherBlocksTheWindow()
    {
        QFETCH(QString, command);
        Fixture f;

        f.Run(command.toStdWString());

        QCOMPARE(f.Windows().size(), 1);
        QVERIFY(!f.Windows().front()->isModal());
    }

    void escapeCloses_data() { neitherBlocksTheWindow_data(); }

    void escapeCloses()
    {
        QFETCH(QString, command);
        Fixture f;
        f.Run(command.toStdWString());

        QTest::keyClick(f.Windows().front(), Qt::Key_Escape);

        QVERIFY(f.Windows().isEmpty());
    }

    void aSecondTimeTheSameWindowIsShown()
    {
        Fixture f;

        f.Run(L"Sketcher.Help");
        f.Run(L"Sketcher.Help");
        QCOMPARE(f.Windows().size(), 1);

        f.Windows().front()->close();
        f.Run(L"Sketcher.Help");
        QCOMPARE(f.Windows().size(), 1);
    }
};

VESK_TESTS(HelpCommandsTest);
#include "HelpCommandsTest.moc"
