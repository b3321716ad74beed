#include "HostUi/PublishConfigFile.h"

#include "Foundation/IPublishConfig.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

#include <optional>

namespace vesk
{

/// The file that says how a program was published.
class PublishConfigFileTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { IPublishConfig::RemoveConfigRecord(PublishConfigRecordNames::InHouseMode); }

    void recordsAreTaken_data();
    void recordsAreTaken();
    void recordsThatAreNotNamedStay();
    void withoutAFileNothingIsTaken();

private:
    QString Write(const QByteArray& text) const
    {
        QFile file(m_folder.filePath(QStringLiteral("publish.ini")));
        if (file.open(QIODevice::WriteOnly))
            file.write(text);
        return file.fileName();
    }

    static std::optional<bool> InHouseMode()
    {
        const IConfigRecord* pRecord =
            IPublishConfig::GetConfigRecord(PublishConfigRecordNames::InHouseMode);
        return pRecord != nullptr ? std::make_optional(pRecord->GetValueAsBool()) : std::nullopt;
    }

    QTemporaryDir m_folder;
};

void PublishConfigFileTest::recordsAreTaken_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("value"); // -1 for none

    QTest::newRow("false") << QByteArray("InHouseMode=false\n") << 0;
    QTest::newRow("true") << QByteArray("InHouseMode=True\n") << 1;
    QTest::newRow("nonsense") << QByteArray("InHouseMode=perhaps\n") << -1;
    QTest::newRow("another record") << QByteArray("Other=false\n") << -1;
    QTest::newRow("noise") << QByteArray("\xff\x00[[=;", 6) << -1;
}

void PublishConfigFileTest::recordsAreTaken()
{
    QFETCH(QByteArray, text);
    QFETCH(int, value);

    QVERIFY(LoadPublishConfig(Write(text)));

    QCOMPARE(InHouseMode().has_value() ? int(*InHouseMode()) : -1, value);
    IPublishConfig::RemoveConfigRecord(L"Other");
}

void PublishConfigFileTest::recordsThatAreNotNamedStay()
{
    IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, false);

    QVERIFY(LoadPublishConfig(Write("Other=true\n")));

    QCOMPARE(InHouseMode(), std::make_optional(false));
    IPublishConfig::RemoveConfigRecord(L"Other");
}

void PublishConfigFileTest::withoutAFileNothingIsTaken()
{
    QVERIFY(!LoadPublishConfig(m_folder.filePath("none.ini")));

    QVERIFY(!InHouseMode().has_value());
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::PublishConfigFileTest);
#include "PublishConfigFileTest.moc"
