#include "Output/ImportDialogs.h"

#include "Output/DxfImport.h"
#include "Output/OutputFault.h"

#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QMessageBox>

/// What is shown after an import, and after one that failed.
class ImportDialogsTest final : public QObject
{
    Q_OBJECT

private slots:
    void aShortReportShowsEachRemark()
    {
        QWidget window;

        ShowImportReport(window, "plan.dxf", MakeReport(3));

        const auto* pBox = window.findChild<QMessageBox*>("ImportReport");
        QVERIFY(pBox->isVisible());
        QVERIFY(!pBox->isModal());
        QCOMPARE(pBox->informativeText().split('\n').size(), 3);
        QCOMPARE(pBox->detailedText(), QString());
    }

    void aLongReportIsNotHigherThanTheScreen()
    {
        QWidget window;

        ShowImportReport(window, "plan.dxf", MakeReport(200));

        const auto* pBox = window.findChild<QMessageBox*>("ImportReport");
        QCOMPARE(pBox->informativeText().split('\n').size(), 11);
        QCOMPARE(pBox->detailedText().split('\n').size(), 200);
        QVERIFY(pBox->height() < 500);
    }

    void aFailureIsShownToWhoIsThere_data()
    {
        QTest::addColumn<QString>("unattended");
        QTest::addColumn<int>("count");

        QTest::newRow("somebody") << "" << 1;
        QTest::newRow("nobody") << "1" << 0;
    }

    void aFailureIsShownToWhoIsThere()
    {
        QFETCH(QString, unattended);
        QFETCH(int, count);
        const ScopedVariable variable("VESK_UNATTENDED", unattended);
        QWidget window;

        ShowOutputFault(window, "not exported", "no room");

        const auto boxes = window.findChildren<QMessageBox*>();
        QCOMPARE(boxes.size(), count);
        for (const QMessageBox* pBox : boxes)
        {
            QVERIFY(pBox->isVisible());
            QVERIFY(!pBox->isModal());
            QCOMPARE(pBox->text() + ": " + pBox->informativeText(),
                     QString("not exported: no room"));
        }
    }

private:
    static DxfReportText MakeReport(int remarkCount)
    {
        DxfReportText report;
        for (int i = 0; i < remarkCount; ++i)
            report.remarks << QString("remark %1").arg(i);
        return report;
    }
};

VESK_TESTS(ImportDialogsTest);
#include "ImportDialogsTest.moc"
