#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Journal/JournalFormat.h"
#include "Support/Platform/FileLinks.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFileInfo>
#include <QProgressBar>

#include <filesystem>
#include <system_error>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");

const QByteArray s_unfinished = "{\"n\":1,\"kind\":\"command\",\"id\":\"Sketcher.Line\"}\n"
                                "{\"n\":2,\"kind\":\"point\",\"point\":[0,0,0]}\n"
                                "{\"n\":3,\"kind\":\"point\",\"point\":[10,0,0]}\n";
const QByteArray s_end = "{\"n\":1,\"kind\":\"end\",\"result\":\"done\"}\n";
const QByteArray s_end4 = "{\"n\":4,\"kind\":\"end\",\"result\":\"done\"}";
const QByteArray s_torn = "{\"n\":4,\"ki";

/// Enough lines that the journal is still being read when the user acts.
QByteArray HugeJournal()
{
    QByteArray journal = s_unfinished;
    for (int i = 4; i < 60000; ++i)
        journal += QStringLiteral("{\"n\":%1,\"kind\":\"point\",\"point\":[%2,%3,0]}\n")
                       .arg(i)
                       .arg(i % 400)
                       .arg(i / 400 * 3 + i % 2)
                       .toLatin1();
    return journal;
}

bool IsReading()
{
    return ScriptedUser::FindWindow()->findChild<QProgressBar*>("Sketcher.Progress")->value() > 0;
}

}

