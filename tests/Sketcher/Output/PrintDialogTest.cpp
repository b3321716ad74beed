#include "Output/PrintDialog.h"

#include "Output/DrawnOnPaper.h"
#include "Output/Printing.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>

using vesk::Vector3d;

namespace
{

/// A dialog for a drawing of 100 x 400 mm.
struct PrintFixture
{
    PrintDialog dialog{
        ContentOf({LineShape{{0, 0, 0}, {100, 0, 0}}, LineShape{{0, 0, 0}, {0, 400, 0}}}), nullptr};

    QComboBox& Choice(const char* pName) const { return *dialog.findChild<QComboBox*>(pName); }
    QString Remark() const { return dialog.findChild<QLabel*>("PrintRemark")->text(); }

    QImage Preview() const
    {
        return dialog.findChild<QLabel*>("PrintPreview")->pixmap(Qt::ReturnByValue).toImage();
    }

    QPushButton& PrintButton() const
    {
        const auto buttons = dialog.findChildren<QPushButton*>();
        return **std::find_if(buttons.begin(), buttons.end(), [](const QPushButton* pButton) {
            return pButton->text() == QStringLiteral("打印");
        });
    }
};

}

class PrintDialogTest final : public QObject
{
    Q_OBJECT

private slots:
    void theDrawingFitsTheA4SheetAtFirst()
    {
        const PrintFixture f;

        const std::optional<PrintJob> job = f.dialog.GetJob();

        QVERIFY(job.has_value());
        QCOMPARE(job->page.id(), QPageSize::A4);
        QVERIFY(!job->isLandscape);
        QCOMPARE(job->placement.scale, (297.0 - 20.0) / 400.0);
        QVERIFY(!f.Preview().isNull());
    }

    void paperOrientationAndScaleAreChosen()
    {
        const PrintFixture f;

        f.Choice("PrintPaper").setCurrentIndex(1);
        f.Choice("PrintOrientation").setCurrentIndex(1);
        f.Choice("PrintScale").setEditText("1:50");

        const std::optional<PrintJob> job = f.dialog.GetJob();
        QVERIFY(job.has_value());
        QCOMPARE(job->page.id(), QPageSize::A3);
        QVERIFY(job->isLandscape);
        QCOMPARE(job->placement.paper, QSizeF(420, 297));
        QCOMPARE(job->placement.scale, 0.02);
        QCOMPARE(f.Remark(), QStringLiteral("比例 1:50"));
    }

    void drawingBeyondThePaperIsTold()
    {
        const PrintFixture f;

        f.Choice("PrintScale").setEditText("1:1");

        QCOMPARE(f.Remark(), QStringLiteral("图形超出纸面，超出部分不会打印"));
        QVERIFY(f.PrintButton().isEnabled());
    }

    void nothingIsPrintedAtNoScale()
    {
        const PrintFixture f;

        f.Choice("PrintScale").setEditText("1:");
        QVERIFY(!f.PrintButton().isEnabled());
        QVERIFY(!f.dialog.GetJob().has_value());

        f.Choice("PrintScale").setEditText("1:2");
        QVERIFY(f.PrintButton().isEnabled());
    }

    void thePreviewShowsTheChoice()
    {
        const PrintFixture f;
        const QImage before = f.Preview();

        f.Choice("PrintScale").setEditText("1:50");

        QVERIFY(f.Preview() != before);
    }

    void thePaperHasAnEdge()
    {
        const PrintFixture f;

        const QImage paper = f.Preview();

        QVERIFY(paper.pixelColor(0, paper.height() / 2) != QColor(Qt::white));
        QVERIFY(paper.pixelColor(paper.width() / 2, 0) != QColor(Qt::white));
    }

    void thePreviewGrowsAndShrinksWithTheDialog()
    {
        PrintFixture f;
        f.dialog.show();
        f.dialog.resize(700, 300);
        const QSize small = f.Preview().size();

        f.dialog.resize(900, 700);

        QTRY_VERIFY(f.Preview().height() > small.height());
        QVERIFY(small.height() <= 300);
        f.dialog.resize(700, 300);
        QTRY_COMPARE(f.Preview().size(), small);
    }

    void withoutAPrinterAPdfFileIsWritten()
    {
        const PrintFixture f;
        f.Choice("PrintPrinter").setCurrentIndex(f.Choice("PrintPrinter").count() - 1);
        f.Choice("PrintOrientation").setCurrentIndex(1);
        const QTemporaryDir folder;
        const QString path = folder.filePath("printed.pdf");
        const PrintJob job = *f.dialog.GetJob();

        const OutputFault fault = PrintDrawing(ContentOf({LineShape{{0, 0, 0}, {100, 0, 0}}}), job,
                                               path, [](double) { return true; });

        QCOMPARE(fault, OutputFault::None);
        const QRegularExpression box(R"(/MediaBox \[0 0 (\d+)\S* (\d+)\S*\])");
        const QByteArray pdf = vesk::ReadBytes(path);
        const auto match = box.match(QString(QLatin1String(pdf.constData(), pdf.size())));
        QCOMPARE(match.captured(1), QStringLiteral("842"));
        QCOMPARE(match.captured(2), QStringLiteral("595"));
    }

    void stoppedPrintingLeavesTheFileUnchanged()
    {
        const PrintFixture f;
        const QTemporaryDir folder;
        const QString path = folder.filePath("printed.pdf");
        QVERIFY(vesk::WriteBytes(path, "old"));
        PrintJob job = *f.dialog.GetJob();
        job.printer.clear();

        const OutputFault fault = PrintDrawing(ContentOf({LineShape{{0, 0, 0}, {100, 0, 0}}}), job,
                                               path, [](double) { return false; });

        QCOMPARE(fault, OutputFault::Stopped);
        QCOMPARE(vesk::ReadBytes(path), QByteArray("old"));
    }
};

VESK_TESTS(PrintDialogTest);
#include "PrintDialogTest.moc"
