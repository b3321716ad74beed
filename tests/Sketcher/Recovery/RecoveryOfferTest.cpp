#include "Recovery/RecoveryOffer.h"

#include "Recovery/RecoveryBar.h"
#include "Sketcher/Recovery/Records.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include "HostCore.h"
#include "HostUi/MainWindow.h"
#include "HostUi/TranslationCatalogue.h"
#include "HostUi/UiApplication.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>

using Result = RecoveryOffer::Result;

Q_DECLARE_METATYPE(RecoveryOffer::Result)

namespace
{

/// A window that offers the journals of a folder.
struct Fixture
{
    QString File(const QString& name) const { return disk.filePath("journals/" + name); }

    /// A journal of that many days; returns its path.
    QString Add(const QString& name, int days, const QByteArray& text) const
    {
        const QString path = File(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return {};
        file.flush();
        file.setFileTime(QDateTime::currentDateTime().addDays(-days),
                         QFileDevice::FileModificationTime);
        return path;
    }

    /// A journal of two steps that did not end.
    QString AddWork(const QString& name, int days) const
    {
        return Add(name, days,
                   Records()
                       .Header()
                       .Command(1, L"Sketcher.Line")
                       .Mark(2, std::string(64, '1'))
                       .Mark(3, std::string(64, '2'))
                       .ToText());
    }

    void Search(const QString& ownJournal = {})
    {
        QSignalSpy searched(&offer, &RecoveryOffer::searched);
        offer.Search(ownJournal);
        QVERIFY(searched.count() > 0 || searched.wait(vesk::test::PatienceMs));
    }

    QStringList Offered() const
    {
        QStringList names;
        for (const UnsavedWork& work : offer.GetWorks())
            names << QFileInfo(work.journal).fileName();
        return names;
    }

    void Press(const char* name) const
    {
        window.findChild<QPushButton*>(name)->click();
        QCoreApplication::processEvents();
    }

    bool IsShown() const
    {
        const auto* pBar = window.findChild<RecoveryBar*>();
        return pBar != nullptr && !pBar->isHidden();
    }

    vesk::test::WarningRecorder warnings;
    vesk::HostCore core;
    vesk::UiApplication application;
    vesk::MainWindow window;
    QTemporaryDir disk;
    QStringList log;
    Result result = Result::Done;
    RecoveryOffer offer{
        window,
        {JournalFolder(disk.filePath("journals"))},
        {[](const std::wstring& id) { return QString::fromStdWString(id); },
         [this](const UnsavedWork& work) {
             log << "go on " + QFileInfo(work.journal).fileName();
             return result;
         },
         [this](const UnsavedWork& work) { log << "look " + QFileInfo(work.journal).fileName(); }}};
};

}

/// What is offered, and what each answer does.
class RecoveryOfferTest final : public QObject
{
    Q_OBJECT

private slots:
    void unfinishedWorkIsOfferedNewestFirst()
    {
        Fixture f;
        f.AddWork("old.jsonl", 3);
        f.AddWork("new.jsonl", 1);
        f.AddWork("own.jsonl", 0);
        JournalFolder::Settle(f.AddWork("settled.jsonl", 2));
        f.Add("ended.jsonl", 2, Records().Header().Close(1).ToText());

        f.Search(f.File("own.jsonl"));

        QCOMPARE(f.Offered(), (QStringList{"new.jsonl", "old.jsonl"}));
        QVERIFY(f.IsShown());
        const QString text = f.window.findChild<QLabel*>("RecoveryText")->text();
        QVERIFY2(text.contains("Sketcher.Line"), qPrintable(text));
        QVERIFY2(text.endsWith("2 步；另有 1 个"), qPrintable(text));
    }

    void offerIsShownAnewInAnotherLanguage()
    {
        Fixture f;
        f.AddWork("new.jsonl", 1);
        f.Search();
        const vesk::TranslationCatalogue english(QCoreApplication::applicationDirPath() +
                                                     "/../share/sketcher/translations",
                                                 "sketcher", QLocale(QLocale::English));

        f.offer.ShowAnew();

        QVERIFY(f.IsShown());
        QCOMPARE(f.window.findChildren<RecoveryBar*>().size(), 1);
        QCOMPARE(f.window.findChild<QPushButton*>("RecoveryGoOn")->text(), QString("&Resume"));
        const QString text = f.window.findChild<QLabel*>("RecoveryText")->text();
        QVERIFY2(text.endsWith("2 steps"), qPrintable(text));
    }

    void nothingIsShownAnewIfThereIsNoOffer()
    {
        Fixture f;

        f.offer.ShowAnew();

        QVERIFY(!f.IsShown());
    }

    void aJournalThatCannotBeReadToItsEndStaysUndecided()
    {
        Fixture f;
        const QString journal = f.Add("a.jsonl", 0, Records().Header().ToText() + "rubbish\n");

        f.Search();

        QVERIFY(f.Offered().isEmpty());
        QVERIFY(!JournalFolder::IsSettled(journal));
    }

