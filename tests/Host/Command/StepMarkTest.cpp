#include "Host/Replay/ReplayFixture.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <string>

namespace vesk
{

namespace
{

JournalManager& Journal()
{
    return JournalManager::GetInstance();
}

/// The kinds of the last records, as "command point mark end".
QString Kinds()
{
    QString kinds;
    for (const std::string& line : Journal().GetLastLines())
    {
        const std::size_t begin = line.find("\"kind\":\"") + 8;
        kinds += QString::fromStdString(line.substr(begin, line.find('"', begin) - begin)) + ' ';
    }
    return kinds.trimmed();
}

/// A document that changes when its number does.
struct Fixture : ReplayFixture
{
    Fixture()
    {
        Journal().SetDigestSource([this] { return std::to_string(document); });
        scripts["Line"].onClick = [this] {
            ++document;
            Journal().Add(PointRecord{});
        };
    }
    ~Fixture() { Journal().SetDigestSource(nullptr); }
    Fixture(const Fixture&) = delete;
    Fixture& operator=(const Fixture&) = delete;

    int document = 0;
};

}

/// Where the marks of finished steps are in the journal.
class StepMarkTest : public QObject
{
    Q_OBJECT

private slots:
    void aMarkFollowsEachStepOfAnAction();
    void aMarkComesBeforeTheEndThatTheStepBrings();
    void whatFinishesNoStepGetsNoMark();
    void aMarkComesBeforeTheEndOfAPlainCommand();
    void aPlainCommandThatChangesNothingGetsNoMark();
    void aCommandWhoseActionIsOverAtOnceGetsItsMark();
    void aReplayMarksTheStepsThatItRepeats();
};

void StepMarkTest::aMarkFollowsEachStepOfAnAction()
{
    Fixture f;
    f.loop.Post([&] { f.Click(); });
    f.loop.Post([&] { f.Click(); });
    f.loop.Post([] { ActionManager::Reset(); });

    f.Choose("Line");

    QCOMPARE(Kinds(), QString("command point mark point mark end"));
}

void StepMarkTest::aMarkComesBeforeTheEndThatTheStepBrings()
{
    Fixture f;
    f.loop.Post([&] {
        f.scripts["Line"].isFinished = true;
        f.Click();
    });

    f.Choose("Line");

    QCOMPARE(Kinds(), QString("command point mark end"));
}

void StepMarkTest::whatFinishesNoStepGetsNoMark()
{
    Fixture f;
    f.scripts["Line"].onClick = nullptr;
    f.loop.Post([&] { f.Click(); });
    f.loop.Post([&] { f.MoveMouse(); });
    f.loop.Post([&] { f.TypeValue(); });
    f.loop.Post([&] { f.PressEscape(); });

    f.Choose("Line");

    QCOMPARE(Kinds(), QString("command end"));
}

void StepMarkTest::aMarkComesBeforeTheEndOfAPlainCommand()
{
    Fixture f;
    f.AddPlain("Change", [&] { ++f.document; });

    f.Choose("Change");
    f.ChooseInMenu("Change");
    ActionManager::RunCommand(L"Change", {});

    QCOMPARE(Kinds(), QString("command mark end command mark end command mark end"));
}

void StepMarkTest::aPlainCommandThatChangesNothingGetsNoMark()
{
    Fixture f;

    f.Choose("Zoom");

    QCOMPARE(Kinds(), QString("command end"));
}

void StepMarkTest::aCommandWhoseActionIsOverAtOnceGetsItsMark()
{
    Fixture f;
    ICommandManager::Get()->AddCommand(
        MakeOwner<Command>(L"Ask", Command::Kind::Interactive,
                           [&](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
                               ++f.document;
                               return nullptr;
                           }));

    f.Choose("Ask");

    QCOMPARE(Kinds(), QString("command mark end"));
}

void StepMarkTest::aReplayMarksTheStepsThatItRepeats()
{
    Fixture f;
    f.AddPlain("Change", [&] { ++f.document; });
    f.Command(L"Line").Point(1).Command(L"Change").End(3).End(1);
    Journal().SetDigestSource([&] { return std::to_string(f.document + f.At("Line.point 1")); });

    QCOMPARE(QString::fromStdString(f.Replay().failure), QString());

    QCOMPARE(Kinds(), QString("command mark command mark end end"));
    QVERIFY2(Journal().GetLastLines()[1].find("\"t\":") == std::string::npos, "its own time");
    f.Choose("Change");
    QVERIFY(Journal().GetLastLines()[7].find("\"t\":") != std::string::npos);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::StepMarkTest);
#include "StepMarkTest.moc"
