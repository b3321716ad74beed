#include "Host/Command/ActionFixture.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk
{

using Choice = std::function<void(ActionFixture&, const std::string&)>;

}

Q_DECLARE_METATYPE(vesk::Choice)

namespace vesk
{

namespace
{

constexpr char Done[] = R"({"n":1,"kind":"end","result":"done"})";
constexpr char Refused[] = R"({"n":1,"kind":"end","result":"refused"})";

/// Logs the end records, as "end 1". Registered while it exists.
class EndRecorder final : public IJournalObserver
{
public:
    explicit EndRecorder(Log& log) : m_log(log) { JournalManager::GetInstance().AddObserver(this); }
    ~EndRecorder() override { JournalManager::GetInstance().RemoveObserver(this); }

    void OnRecord(const JournalRecord& record) override
    {
        if (std::holds_alternative<EndRecord>(record.what))
            m_log.push_back("end " + std::to_string(record.number));
    }
    void OnUiObject(const IJournalUiObject& /*object*/, int /*kind*/) override {}

private:
    Log& m_log;
};

void AddChoiceRows()
{
    QTest::addColumn<Choice>("choose");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << Choice(&ActionFixture::Choose) << "Undo";
    QTest::newRow("interactive") << Choice(&ActionFixture::Choose) << "Line";
    QTest::newRow("plain, menu") << Choice(&ActionFixture::ChooseInMenu) << "Undo";
    QTest::newRow("interactive, menu") << Choice(&ActionFixture::ChooseInMenu) << "Line";
}

}

/// Which commands are refused, and how each record is completed.
class CommandRecordTest : public QObject
{
    Q_OBJECT

private slots:
    void aCommandThatHasRunIsDone_data() { AddChoiceRows(); }
    void aCommandThatHasRunIsDone();
    void aDisabledCommandIsRefused_data() { AddChoiceRows(); }
    void aDisabledCommandIsRefused();
    void aPlainCommandThatFailsIsRefused();
    void onlyTheCommandThatFailsIsRefused();
    void aFailureBetweenCommandsIsForgotten();
    void aCommandDisabledWhenItsTurnComesIsRefused();
    void aPlainCommandDisabledBesideAnActionIsRefused();
    void aCommandRemovedWhileItWaitsIsRefused();
    void aCommandThatWaitsKeepsItsParameters();
    void theRecordIsCompletedWhenTheActionIsGone();
    void recordsAreCompletedInTheOrderOfTheEnds();
    void aCommandWithoutARecordWritesNoEnd();
    void anUnknownCommandOfAMenuIsRefused();
};

void CommandRecordTest::aCommandThatHasRunIsDone()
{
    QFETCH(Choice, choose);
    QFETCH(QString, name);
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");

    choose(f, name.toStdString());

    QVERIFY(f.HasRecord(Done));
}

void CommandRecordTest::aDisabledCommandIsRefused()
{
    QFETCH(Choice, choose);
    QFETCH(QString, name);
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");
    f.isDisabled[name.toStdString()] = true;

    choose(f, name.toStdString());

    QVERIFY(f.log.empty());
    QVERIFY(f.HasRecord(Refused));
}

void CommandRecordTest::aPlainCommandThatFailsIsRefused()
{
    ActionFixture f;
    f.AddPlain("Save", &ActionManager::FailCommand);

    f.Choose("Save");

    QVERIFY(f.HasRecord(Refused));
}

void CommandRecordTest::onlyTheCommandThatFailsIsRefused()
{
    ActionFixture f;
    f.AddPlain("Write", &ActionManager::FailCommand);
    f.AddPlain("Save", [] { ActionManager::RunCommand(L"Write", {}); });

    f.Choose("Save");

    QVERIFY(f.HasRecord(Done));
    QVERIFY(f.HasRecord(R"({"n":2,"kind":"end","result":"refused"})"));
}

void CommandRecordTest::aFailureBetweenCommandsIsForgotten()
{
    ActionFixture f;
    f.AddPlain("Save");
    ActionManager::FailCommand();

    f.Choose("Save");

    QVERIFY(f.HasRecord(Done));
}

void CommandRecordTest::aCommandDisabledWhenItsTurnComesIsRefused()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.scripts["Line"].onEnd = [&f] { f.isDisabled["Erase"] = true; };
    f.loop.Post([&f] { f.Choose("Erase"); });