    void aJournalWithoutWorkIsSettledUnseen()
    {
        Fixture f;
        const QString journal = f.Add("empty.jsonl", 1, Records().Header().ToText());

        f.Search();

        QVERIFY(f.Offered().isEmpty());
        QVERIFY(!f.IsShown());
        QVERIFY(JournalFolder::IsSettled(journal));
    }

    void whatIsAddedComesFirst()
    {
        Fixture f;
        f.AddWork("found.jsonl", 1);
        f.Search();
        UnsavedWork work = f.offer.GetWorks().front();
        work.journal = f.AddWork("added.jsonl", 0);

        f.offer.Add(work);

        QCOMPARE(f.Offered(), (QStringList{"added.jsonl", "found.jsonl"}));
    }

    void goingOnEndsTheOfferUnlessItWasCancelled_data()
    {
        QTest::addColumn<Result>("result");
        QTest::addColumn<bool>("isSettled");
        QTest::addColumn<QStringList>("left");

        const QStringList older{"old.jsonl"};
        QTest::newRow("done") << Result::Done << true << older;
        QTest::newRow("partly") << Result::Partly << false << older;
        QTest::newRow("cancelled")
            << Result::Cancelled << false << QStringList{"new.jsonl", "old.jsonl"};
    }

    void goingOnEndsTheOfferUnlessItWasCancelled()
    {
        QFETCH(Result, result);
        Fixture f;
        f.result = result;
        const QString journal = f.AddWork("new.jsonl", 1);
        f.AddWork("old.jsonl", 2);
        f.Search();

        f.Press("RecoveryGoOn");

        QCOMPARE(f.log, QStringList{"go on new.jsonl"});
        QTEST(JournalFolder::IsSettled(journal), "isSettled");
        QTEST(f.Offered(), "left");
    }

    void oneCanGoOnWithOneAfterAnother()
    {
        Fixture f;
        f.AddWork("new.jsonl", 1);
        f.AddWork("old.jsonl", 2);
        f.Search();

        f.Press("RecoveryGoOn");
        f.Press("RecoveryGoOn");

        QCOMPARE(f.log, (QStringList{"go on new.jsonl", "go on old.jsonl"}));
        QVERIFY(!f.IsShown());
    }

    void whatAnotherWindowWentOnWithIsTold_data()
    {
        QTest::addColumn<bool>("isRemoved");

        QTest::newRow("settled") << false;
        QTest::newRow("removed") << true;
    }

    void whatAnotherWindowWentOnWithIsTold()
    {
        QFETCH(bool, isRemoved);
        Fixture f;
        const QString journal = f.AddWork("a.jsonl", 1);
        f.Search();
        if (isRemoved)
            JournalFolder::Remove(journal);
        else
            JournalFolder::Settle(journal);

        f.Press("RecoveryGoOn");

        QVERIFY(f.log.isEmpty());
        QCOMPARE(f.window.statusBar()->currentMessage(), QString("上次的操作已在另一窗口中恢复"));
    }

    void lookingChangesNothing()
    {
        Fixture f;
        const QString journal = f.AddWork("a.jsonl", 1);
        f.Search();

        f.Press("RecoveryLook");

        QCOMPARE(f.log, QStringList{"look a.jsonl"});
        QCOMPARE(f.Offered(), QStringList{"a.jsonl"});
        QVERIFY(!JournalFolder::IsSettled(journal));
    }

    void whatIsLeftOrPostponedIsNoLongerOffered_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isSettled");

        QTest::newRow("leave") << "RecoveryLeave" << true;
        QTest::newRow("postpone") << "RecoveryPostpone" << false;
    }

    void whatIsLeftOrPostponedIsNoLongerOffered()
    {
        QFETCH(QString, button);
        Fixture f;
        const QString journal = f.AddWork("a.jsonl", 1);
        f.Search();

        f.Press(button.toLatin1().constData());

        QVERIFY(!f.IsShown());
        QTEST(JournalFolder::IsSettled(journal), "isSettled");
    }

    void undecidedJournalsAreKeptBeyondTheOthersUnlessVeryOld_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("kept");

        QTest::newRow("recent") << 100 << 22;
        QTest::newRow("very old") << 200 << 20;
    }

    void undecidedJournalsAreKeptBeyondTheOthersUnlessVeryOld()
    {
        QFETCH(int, days);
        QFETCH(int, kept);
        Fixture f;
        for (int i = 0; i < 101; ++i)
            JournalFolder::Settle(f.Add(QString("settled%1.jsonl").arg(i), 1, "{}\n"));
        for (int i = 0; i < 22; ++i)
            f.AddWork(QString("undecided%1.jsonl").arg(i), days);

        f.Search();

        const QDir folder(QFileInfo(f.File("a")).path());
        QCOMPARE(folder.entryList({"settled*.jsonl"}).size(), 100);
        QCOMPARE(folder.entryList({"undecided*.jsonl"}).size(), kept);
    }
};

VESK_TESTS(RecoveryOfferTest);
#include "RecoveryOfferTest.moc"
