#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "View/SketchView.h"

#include "Command/Command.h"
#include "Command/IAction.h"
#include "Command/ICommandManager.h"
#include "Support/TestValues.h"
#include "View/ModelView.h"

#include <QMenu>
#include <QToolButton>

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_erase = QStringLiteral("Sketcher.Erase");
const QString s_zoom = QStringLiteral("Sketcher.Zoom");
const QString s_zoomIn = QStringLiteral("Sketcher.Zoom.In");
const QString s_window = QStringLiteral("Sketcher.Zoom.Window");
const QString s_double = QStringLiteral("Sketcher.Zoom.Scale.200");

bool IsRunning(const QString& commandId)
{
    return ScriptedUser::IsRunning(commandId);
}

double PixelsPerUnit()
{
    return 1.0 / ScriptedUser::FindView()->GetCamera().GetWorldPerPixel();
}

/// The commands recorded in a journal, in order: "begin ID", and "done ID" or "refused ID".
QStringList CommandsOf(const QString& journal)
{
    QStringList told;
    std::vector<std::pair<int, QString>> names;
    for (const vesk::JournalRecord& record : ReadJournal(journal))
    {
        if (const auto* pCommand = std::get_if<vesk::CommandRecord>(&record.what))
        {
            names.emplace_back(record.number, QString::fromStdWString(pCommand->commandId));
            told << QStringLiteral("begin ") + names.back().second;
        }
        const auto* pEnd = std::get_if<vesk::EndRecord>(&record.what);
        const auto ended = std::find_if(names.begin(), names.end(), [pEnd](const auto& name) {
            return pEnd != nullptr && name.first == pEnd->command;
        });
        if (ended != names.end())
            told << QLatin1String(pEnd->isRefused ? "refused " : "done ") + ended->second;
    }
    return told;
}

/// The range of stack usage over all samples, from minimum to maximum.
class StackRange
{
public:
    void Note()
    {
        const int local = 0;
        const auto place = reinterpret_cast<std::intptr_t>(&local);
        m_lowest = m_lowest == 0 ? place : std::min(m_lowest, place);
        m_highest = std::max(m_highest, place);
    }

    std::intptr_t GetSize() const { return m_highest - m_lowest; }

private:
    std::intptr_t m_lowest = 0;
    std::intptr_t m_highest = 0;
};

/// Replaces a command of the program by one of the test.
void ReplaceCommand(const QString& id, const std::function<void()>& work,
                    const vesk::Command::Condition& isEnabled)
{
    vesk::ICommandManager* pCommands = vesk::ICommandManager::Get();
    pCommands->RemoveCommand(id.toStdWString());
    pCommands->AddCommand(vesk::MakeOwner<vesk::Command>(
        id.toStdWString(), vesk::Command::Kind::Plain,
        [work](vesk::IUiView*, const vesk::CommandParameters&) -> vesk::OwnerPtr<vesk::IAction> {
            work();
            return nullptr;
        },
        isEnabled));
}

}