/// A journal that is read and then continued.
class ContinueTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void theFileIsContinuedByAnyName_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("the same") << "kept";
        QTest::newRow("another way") << "./data/../kept";
        QTest::newRow("symbolic link") << "link";
        QTest::newRow("hard link") << "hard";
    }

    void theFileIsContinuedByAnyName()
    {
        QFETCH(QString, name);
        QDir().mkpath(m_pFixture->File("data"));
        const Options options = Continue(s_unfinished + s_torn, name);
        if (name == "link" && !QFileInfo(Link()).isSymLink())
            QSKIP(vesk::test::NoLinks);
        ScriptedUser user;
        user.DrawLine(-250, -250, -200, -250);

        QCOMPARE(user.Run(options), 0);

        const QByteArray journal = ReadBytes(Kept());
        QVERIFY2(journal.startsWith(s_unfinished + s_end + "{\"n\":4,"), journal.constData());
        QCOMPARE(Model().size(), 2);
        QCOMPARE(ReplayedModel(Kept()), ReadBytes(m_pFixture->File("model")));
        QCOMPARE(OtherJournals(), QStringList());
    }

    void aFileMayBeContinuedAgainAndAgain()
    {
        for (int i = 1; i <= 3; ++i)
        {
            const QByteArray before = i > 1 ? ReadBytes(Kept()) : s_unfinished;
            ScriptedUser user;
            user.DrawLine(-250, -250 + 10 * i, -200, -250 + 10 * i);

            QCOMPARE(user.Run(Continue(before + s_torn, "kept")), 0);

            QVERIFY(ReadBytes(Kept()).startsWith(before));
            QCOMPARE(Model().size(), i + 1);
        }
        QCOMPARE(ReplayedModel(Kept()), ReadBytes(m_pFixture->File("model")));
    }

    void everyCutOfASessionMayBeContinued()
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Click("Sketcher.Undo").DrawLine(0, 0, 0, 70);
        user.Click(s_line).ClickAt(-30, -20).ClickAt(-60, -90).Click("Sketcher.Erase");
        user.ClickAt(0, 30).Click("Sketcher.ZoomAll").Press(Qt::Key_Escape);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QByteArray whole = ReadBytes(m_pFixture->File("journal"));

        for (int end = whole.indexOf('\n'); end >= 0; end = whole.indexOf('\n', end + 1))
        {
            WriteFile(Kept(), whole.left(end + 1) + s_torn);
            const QByteArray model = ReplayedModel(Kept());
            const Outcome outcome = RunSketcher({"--replay", Kept(), "--journal", Kept()});

            QCOMPARE(outcome.code, 0);
            QVERIFY(ReadBytes(Kept()).startsWith(whole.left(end + 1)));
            QCOMPARE(RunSketcher({"--replay", Kept()}).error, QString());
            QCOMPARE(ReplayedModel(Kept()), model);
        }
    }

    void escapeLeavesTheFileAsItIs()
    {
        const QByteArray huge = HugeJournal() + s_torn;
        QString said;
        ScriptedUser user;
        user.Until(&IsReading).Press(Qt::Key_Escape).Until([] { return !IsReading(); });
        user.Do([&said] { said = ScriptedUser::States(); });
        user.DrawLine(-250, -250, -200, -250);

        QCOMPARE(user.Run(Continue(huge, "link")), 0);

        QVERIFY(ReadBytes(Kept()) == huge);
        QCOMPARE(said, QStringLiteral("日志改存于另一文件"));
        QCOMPARE(Model().size(), 1);
        QCOMPARE(OtherJournals().size(), 1);
        QCOMPARE(ReplayedModel(OtherJournals().front()), ReadBytes(m_pFixture->File("model")));
    }

    void closingWhileItIsReadLeavesTheFileAsItIs()
    {
        const QByteArray huge = HugeJournal() + s_torn;
        ScriptedUser user;
        user.Until(&IsReading);

        QCOMPARE(user.Run(Continue(huge, "kept")), 0);

        QVERIFY(ReadBytes(Kept()) == huge);
        QCOMPARE(OtherJournals(), QStringList());
    }

    void aRecordThatCannotBeDoneLeavesTheFileAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bad");

        QTest::newRow("unknown command")
            << QByteArray("{\"n\":4,\"kind\":\"command\",\"id\":\"Nobody.Knows\"}\n" + s_end4);
        QTest::newRow("unknown property") << QByteArray(
            "{\"n\":4,\"kind\":\"property\",\"object\":\"drawing\",\"property\":\"x\","
            "\"value\":\"\"}");
        QTest::newRow("unknown entity") << Edit("7", "length", "5.0");
        QTest::newRow("unknown property of an entity") << Edit("1", "radius", "5.0");
        QTest::newRow("negative length") << Edit("1", "length", "-5.0");
        QTest::newRow("no entity") << Edit("", "length", "5.0");
        QTest::newRow("no parameters") << QByteArray(
            "{\"n\":4,\"kind\":\"command\",\"id\":\"Sketcher.SetProperty\"}\n" + s_end4);
    }

    void aRecordThatCannotBeDoneLeavesTheFileAsItIs()
    {
        QFETCH(QByteArray, bad);
        const QByteArray journal =
            s_unfinished + s_end + bad + "\n{\"n\":5,\"kind\":\"selection\",\"entities\":[1]}\n";
        QString said;
        ScriptedUser user;
        user.Until([] { return !ScriptedUser::States().isEmpty(); });
        user.Do([&said] { said = ScriptedUser::States(); });
        user.DrawLine(-250, -250, -200, -250);

        QCOMPARE(user.Run(Continue(journal, "kept")), 0);

        QCOMPARE(ReadBytes(Kept()), journal);
        const QString much = QStringLiteral("第 4 条记录无法重做，已恢复 4 / %1 条");
        QVERIFY2(said.contains(much.arg(journal.count('\n'))), qPrintable(said));
        QVERIFY(said.contains(QStringLiteral("日志改存于另一文件")));
        QCOMPARE(Model().size(), 2);
        QCOMPARE(OtherJournals().size(), 1);
        QCOMPARE(ReplayedModel(OtherJournals().front()), ReadBytes(m_pFixture->File("model")));
        const Outcome replay = RunSketcher({"--replay", Kept(), "--journal", Kept()});
        QCOMPARE(replay.code, 3);
        QCOMPARE(replay.error.count('\n'), 1);
        QVERIFY2(replay.error.startsWith("sketcher: record 4: "), qPrintable(replay.error));
        QCOMPARE(ReadBytes(Kept()), journal);
    }

    void aPropertyThatIsSoAlreadyCanBeDone()
    {
        WriteFile(Kept(), s_unfinished + s_end + Edit("1", "length", "10.0") + '\n');

        QCOMPARE(RunSketcher({"--replay", Kept()}).code, 0);
    }

    void aFailureOfAnotherJournalIsToldToo()
    {
        Options options = m_pFixture->Draw();
        options.open = Kept();
        WriteFile(Kept(), s_unfinished + "{\"n\":4,\"kind\":\"undo\",\"entity\":77}\n");
        QString said;
        ScriptedUser user;
        user.Until([] { return !ScriptedUser::States().isEmpty(); }).Do([&said] {
            said = ScriptedUser::States();
        });

        QCOMPARE(user.Run(options), 0);

        QCOMPARE(said, QStringLiteral("第 4 条记录无法重做，已恢复 3 / 4 条"));
        QCOMPARE(Model().size(), 1);
    }

    void aKillWhileItIsReadLeavesTheFileAsItIs()
    {
        const QByteArray huge = HugeJournal() + s_torn;
        WriteFile(Kept(), huge);
        RunningSketcher reader({"--open", Kept(), "--journal", Kept()}, m_pFixture->File("ui"));

        QCOMPARE(reader.Kill().code, -1);

        // On a fast machine, reading may already have finished.
        QVERIFY(ReadBytes(Kept()) == huge || ReadBytes(Kept()) == HugeJournal() + s_end);
    }

    void aFileIsOfOneProgramAtATime()
    {
        WriteFile(Kept(), s_unfinished);
        const QString ui = m_pFixture->File("ui");
        RunningSketcher first({"--open", Kept(), "--journal", Kept()}, ui);
        const QStringList second[] = {{"--journal", Kept()},
                                      {"--open", Kept(), "--journal", Kept()},
                                      {"--replay", Kept(), "--journal", Link()}};

        for (const QStringList& arguments : second)
        {
            const QByteArray before = ReadBytes(Kept());
            const Outcome outcome = RunSketcher(arguments);

            QCOMPARE(outcome.code, 2);
            QCOMPARE(outcome.error.count('\n'), 1);
            QVERIFY2(outcome.error.contains("in use by another program"),
                     qPrintable(outcome.error));
            QVERIFY(ReadBytes(Kept()).startsWith(before));
        }
        QCOMPARE(RunSketcher({"--replay", Kept()}).code, 0);

        QCOMPARE(first.Kill().code, -1);
        QCOMPARE(RunSketcher({"--replay", Kept(), "--journal", Kept()}).code, 0);
    }

