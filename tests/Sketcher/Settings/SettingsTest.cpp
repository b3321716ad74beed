#include "Settings/Settings.h"

#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

namespace
{

/// Settings of which none is the default.
Settings Others()
{
    Settings settings;
    settings.language = QStringLiteral("de");
    settings.colours = Settings::Colours::Dark;
    settings.unit = QStringLiteral("inch");
    settings.snaps = {false, true, true, false, true};
    settings.isSpaceCommitting = false;
    settings.journalFolder = QStringLiteral("/日志");
    settings.autosaveMinutes = 0;
    settings.isRibbonFolded = true;
    return settings;
}

}

/// The text in which settings are kept.
class SettingsTest final : public QObject
{
    Q_OBJECT

private slots:
    void theDefaultsAreThoseOfAProgramWithoutSettings()
    {
        const Settings settings;

        QCOMPARE(settings.language, QString());
        QVERIFY(settings.colours == Settings::Colours::Desktop);
        QCOMPARE(settings.unit, QString("mm"));
        QVERIFY((settings.snaps == std::array<bool, 5>{true, false, false, false, false}));
        QVERIFY(settings.isSpaceCommitting);
        QCOMPARE(settings.journalFolder, QString());
        QCOMPARE(settings.autosaveMinutes, 5);
        QVERIFY(!settings.isRibbonFolded);
    }

    void whatIsWrittenIsRead_data()
    {
        QTest::addColumn<bool>("isDefault");

        QTest::newRow("defaults") << true;
        QTest::newRow("others") << false;
    }

    void whatIsWrittenIsRead()
    {
        QFETCH(bool, isDefault);
        const Settings settings = isDefault ? Settings() : Others();

        QVERIFY(SettingsFromText(ToText(settings, {})) == settings);
    }

    void eachPartMakesADifference_data()
    {
        QTest::addColumn<QString>("field");

        for (const char* field : {"language", "colours", "unit", "snaps", "spaceCommits",
                                  "journalFolder", "autosaveMinutes", "ribbonFolded"})
            QTest::newRow(field) << field;
    }

    /// Without one field that part has its default, the others stay.
    void eachPartMakesADifference()
    {
        QFETCH(QString, field);
        auto object = nlohmann::json::parse(ToText(Others(), {}));
        QCOMPARE(object.erase(field.toStdString()), std::size_t{1});

        const Settings read = SettingsFromText(object.dump());

        QVERIFY(!(read == Others()));
        object[field.toStdString()] =
            nlohmann::json::parse(ToText(Others(), {}))[field.toStdString()];
        QVERIFY(SettingsFromText(object.dump()) == Others());
    }

    void whatCannotBeUsedIsTheDefault_data()
    {
        QTest::addColumn<QByteArray>("text");

        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("noise") << QByteArray("\xff\0{", 3);
        QTest::newRow("torn") << QByteArray("{\"unit\": \"cm\"");
        QTest::newRow("no object") << QByteArray("[1]");
        QTest::newRow("unknown unit") << QByteArray("{\"unit\": \"mile\"}");
        QTest::newRow("unit of another type") << QByteArray("{\"unit\": 3}");
        QTest::newRow("unknown colours") << QByteArray("{\"colours\": \"pink\"}");
        QTest::newRow("language of another type") << QByteArray("{\"language\": null}");
        QTest::newRow("snaps of another type") << QByteArray("{\"snaps\": true}");
        QTest::newRow("a snap of another type") << QByteArray("{\"snaps\": {\"end\": \"no\"}}");
        QTest::newRow("truth of another type") << QByteArray("{\"spaceCommits\": 0}");
        QTest::newRow("folder of another type") << QByteArray("{\"journalFolder\": {}}");
        QTest::newRow("negative") << QByteArray("{\"autosaveMinutes\": -1}");
        QTest::newRow("no whole number") << QByteArray("{\"autosaveMinutes\": 2.5}");
        QTest::newRow("too great") << QByteArray("{\"autosaveMinutes\": 121}");
        QTest::newRow("far too great") << QByteArray("{\"autosaveMinutes\": 18446744073709551615}");
    }

    void whatCannotBeUsedIsTheDefault()
    {
        QFETCH(QByteArray, text);

        QVERIFY(SettingsFromText(text.toStdString()) == Settings());
    }

    void aPartThatCannotBeUsedLeavesTheOthers()
    {
        const Settings read = SettingsFromText(R"({"unit": 1, "autosaveMinutes": 9})");

        QCOMPARE(read.unit, QString("mm"));
        QCOMPARE(read.autosaveMinutes, 9);
    }

    void unknownFieldsAreKept()
    {
        const std::string former = R"({"newer": [1, 2], "snaps": {"newer": true}, "unit": "cm"})";

        const auto object = nlohmann::json::parse(ToText(Others(), former));

        QCOMPARE(object["newer"].dump(), std::string("[1,2]"));
        QCOMPARE(object["snaps"]["newer"].dump(), std::string("true"));
        QVERIFY(SettingsFromText(object.dump()) == Others());
    }
};

VESK_TESTS(SettingsTest);
#include "SettingsTest.moc"
