#include "Output/DrawingExport.h"

#include "Output/DrawnOnPaper.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

#include <new>

namespace
{

bool GoOn(double)
{
    return true;
}

SketchContent MakeLine()
{
    return ContentOf({LineShape{{0, 0, 0}, {10, 5, 0}}});
}

}

Q_DECLARE_METATYPE(OutputFault)

class DrawingExportTest final : public QObject
{
    Q_OBJECT

private slots:
    void theSuffixIsTheFormat_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("start");

        QTest::newRow("svg") << "a.svg" << QByteArray("<?xml");
        QTest::newRow("pdf") << "a.b.pdf" << QByteArray("%PDF");
        QTest::newRow("png") << "a.PNG" << QByteArray("\x89PNG");
    }

    void theSuffixIsTheFormat()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, start);
        const QTemporaryDir folder;
        const ExportFormat* pFormat = ExportFormatOf(path);
        QVERIFY(pFormat != nullptr);

        const OutputFault fault = ExportDrawing(MakeLine(), *pFormat, folder.filePath(path), &GoOn);

        QCOMPARE(fault, OutputFault::None);
        QVERIFY(vesk::ReadBytes(folder.filePath(path)).startsWith(start));
    }

    void otherSuffixesAreNoFormat_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("none") << "svg";
        QTest::newRow("unknown") << "a.jpg";
        QTest::newRow("empty") << "a.";
    }

    void otherSuffixesAreNoFormat()
    {
        QFETCH(QString, path);

        QVERIFY(ExportFormatOf(path) == nullptr);
    }

    void faultLeavesTheFileUnchanged_data()
    {
        QTest::addColumn<bool>("isEmpty");
        QTest::addColumn<double>("stopAt");
        QTest::addColumn<OutputFault>("fault");

        QTest::newRow("empty") << true << 2.0 << OutputFault::NothingVisible;
        QTest::newRow("stopped") << false << 0.0 << OutputFault::Stopped;
        QTest::newRow("stopped at the end") << false << 1.0 << OutputFault::Stopped;
    }

    void faultLeavesTheFileUnchanged()
    {
        QFETCH(bool, isEmpty);
        QFETCH(double, stopAt);
        QFETCH(OutputFault, fault);
        const QTemporaryDir folder;
        const QString path = folder.filePath("old.svg");
        QVERIFY(vesk::WriteBytes(path, "old"));

        const OutputFault found =
            ExportDrawing(isEmpty ? SketchContent() : MakeLine(), *ExportFormatOf(path), path,
                          [stopAt](double share) { return share < stopAt; });

        QCOMPARE(found, fault);
        QCOMPARE(vesk::ReadBytes(path), QByteArray("old"));
    }

    void fileThatCannotBeWrittenIsTold()
    {
        const QString path = QStringLiteral("/nonexistent/a.svg");

        QCOMPARE(ExportDrawing(MakeLine(), *ExportFormatOf(path), path, &GoOn),
                 OutputFault::CannotWrite);
    }

    void tooLittleMemoryIsToldAndLeavesTheFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("old.svg");
        QVERIFY(vesk::WriteBytes(path, "old"));
        ExportFormat greedy = *ExportFormatOf(path);
        greedy.make = [](const SketchContent&, const OutputProgress&) -> OutputBytes {
            throw std::bad_alloc();
        };

        QCOMPARE(ExportDrawing(MakeLine(), greedy, path, &GoOn), OutputFault::OutOfMemory);

        QCOMPARE(vesk::ReadBytes(path), QByteArray("old"));
    }

    void everyFaultHasTexts_data()
    {
        QTest::addColumn<OutputFault>("fault");
        for (int i = 1; i <= static_cast<int>(OutputFault::NoDxfUnit); ++i)
            QTest::addRow("%d", i) << static_cast<OutputFault>(i);
    }

    void everyFaultHasTexts()
    {
        QFETCH(OutputFault, fault);

        QVERIFY(!CaptionOf(fault).isEmpty());
        QVERIFY(!DescribeOutputFault(fault).empty());
    }
};

VESK_TESTS(DrawingExportTest);
#include "DrawingExportTest.moc"