private:
    QString Kept() const { return m_pFixture->File("kept"); }

    /// Another name of that file: a link or, where the user may create none, a hard link.
    QString Link() const
    {
        const QString link = m_pFixture->File("link");
        if (!QFileInfo::exists(link) && !vesk::test::MakeLink(Kept(), link))
            AddHardLink("link");
        return link;
    }

    void AddHardLink(const QString& name) const
    {
        std::error_code error;
        std::filesystem::create_hard_link(Kept().toStdString(),
                                          m_pFixture->File(name).toStdString(), error);
    }

    /// The record of a property change of entities.
    static QByteArray Edit(const QByteArray& ids, const QByteArray& property,
                           const QByteArray& value)
    {
        return "{\"n\":4,\"kind\":\"command\",\"id\":\"Sketcher.SetProperty\",\"parameters\":{"
               "\"entities\":\"" +
               ids + "\",\"property\":\"" + property + "\",\"value\":" + value + "}}\n" + s_end4;
    }

    /// Options that open that journal and continue it in the same file under another name.
    Options Continue(const QByteArray& journal, const QString& name) const
    {
        WriteFile(Kept(), journal);
        Link();
        AddHardLink("hard");
        Options options = m_pFixture->Draw();
        options.open = Kept();
        options.journal = m_pFixture->File(name);
        return options;
    }

    QByteArray ReplayedModel(const QString& journal) const
    {
        const QString model = m_pFixture->File("replayed");
        if (RunSketcher({"--replay", journal, "--model", model}).code != 0)
            QTest::qFail("the journal cannot be replayed", __FILE__, __LINE__);
        return ReadBytes(model);
    }

    /// Journals in the user's data folder.
    QStringList OtherJournals() const
    {
        const QDir folder(m_pFixture->File("data/sketcher/journals"));
        QStringList paths;
        for (const QString& name : folder.entryList({"*.jsonl"}))
            paths << folder.filePath(name);
        return paths;
    }
};

VESK_TESTS(ContinueTest);
#include "ContinueTest.moc"