/// Choosing menu entries while something is being drawn.
class MenuChoiceTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void entryRunsOnceAfterTheActionThatItEnded_data()
    {
        QTest::addColumn<QString>("entry");

        QTest::newRow("of the menu") << s_zoomIn;
        QTest::newRow("of the sub-menu") << s_double;
    }

    void entryRunsOnceAfterTheActionThatItEnded()
    {
        QFETCH(QString, entry);
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Choose(s_zoom, entry);
        user.Until([] { return IsRunning("") && qFuzzyCompare(PixelsPerUnit(), 2.0); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands(), QStringList({"begin " + s_line, "done " + s_line, "begin " + entry,
                                          "done " + entry}));
    }

    void entryRunsOnceAfterAnActionThatASwitchOfToolsStarted_data()
    {
        entryRunsOnceAfterTheActionThatItEnded_data();
    }

    void entryRunsOnceAfterAnActionThatASwitchOfToolsStarted()
    {
        QFETCH(QString, entry);
        ScriptedUser user;

        user.Click(s_erase).Click(s_line).ClickAt(0, 0).Choose(s_zoom, entry);
        user.Until([] { return IsRunning("") && qFuzzyCompare(PixelsPerUnit(), 2.0); });

        // A command recorded while another one ends comes after it, as the order of the ends shows.
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands(), QStringList({"begin " + s_erase, "begin " + s_line, "done " + s_erase,
                                          "begin " + entry, "done " + s_line, "done " + entry}));
    }

    void interactiveEntryRunsAfterTheActionThatItEnded_data()
    {
        QTest::addColumn<QString>("toolBefore");

        QTest::newRow("started by itself") << QString();
        QTest::newRow("started by a switch of tools") << s_erase;
    }

    void interactiveEntryRunsAfterTheActionThatItEnded()
    {
        QFETCH(QString, toolBefore);
        ScriptedUser user;

        if (!toolBefore.isEmpty())
            user.Click(toolBefore);
        user.Click(s_line).ClickAt(0, 0).Choose(s_zoom, s_window);
        user.UntilRunning(s_window);
        user.ClickAt(-40, -40).ClickAt(40, 40);
        user.Until([] { return IsRunning("") && PixelsPerUnit() > 1.5; });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QStringList commands = Commands();
        QCOMPARE(commands.count("begin " + s_window), 1);
        QVERIFY(commands.indexOf("done " + s_line) >= 0);
        QVERIFY(commands.indexOf("done " + s_line) < commands.indexOf("done " + s_window));
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 0);
    }

    void whatWasDrawnBeforeIsRepeatedAlike()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).ClickAt(50, 0).Choose(s_zoom, s_double);
        user.Until([] { return IsRunning("") && qFuzzyCompare(PixelsPerUnit(), 2.0); });
        user.Click(s_erase).Click(s_line).ClickAt(0, 20).ClickAt(30, 40).Choose(s_zoom, s_zoomIn);
        user.Until([] { return IsRunning("") && qFuzzyCompare(PixelsPerUnit(), 4.0); });
        user.Click(s_line).ClickAt(0, -20).Type("12.5").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 3);
        VerifyReplay();
    }

    void twoHundredChoicesRunTwoHundredTimes_data()
    {
        entryRunsOnceAfterTheActionThatItEnded_data();
    }

    void twoHundredChoicesRunTwoHundredTimes()
    {
        QFETCH(QString, entry);
        constexpr int Choices = 200;
        constexpr std::intptr_t OneFrame = 64 * 1024;
        int runs = 0;
        int runsBesideAnAction = 0;
        StackRange stack;
        ScriptedUser user;

        user.Do([&] {
            ReplaceCommand(entry,
                           [&] {
                               ++runs;
                               runsBesideAnAction += IsRunning("") ? 0 : 1;
                               stack.Note();
                           },
                           {});
        });
        for (int i = 1; i <= Choices; ++i)
        {
            if (i % 2 == 0)
                user.Click(s_erase);
            user.Click(s_line).ClickAt(0, 0).Choose(s_zoom, entry);
            user.Until([&runs, i] { return runs >= i && IsRunning(""); });
            user.Do([&stack] { stack.Note(); });
        }

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(runs, Choices);
        QCOMPARE(runsBesideAnAction, 0);
        QCOMPARE(Commands().count("done " + entry), Choices);
        QVERIFY2(stack.GetSize() < OneFrame, qPrintable(QString::number(stack.GetSize())));
    }

    void twoHundredInteractiveEntriesRunTwoHundredTimes()
    {
        constexpr int Choices = 200;
        constexpr std::intptr_t OneFrame = 64 * 1024;
        StackRange stack;
        ScriptedUser user;

        for (int i = 0; i < Choices; ++i)
        {
            user.Click(s_line).ClickAt(0, 0).Choose(s_zoom, s_window);
            user.UntilRunning(s_window);
            user.Do([&stack] { stack.Note(); });
        }

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands().count("done " + s_window), Choices);
        QCOMPARE(Commands().count("done " + s_line), Choices);
        QVERIFY2(stack.GetSize() < OneFrame, qPrintable(QString::number(stack.GetSize())));
    }

    void entryThatIsDisabledWithTheEndOfTheActionIsNotRun()
    {
        int runs = 0;
        ScriptedUser user;

        user.Do([&runs] {
            ReplaceCommand(
                s_zoomIn, [&runs] { ++runs; }, [] { return IsRunning(s_line); });
        });
        user.Click(s_line).ClickAt(0, 0);
        user.Until([] { return ScriptedUser::FindEntry(s_zoomIn)->isEnabled(); });
        user.Choose(s_zoom, s_zoomIn).UntilRunning("");
        user.Click(s_erase).UntilRunning(s_erase);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(runs, 0);
        QCOMPARE(Commands(), QStringList({"begin " + s_line, "done " + s_line, "begin " + s_erase,
                                          "done " + s_erase}));
    }

    void recordedEntryThatIsDisabledWhenItsTurnComesIsRefused()
    {
        int runs = 0;
        ScriptedUser user;

        user.Do([&runs] {
            ReplaceCommand(
                s_zoomIn, [&runs] { ++runs; }, [] { return IsRunning(s_line); });
        });
        user.Click(s_erase).Click(s_line).ClickAt(0, 0);
        user.Until([] { return ScriptedUser::FindEntry(s_zoomIn)->isEnabled(); });
        user.Choose(s_zoom, s_zoomIn).UntilRunning("");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(runs, 0);
        QCOMPARE(Commands(),
                 QStringList({"begin " + s_erase, "begin " + s_line, "done " + s_erase,
                              "begin " + s_zoomIn, "done " + s_line, "refused " + s_zoomIn}));
    }

    void entryOfAnEmptyDrawingIsDisabledOnceEverythingIsUndone()
    {
        const auto isEnabled = [] {
            return ScriptedUser::FindEntry("Sketcher.ZoomAll")->isEnabled();
        };
        ScriptedUser user;

        user.Until([isEnabled] { return !isEnabled(); });
        user.Click(s_line).ClickAt(0, 0).ClickAt(50, 0).Until(isEnabled);
        user.Click("Sketcher.Undo").Until([isEnabled] { return !isEnabled(); });
        user.Choose(s_zoom, "Sketcher.ZoomAll").Do([] {
            QVERIFY(IsRunning(s_line));
            ScriptedUser::FindMenuButton(s_zoom)->menu()->close();
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands().count("begin Sketcher.ZoomAll"), 0);
    }

    void mainPartOfTheButtonOnlyEndsTheAction()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).ClickAt(50, 0).Click(s_zoom);
        user.UntilRunning("");
        user.Do([] { QCOMPARE(PixelsPerUnit(), 1.0); });
        user.Click(s_zoom).Until([] { return PixelsPerUnit() > 1.5; });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands(), QStringList({"begin " + s_line, "done " + s_line,
                                          "begin Sketcher.ZoomAll", "done Sketcher.ZoomAll"}));
    }

    void mainPartRunsBesideAnActionThatASwitchOfToolsStarted()
    {
        ScriptedUser user;

        user.Click(s_erase).Click(s_line).ClickAt(0, 0).ClickAt(50, 0).Click(s_zoom);
        user.Until([] { return PixelsPerUnit() > 1.5; });
        user.Do([] { QVERIFY(IsRunning(s_line)); });
        user.ClickAt(50, 10);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands(), QStringList({"begin " + s_erase, "begin " + s_line, "done " + s_erase,
                                          "begin Sketcher.ZoomAll", "done Sketcher.ZoomAll",
                                          "done " + s_line}));
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 2);
    }

private:
    QStringList Commands() const { return CommandsOf(m_pFixture->File("journal")); }
};

VESK_TESTS(MenuChoiceTest);
#include "MenuChoiceTest.moc"
