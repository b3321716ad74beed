#include "RecoveryUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Model/Sketch.h"
#include "Recovery/JournalFolder.h"
#include "Recovery/Snapshot.h"
#include "Recovery/UnsavedWork.h"
#include "SessionJournal.h"
#include "Settings/SettingsStore.h"

#include "Journal/JournalFormat.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QDir>
#include <QLabel>

#include <algorithm>

Q_DECLARE_METATYPE(QString Options::*)

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");

}

/// What an earlier session did not save, and the next one.
class RecoveryTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void unsavedWorkIsOfferedWithoutTakingTheKeyboard()
    {
        Crash(3);
        QString text;
        bool isViewFocused = false;
        ScriptedUser user;
        user.Until(&IsOffered).Do([&] {
            text = FindOffer()->text();
            isViewFocused = QApplication::focusWidget() == ScriptedUser::FindView();
        });

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QVERIFY2(text.startsWith(QStringLiteral("上次未正常结束：直线，")), qPrintable(text));
        QVERIFY2(text.endsWith(QStringLiteral("，3 步")), qPrintable(text));
        QVERIFY(isViewFocused);
    }

    void goingOnRestoresItAndTheJournalIsWhole()
    {
        const QString crashed = Crash(3);
        const QByteArray before = ReadBytes(crashed);
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);
        user.DrawLine(-250, -250, -200, -250);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(ReadBytes(crashed), before);
        QVERIFY(JournalFolder::IsSettled(crashed));
        QCOMPARE(Journals().size(), 2);
        QCOMPARE(LinesOf(NewestJournal()), 4);
    }

    void whatWasRecoveredIsOfferedAgainAfterTheNextCrash()
    {
        const QString crashed = Crash(3);
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);
        QCOMPARE(RunAndDiscard(user, Options()), 0);
        TakeEndAway(NewestJournal());
        QString text;
        ScriptedUser next;
        next.Until(&IsOffered).Do([&text] { text = FindOffer()->text(); });

        QCOMPARE(RunAndDiscard(next, Options()), 0);

        QVERIFY2(text.endsWith(QStringLiteral("，3 步")), qPrintable(text));
    }

    void aRecordThatWasNotCompletedIsLeftOut()
    {
        const QString crashed =
            Crash(3, "{\"n\":90,\"kind\":\"point\",\"point\":[7,7,0]}\n{\"n\":9");
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(LinesOf(NewestJournal()), 3);
    }

    void whatIsBeforeADamagedLineIsRestored()
    {
        Crash(3, "damage\n{\"n\":91,\"kind\":\"selection\",\"entities\":[1]}\n");
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(LinesOf(NewestJournal()), 3);
    }

    void aToolThatRunsIsEndedFirst()
    {
        Crash(3);
        ScriptedUser user;
        user.Until(&IsOffered).Click(s_line).ClickAt(-200, -200).UntilRunning(s_line);
        user.Click("RecoveryGoOn").Until(&IsNothingOffered).UntilRunning({});

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(LinesOf(NewestJournal()), 3);
    }

    void theDrawingThatIsLeftIsOfferedNext()
    {
        const QString crashed = Crash(3);
        QString text;
        ScriptedUser user;
        user.Until(&IsOffered).DrawLine(0, 0, 50, 0).Click("RecoveryGoOn");
        user.Until([&crashed] { return JournalFolder::IsSettled(crashed); }).Until(&IsOffered);
        user.Do([&text] { text = FindOffer()->text(); });
        user.Click("RecoveryGoOn").Until([&text] { return FindOffer()->text() != text; });

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QVERIFY2(text.endsWith(QStringLiteral("，1 步")), qPrintable(text));
        QCOMPARE(LinesOf(NewestJournal()), 1);
    }

    void whatIsLeftAloneIsNeverOfferedAgain()
    {
        const QString crashed = Crash(3);
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryLeave").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QVERIFY(QFile::exists(crashed));
        QCOMPARE(Undecided(), QStringList());
    }

    void whatIsPostponedIsOfferedAgain()
    {
        const QString crashed = Crash(3);
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryPostpone").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(Undecided(), QStringList(crashed));
    }

    void theNewestComesFirst()
    {
        Crash(2);
        Crash(5);
        QString text;
        ScriptedUser user;
        user.Until(&IsOffered).Do([&text] { text = FindOffer()->text(); });

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QVERIFY2(text.endsWith(QStringLiteral("，5 步；另有 1 个")), qPrintable(text));
    }

    void nothingIsOfferedToWhoSaysWhatToDo_data()
    {
        QTest::addColumn<QString Options::*>("option");
        QTest::addColumn<QString>("unattended");

        QTest::newRow("--journal") << &Options::journal << "";
        QTest::newRow("--model") << &Options::model << "";
        QTest::newRow("--open") << &Options::open << "";
        QTest::newRow("nobody there") << &Options::log << "1";
    }

    void nothingIsOfferedToWhoSaysWhatToDo()
    {
        QFETCH(QString Options::*, option);
        QFETCH(QString, unattended);
        Crash(3);
        Options options;
        options.*option = m_pFixture->File("named");
        WriteFile(options.*option, "");
        const ScopedVariable variable("VESK_UNATTENDED", unattended);
        bool isOffered = false;
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Do([&isOffered] { isOffered = IsOffered(); });

        QCOMPARE(RunAndDiscard(user, options), 0);

        QVERIFY(!isOffered);
        QCOMPARE(Undecided().size(), 1);
    }

    void aSnapshotSavesReplayingWhatWasBefore()
    {
        const QString crashed = Crash(5);
        TakeSnapshot(crashed, 3);
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QVERIFY(ReadBytes(NewestJournal()).contains("Sketcher.RecoverContent"));
        QCOMPARE(ReadBytes(NewestJournal()).count("\"kind\":\"point\""), 4);
        QCOMPARE(LinesOf(NewestJournal()), 5);
    }

    void aSnapshotThatIsNotOfTheJournalIsNotUsed()
    {
        const QString crashed = Crash(5);
        Sketch other;
        other.AddLine({0, 0, 0}, {1, 0, 0});
        QVERIFY(Snapshot::Write(crashed, MarksOf(crashed).back().number, other.GetContent()));
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QVERIFY(!ReadBytes(NewestJournal()).contains("Sketcher.RecoverContent"));
        QCOMPARE(LinesOf(NewestJournal()), 5);
    }

    void anUndoBeyondTheSnapshotIsReplayedInFull()
    {
        const QString crashed = Crash(5, {}, 3);
        TakeSnapshot(crashed, 4);
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(Journals().size(), 2);
        QVERIFY(!ReadBytes(NewestJournal()).contains("Sketcher.RecoverContent"));
        QCOMPARE(LinesOf(NewestJournal()), 2);
    }

    void unsavedWorkInAFileThatIsReplacedIsSecured_data()
    {
        QTest::addColumn<bool>("isDamaged");
        QTest::newRow("whole") << false;
        QTest::newRow("damaged before the first step") << true;
    }

    void unsavedWorkInAFileThatIsReplacedIsSecured()
    {
        QFETCH(bool, isDamaged);
        const QString crashed = Crash(3);
        Options options;
        options.journal = m_pFixture->File("mine");
        QVERIFY(QFile::rename(crashed, options.journal));
        if (isDamaged)
            WriteFile(options.journal, "?" + ReadBytes(options.journal));
        const QByteArray before = ReadBytes(options.journal);
        QString said;
        ScriptedUser user;
        user.Until([] { return ScriptedUser::FindWindow()->isVisible(); });
        user.Do([&said] { said = ScriptedUser::States(); });

        QCOMPARE(user.Run(options), 0);

        QCOMPARE(said, QStringLiteral("原日志未保存，已移入恢复文件夹"));
        QCOMPARE(Undecided().size(), 1);
        QCOMPARE(ReadBytes(Undecided().front()), before);
        QVERIFY(!ReadBytes(options.journal).contains("\"point\""));
    }

    void unsavedWorkThatCannotBeSecuredIsNotReplaced()
    {
        const QString crashed = Crash(3);
        const QString mine = m_pFixture->File("mine");
        QVERIFY(QFile::rename(crashed, mine));
        const QByteArray before = ReadBytes(mine);
        QVERIFY(QDir(m_pFixture->File("data")).removeRecursively());
        WriteFile(m_pFixture->File("data"), "no folder");

        const Outcome outcome = RunSketcher({"--journal", mine});

        QCOMPARE(outcome.code, 2);
        QVERIFY2(outcome.error.contains("may hold unsaved work"), qPrintable(outcome.error));
        QCOMPARE(outcome.error.count('\n'), 1);
        QCOMPARE(ReadBytes(mine), before);
    }

    void aFinishedJournalIsReplaced()
    {
        Options options;
        options.journal = m_pFixture->File("mine");
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);
        QCOMPARE(RunAndDiscard(user, options), 0);
        ScriptedUser next;

        QCOMPARE(next.Run(options), 0);

        QCOMPARE(Journals(), QStringList());
        QVERIFY(!ReadBytes(options.journal).contains("\"point\""));
    }

    void journalsGoToTheFolderThatIsChosen()
    {
        SessionJournal::SetFolder(m_pFixture->File("chosen"));

        const QString path = SessionJournal(Options()).GetPath();

        SessionJournal::SetFolder({});
        QCOMPARE(QFileInfo(path).path(), m_pFixture->File("chosen"));
        QVERIFY(SessionJournal(Options()).GetPath().contains("/journals/"));
    }

    void workInAFormerFolderIsOffered()
    {
        const QString former = m_pFixture->File("former");
        QVERIFY(QDir().mkpath(former));
        Crash(2);
        const QString crashed = Crash(3);
        QVERIFY(QFile::rename(crashed, former + "/crashed.jsonl"));
        SettingsStore settings(SettingsPath(), SettingsPath());
        Settings chosen;
        for (const QString& folder : {former, m_pFixture->File("chosen")})
        {
            chosen.journalFolder = folder;
            QVERIFY(settings.Set(chosen));
        }
        QString text;
        ScriptedUser user;
        user.Until(&IsOffered).Do([&text] { text = FindOffer()->text(); });

        const int code = RunAndDiscard(user, Options());

        SessionJournal::SetFolder({});
        QCOMPARE(code, 0);
        QVERIFY2(text.endsWith(QStringLiteral("，3 步；另有 1 个")), qPrintable(text));
        QCOMPARE(QDir(m_pFixture->File("chosen")).entryList({"*.jsonl"}).size(), 1);
    }

