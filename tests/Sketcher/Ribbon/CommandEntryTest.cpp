#include "Ribbon/CommandEntry.h"

#include "Ribbon/CommandTable.h"

#include "Command/ActionManager.h"
#include "Replay/JournalReplayer.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

using namespace vesk;

namespace
{

/// A drawing of which nothing is known.
class NoDrawing final : public IJournalReplayTarget
{
public:
    bool ReplaySelection(const SelectionRecord&) override { return false; }
    bool ReplayProperty(const PropertyRecord&) override { return false; }
    bool VerifyUndo(const UndoRecord&) override { return false; }
};

}

/// The commands of the program.
class CommandEntryTest final : public QObject
{
    Q_OBJECT

private slots:
    void aDialogOpensForAUserAndNotInAReplay()
    {
        const vesk::test::HostFixture host;
        int opened = 0;
        RegisterCommands({CommandEntry::Dialog(L"Ask", L"问", [&opened] { ++opened; })});
        NoDrawing drawing;

        const JournalReplayResult result = JournalReplayer::Replay(
            {{1, CommandRecord{L"Ask", {}}}, {1, EndRecord{1, false}}}, drawing);
        QCOMPARE(result.failure, std::string());
        QCOMPARE(opened, 0);

        ActionManager::RunCommand(L"Ask", {});
        QCOMPARE(opened, 1);
    }

    void theToolTipNamesTheKeys_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("toolTip");

        QTest::newRow("with keys") << "Ctrl+J"
                                   << "tip (Ctrl+J)";
        QTest::newRow("without keys") << ""
                                      << "tip";
    }

    void theToolTipNamesTheKeys()
    {
        QFETCH(QString, keys);
        QFETCH(QString, toolTip);

        const CommandEntry entry = CommandEntry::Plain(L"A", L"甲", [] {})
                                       .WithToolTip(L"tip")
                                       .WithKeys(keys.toStdWString());

        QCOMPARE(QString::fromStdWString(entry.GetToolTip()), toolTip);
    }
};

VESK_TESTS(CommandEntryTest);
#include "CommandEntryTest.moc"
