#include "Foundation/IPublishConfig.h"

#include "Support/TestValues.h"

namespace vesk
{

class PublishConfigTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void thereIsNoRecordAtFirst();
    void recordsSayWhatWasSet_data();
    void recordsSayWhatWasSet();
    void recordsCanBeSetAnew();
    void recordsAreFoundByTheirExactName();
    void removedRecordsAreGone();
    void whatIsNotThereCanBeRemoved();
};

void PublishConfigTest::cleanup()
{
    IPublishConfig::RemoveConfigRecord(PublishConfigRecordNames::InHouseMode);
    IPublishConfig::RemoveConfigRecord(L"Other");
}

void PublishConfigTest::thereIsNoRecordAtFirst()
{
    QVERIFY(IPublishConfig::GetConfigRecord(PublishConfigRecordNames::InHouseMode) == nullptr);
}

void PublishConfigTest::recordsSayWhatWasSet_data()
{
    QTest::addColumn<bool>("value");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void PublishConfigTest::recordsSayWhatWasSet()
{
    QFETCH(bool, value);

    IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, value);
    IPublishConfig::SetConfigRecord(L"Other", !value);

    const IConfigRecord* pRecord =
        IPublishConfig::GetConfigRecord(PublishConfigRecordNames::InHouseMode);
    QVERIFY(pRecord != nullptr);
    QCOMPARE(pRecord->GetValueAsBool(), value);
}

void PublishConfigTest::recordsCanBeSetAnew()
{
    IPublishConfig::SetConfigRecord(L"Other", true);

    IPublishConfig::SetConfigRecord(L"Other", false);

    QVERIFY(!IPublishConfig::GetConfigRecord(L"Other")->GetValueAsBool());
}

void PublishConfigTest::recordsAreFoundByTheirExactName()
{
    IPublishConfig::SetConfigRecord(L"Other", true);

    QVERIFY(IPublishConfig::GetConfigRecord(L"other") == nullptr);
    QVERIFY(IPublishConfig::GetConfigRecord(L"InHouseMode") == nullptr);
}

void PublishConfigTest::removedRecordsAreGone()
{
    IPublishConfig::SetConfigRecord(L"Other", true);

    IPublishConfig::RemoveConfigRecord(L"Other");

    QVERIFY(IPublishConfig::GetConfigRecord(L"Other") == nullptr);
}

void PublishConfigTest::whatIsNotThereCanBeRemoved()
{
    IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, true);

    IPublishConfig::RemoveConfigRecord(L"Other");

    QVERIFY(IPublishConfig::GetConfigRecord(PublishConfigRecordNames::InHouseMode) != nullptr);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::PublishConfigTest);
#include "PublishConfigTest.moc"
