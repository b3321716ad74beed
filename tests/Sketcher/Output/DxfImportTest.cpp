#include "Output/DxfImport.h"

#include "Support/TestValues.h"

class DxfImportTest final : public QObject
{
    Q_OBJECT

private slots:
    void theReportIsToldInWordsOfTheUser()
    {
        const DxfReportText report = ReadDxfReport(
            "{\"kind\":\"progress\",\"share\":0.5}\n"
            "{\"kind\":\"imported\",\"type\":\"LINE\",\"count\":3}\n"
            "{\"kind\":\"imported\",\"type\":\"ARC\",\"count\":2}\n"
            "{\"kind\":\"skipped\",\"type\":\"TEXT\",\"reason\":\"unsupported\",\"count\":4}\n"
            "{\"kind\":\"approximated\",\"what\":\"colour\",\"count\":1}\n"
            "{\"kind\":\"truncated\"}\n");

        QCOMPARE(report.importedCount, 5);
        QCOMPARE(report.remarks, QStringList({QStringLiteral("未导入 4 个 TEXT：不支持"),
                                              QStringLiteral("1 处颜色取最接近的值"),
                                              QStringLiteral("文件不完整，只读到中断处")}));
    }

    void otherMessagesAreIgnored()
    {
        const DxfReportText report = ReadDxfReport("abc\n[1]\n\n{\"kind\":\"other\"}\n{");

        QCOMPARE(report.importedCount, 0);
        QVERIFY(report.remarks.isEmpty());
    }

    void everyFailureIsNamed_data()
    {
        QTest::addColumn<int>("code");
        for (const int code : {1, 2, 3, 4, 5, 17})
            QTest::addRow("%d", code) << code;
    }

    void everyFailureIsNamed()
    {
        QFETCH(int, code);
        DxfImport failed;
        failed.code = static_cast<DxfToolCode>(code);

        QVERIFY(!CaptionOf(failed).isEmpty());
    }
};

VESK_TESTS_WITHOUT_APPLICATION(DxfImportTest);
#include "DxfImportTest.moc"
