#include "Panes/RecordText.h"

#include "Journal/JournalRecord.h"
#include "Support/TestValues.h"

using namespace vesk;

Q_DECLARE_METATYPE(JournalRecord)

namespace
{

CommandRecord CommandWith(const std::wstring& name, const CommandParameterValue& value)
{
    CommandRecord record{L"Sketcher.Do", {}};
    record.parameters.Add(name, value);
    return record;
}

}

/// Journal records as the user sees them.
class RecordTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachKindIsOneLine_data()
    {
        QTest::addColumn<JournalRecord>("record");
        QTest::addColumn<QString>("text");

        Row("command", {1, CommandRecord{L"Sketcher.Line", {}}}, "    1  命令 Sketcher.Line");
        Row("flag", {2, CommandWith(L"on", CommandParameterValue(true))},
            "    2  命令 Sketcher.Do  on=true");
        Row("whole number", {3, CommandWith(L"n", CommandParameterValue(-5))},
            "    3  命令 Sketcher.Do  n=-5");
        Row("number", {4, CommandWith(L"value", CommandParameterValue(0.1))},
            "    4  命令 Sketcher.Do  value=0.1");
        Row("text", {5, CommandWith(L"name", CommandParameterValue(std::wstring(L"图 %1")))},
            "    5  命令 Sketcher.Do  name=图 %1");
        Row("point", {6, PointRecord{{1.5, -1.0 / 3.0, 9}, {}}},
            "    6  点 1.5, -0.3333333333333333");
        Row("point at an entity", {7, PointRecord{{1e20, 0, 0}, 3}}, "    7  点 1e+20, 0  图元 #3");
        Row("value", {8, ValueRecord{InputState::IS_Length, L"1/3", 1.0 / 3.0}},
            "    8  长度 “1/3” = 0.3333333333333333");
        Row("value with a mark", {9, ValueRecord{InputState::IS_Angle, L"%3%1", 90}},
            "    9  角度 “%3%1” = 90");
        Row("selection", {10, SelectionRecord{{3, 1, 2}}}, "   10  选择 #3 #1 #2");
        Row("eight selected", {11, SelectionRecord{{1, 2, 3, 4, 5, 6, 7, 8}}},
            "   11  选择 #1 #2 #3 #4 #5 #6 #7 #8");
        Row("nine selected", {12, SelectionRecord{{1, 2, 3, 4, 5, 6, 7, 8, 9}}},
            "   12  选择 9 个图元");
        Row("nothing selected", {13, SelectionRecord{}}, "   13  取消选择");
        Row("property", {14, PropertyRecord{L"pen", L"style", L"%2 dashed"}},
            "   14  pen.style = %2 dashed");
        Row("undo", {15, UndoRecord{4}}, "   15  撤销 #4");
        Row("end", {16, EndRecord{16, false}}, "   16  结束");
        Row("refused", {17, EndRecord{17, true}}, "   17  未执行");
        Row("great number", {1234567, EndRecord{1234567, false}}, "1234567  结束");
        Row("text of two lines", {18, PropertyRecord{L"drawing", L"name", L"a\nb\r\nc"}},
            "   18  drawing.name = a b c");
    }

    void eachKindIsOneLine()
    {
        QFETCH(JournalRecord, record);
        QFETCH(QString, text);

        QCOMPARE(DescribeRecord(record), text);
    }

    void parametersComeInTheOrderOfTheirNames()
    {
        CommandRecord record{L"Sketcher.SetProperty", {}};
        record.parameters.Add(L"value", CommandParameterValue(2.5));
        record.parameters.Add(L"entities", CommandParameterValue(std::wstring(L"1 2")));

        QCOMPARE(DescribeRecord({1, record}),
                 QStringLiteral("    1  命令 Sketcher.SetProperty  entities=1 2  value=2.5"));
    }

    void aTextAsLongAsAThousandEntitiesIsCutShort()
    {
        const std::wstring ids(4000, L'1');

        const QString text =
            DescribeRecord({1, CommandWith(L"entities", CommandParameterValue(ids))});

        QVERIFY(text.startsWith("    1  命令 Sketcher.Do  entities=1111"));
        QVERIFY(text.endsWith(QStringLiteral("1…")));
        QVERIFY2(text.size() < 200, qPrintable(QString::number(text.size())));
    }

private:
    static void Row(const char* name, const JournalRecord& record, const char* text)
    {
        QTest::newRow(name) << record << QString::fromUtf8(text);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(RecordTextTest);
#include "RecordTextTest.moc"