    f.Choose("Line");

    QVERIFY(!f.Has("Erase.begin"));
    QVERIFY(f.HasRecord(R"({"n":2,"kind":"end","result":"refused"})"));
    QVERIFY(f.HasRecord(Done));
}

void CommandRecordTest::aPlainCommandDisabledBesideAnActionIsRefused()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");
    f.isDisabled["Undo"] = true;
    f.loop.Post([&f] { f.Choose("Undo"); });
    f.loop.Post([&f] { f.Click(); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.click", "Line.end", "Line.delete"}));
    QVERIFY(f.HasRecord(R"({"n":2,"kind":"end","result":"refused"})"));
}

void CommandRecordTest::aCommandRemovedWhileItWaitsIsRefused()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.loop.Post([&f] {
        f.Choose("Erase");
        ICommandManager::Get()->RemoveCommand(L"Erase");
    });

    f.Choose("Line");

    QVERIFY(f.HasRecord(R"({"n":2,"kind":"end","result":"refused"})"));
}

void CommandRecordTest::aCommandThatWaitsKeepsItsParameters()
{
    ActionFixture f;
    f.AddInteractive("Line");
    CommandParameters seen;
    ICommandManager::Get()->AddCommand(MakeOwner<Command>(
        L"Undo", Command::Kind::Plain, [&seen](IUiView*, const CommandParameters& parameters) {
            seen = parameters;
            return OwnerPtr<IAction>();
        }));
    f.loop.Post([] {
        CommandParameters parameters;
        parameters.Add(L"Steps", CommandParameterValue(3));
        ActionManager::SendCommand(L"Undo", parameters, nullptr);
    });

    f.Choose("Line");

    QVERIFY(seen.Find(L"Steps") != nullptr);
    QCOMPARE(*seen.Find(L"Steps"), CommandParameterValue(3));
}

void CommandRecordTest::theRecordIsCompletedWhenTheActionIsGone()
{
    ActionFixture f;
    f.AddInteractive("Line");
    const EndRecorder recorder(f.log);

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "end 1"}));
}

void CommandRecordTest::recordsAreCompletedInTheOrderOfTheEnds()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddInteractive("Erase");
    f.AddPlain("Undo");
    const EndRecorder recorder(f.log);
    f.loop.Post([&f] { f.Choose("Undo"); });
    f.loop.Post([&f] { f.Choose("Erase"); });

    f.Choose("Line");

    QCOMPARE(f.log, (Log{"Line.begin", "Undo", "end 2", "Line.end", "Line.delete", "end 1",
                         "Erase.begin", "Erase.end", "Erase.delete", "end 3"}));
}

void CommandRecordTest::aCommandWithoutARecordWritesNoEnd()
{
    ActionFixture f;
    f.AddInteractive("Line");
    f.AddPlain("Undo");

    ActionManager::SendCommand(L"Undo", {}, nullptr);
    ActionManager::SendCommand(L"Line", {}, nullptr);

    QVERIFY(f.Has("Undo"));
    QVERIFY(f.Has("Line.end"));
    QVERIFY(JournalManager::GetInstance().GetLastLines().empty());
}

void CommandRecordTest::anUnknownCommandOfAMenuIsRefused()
{
    ActionFixture f;

    f.ChooseInMenu("Unknown");

    QVERIFY(f.HasRecord(Refused));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CommandRecordTest);
#include "CommandRecordTest.moc"