private:
    /// The journal that was made last; its name has the greatest number.
    QString NewestJournal() const
    {
        QStringList journals = Journals();
        for (const QString& journal : m_crashed)
            journals.removeAll(journal);
        std::sort(journals.begin(), journals.end(), [](const QString& a, const QString& b) {
            return a.size() != b.size() ? a.size() < b.size() : a < b;
        });
        return journals.isEmpty() ? QString() : journals.back();
    }

    /// Removes the closing record.
    static void TakeEndAway(const QString& journal)
    {
        QByteArray bytes = ReadBytes(journal);
        const int last = bytes.lastIndexOf('\n', bytes.size() - 2) + 1;
        if (bytes.mid(last).contains("\"close\""))
            bytes.truncate(last);
        WriteFile(journal, bytes);
    }

    /// The journal of a session that drew lines, undid some, and crashed; `rest` is at its end.
    QString Crash(int lines, const QByteArray& rest = {}, int undone = 0)
    {
        Options options;
        options.journal = m_pFixture->File("crashing");
        ScriptedUser user;
        for (int i = 1; i <= lines; ++i)
            user.DrawLine(0, 0, 20 * i, 30);
        for (int i = 0; i < undone; ++i)
            user.Click("Sketcher.Undo");
        RunAndDiscard(user, options);
        TakeEndAway(options.journal);
        const QString name = QString("crashed-%1.jsonl").arg(m_crashed.size());
        const QString path = m_pFixture->File("data/sketcher/journals/" + name);
        QDir().mkpath(m_pFixture->File("data/sketcher/journals"));
        WriteFile(path, ReadBytes(options.journal) + rest);
        QFile::remove(options.journal);
        m_crashed << path;
        return path;
    }

    struct NumberedMark
    {
        int number;
        std::string digest;
    };

    static std::vector<NumberedMark> MarksOf(const QString& journal)
    {
        std::vector<vesk::JournalRecord> records;
        std::string error;
        vesk::JournalFormat::ReadFile(journal.toStdString(), records, error);
        std::vector<NumberedMark> marks;
        for (const vesk::JournalRecord& record : records)
        {
            if (const auto* pMark = std::get_if<vesk::MarkRecord>(&record.what))
                marks.push_back({record.number, pMark->digest});
        }
        return marks;
    }

    /// Of the drawing after that many lines.
    void TakeSnapshot(const QString& journal, int lines) const
    {
        Sketch sketch;
        const auto points = RecordsOf<vesk::PointRecord>(ReadJournal(journal));
        for (std::size_t i = 0; i < 2 * static_cast<std::size_t>(lines); i += 2)
            sketch.AddLine(points[i].point, points[i + 1].point);
        for (const NumberedMark& mark : MarksOf(journal))
        {
            if (mark.digest != sketch.GetDigest())
                continue;
            QVERIFY(Snapshot::Write(journal, mark.number, sketch.GetContent()));
            return;
        }
        QFAIL("the journal has no such drawing");
    }

    /// How many lines a replay of the journal draws.
    int LinesOf(const QString& journal) const
    {
        const QString model = m_pFixture->File("recovered");
        if (RunSketcher({"--replay", journal, "--model", model}).code != 0)
            QTest::qFail("the journal cannot be replayed", __FILE__, __LINE__);
        return ReadLines(model).size();
    }

    const ScopedVariable m_attended{"VESK_UNATTENDED", QString()};
    QStringList m_crashed;
};

VESK_TESTS(RecoveryTest);
#include "RecoveryTest.moc"
