#include "Output/DxfImport.h"

#include "Support/FileBytes.h"
#include "Support/Platform/SpecialFiles.h"
#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QTemporaryDir>

namespace
{

/// StandInDxfTool.cpp in the place of vesk-dxf.
class ToolFixture
{
public:
    explicit ToolFixture(const char* manner)
        : m_path("PATH", QCoreApplication::applicationDirPath() + "/stand-in"),
          m_manner("VESK_STAND_IN", manner)
    {}

    QString MakeFile() const { return MakeFile(m_folder); }

    /// Larger than what a pipe holds.
    static QString MakeFile(const QTemporaryDir& folder)
    {
        const QString path = folder.filePath("a.dxf");
        return vesk::WriteBytes(path, QByteArray(1000000, '\n')) ? path : QString();
    }

private:
    QTemporaryDir m_folder;
    ScopedVariable m_path;
    ScopedVariable m_manner;
};

}

Q_DECLARE_METATYPE(OutputFault)

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

    void aReasonWithoutWordsIsToldAsItIs()
    {
        const DxfReportText report = ReadDxfReport(
            "{\"kind\":\"skipped\",\"type\":\"TEXT\",\"reason\":\"upside down\",\"count\":4}\n");

        QCOMPARE(report.remarks, QStringList{QStringLiteral("未导入 4 个 TEXT：upside down")});
    }

    void otherMessagesAreIgnored()
    {
        const DxfReportText report = ReadDxfReport("abc\n[1]\n\n{\"kind\":\"other\"}\n{");

        QCOMPARE(report.importedCount, 0);
        QVERIFY(report.remarks.isEmpty());
    }

    void messagesOfAnotherShapeAreIgnored()
    {
        const DxfReportText report =
            ReadDxfReport("{\"kind\":1}\n{\"kind\":\"imported\",\"count\":\"x\"}\n"
                          "{\"kind\":\"skipped\",\"type\":[],\"reason\":null,\"count\":2}\n");

        QCOMPARE(report.importedCount, 0);
        QCOMPARE(report.remarks, QStringList{QStringLiteral("未导入 2 个 ：")});
    }

    void longTypesAreShortened()
    {
        const QByteArray type(1000, 'X');

        const DxfReportText report = ReadDxfReport("{\"kind\":\"skipped\",\"type\":\"" + type +
                                                   "\",\"reason\":\"\",\"count\":1}\n");

        QVERIFY(report.remarks.value(0).size() < 60);
    }

    void aToolThatMisbehavesIsAFault_data()
    {
        QTest::addColumn<OutputFault>("fault");

        QTest::newRow("crash") << OutputFault::DxfToolFailed;
        QTest::newRow("rubbish") << OutputFault::DxfToolFailed;
        QTest::newRow("0") << OutputFault::DxfToolFailed;
        QTest::newRow("99") << OutputFault::DxfToolFailed;
        QTest::newRow("1") << OutputFault::DxfToolFailed;
        QTest::newRow("2") << OutputFault::NotDxf;
        QTest::newRow("3") << OutputFault::DxfTooLarge;
        QTest::newRow("4") << OutputFault::NoDxfUnit;
        QTest::newRow("messages without end") << OutputFault::DxfToolFailed;
        QTest::newRow("reads nothing") << OutputFault::NotDxf;
    }

    void aToolThatMisbehavesIsAFault()
    {
        QFETCH(OutputFault, fault);
        const ToolFixture f(QTest::currentDataTag());

        const DxfImport result = ImportDxf(f.MakeFile(), QString(), [](double) { return true; });

        QCOMPARE(result.fault, fault);
        QVERIFY(result.document.isEmpty());
    }

    void aToolThatHangsIsStopped()
    {
        const ToolFixture f("hangs");

        const DxfImport result = ImportDxf(f.MakeFile(), QString(), [](double) { return false; });

        QCOMPARE(result.fault, OutputFault::Stopped);
    }

    void aMissingToolIsAFault()
    {
        const QTemporaryDir empty;
        const ScopedVariable path("PATH", empty.path());

        QCOMPARE(ImportDxf(ToolFixture::MakeFile(empty), {}, [](double) { return true; }).fault,
                 OutputFault::NoDxfTool);
    }

    void whatIsNotARegularFileIsNotRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << "/nonexistent/a.dxf";
        QTest::newRow("folder") << QDir::tempPath();
        QTest::newRow("device") << vesk::test::EndlessDevice();
    }

    void whatIsNotARegularFileIsNotRead()
    {
        QFETCH(QString, path);

        QCOMPARE(ImportDxf(path, {}, [](double) { return true; }).fault, OutputFault::CannotRead);
    }
};

VESK_TESTS(DxfImportTest);
#include "DxfImportTest.moc"
