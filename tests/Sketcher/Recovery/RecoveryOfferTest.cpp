#include "Recovery/RecoveryOffer.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include "HostCore.h"
#include "HostUi/MainWindow.h"
#include "HostUi/UiApplication.h"

#include <QSignalSpy>
#include <QTemporaryDir>

namespace
{

struct OfferFixture
{
    QString Write(const QString& name, const QByteArray& bytes) const
    {
        const QString path = folder.filePath(name);
        return vesk::WriteBytes(path, bytes) ? path : QString();
    }

    void Search()
    {
        QSignalSpy searched(&offer, &RecoveryOffer::searched);
        offer.Search({});
        QTRY_COMPARE(searched.count(), 1);
    }

    QTemporaryDir folder;
    vesk::HostCore core;
    vesk::UiApplication application;
    vesk::MainWindow window;
    RecoveryOffer offer{window, {JournalFolder(folder.path())}, {}};
};

const QByteArray s_header = "{\"n\":0,\"kind\":\"journal\",\"version\":2,\"program\":\"sketcher\","
                            "\"time\":\"2026-11-21T08:15:30.123Z\"}\n";

}

class RecoveryOfferTest final : public QObject
{
    Q_OBJECT

private slots:
    void aJournalWithoutWorkIsNotReadAgain()
    {
        OfferFixture f;
        const QString journal = f.Write("a.jsonl", s_header);

        f.Search();

        QVERIFY(f.offer.GetWorks().empty());
        QVERIFY(JournalFolder::IsSettled(journal));
    }

    void aJournalThatCannotBeReadToItsEndStaysUndecided()
    {
        OfferFixture f;
        const QString journal = f.Write("a.jsonl", s_header + "rubbish\n");

        f.Search();

        QVERIFY(f.offer.GetWorks().empty());
        QVERIFY(!JournalFolder::IsSettled(journal));
    }
};

VESK_TESTS(RecoveryOfferTest);
#include "RecoveryOfferTest.moc"
