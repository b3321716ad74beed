#include "Output/ImportDialogs.h"

#include "Output/DxfImport.h"
#include "Output/NamedDxfUnit.h"

#include "HostUi/PlainMessageBox.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QPointer>

QString AskForImportPath(QWidget& window)
{
    // On the heap: the dialog is destroyed with the window if the program ends meanwhile.
    const QPointer<QFileDialog> pDialog = new QFileDialog(&window, QStringLiteral("导入"));
    pDialog->setObjectName(QStringLiteral("ImportDialog"));
    pDialog->setFileMode(QFileDialog::ExistingFile);
    pDialog->setNameFilters(
        {QStringLiteral("DXF 图形 (*.dxf *.DXF)"), QStringLiteral("所有文件 (*)")});
    const bool isAccepted = pDialog->exec() == QDialog::Accepted;
    if (pDialog == nullptr)
        return {};
    const QStringList files = pDialog->selectedFiles();
    delete pDialog;
    return isAccepted && !files.isEmpty() ? files.front() : QString();
}

QString AskForDxfUnit(QWidget& window, const QString& fileName)
{
    QStringList captions;
    for (const NamedDxfUnit& unit : NamedDxfUnits())
        captions << unit.caption;
    const QPointer<QInputDialog> pDialog = new QInputDialog(&window);
    pDialog->setObjectName(QStringLiteral("DxfUnitDialog"));
    pDialog->setWindowTitle(QStringLiteral("导入"));
    pDialog->setLabelText(QStringLiteral("%1 没有注明单位。长度单位是：").arg(fileName));
    pDialog->setComboBoxItems(captions);
    const bool isAccepted = pDialog->exec() == QDialog::Accepted;
    if (pDialog == nullptr)
        return {};
    const int place = captions.indexOf(pDialog->textValue());
    delete pDialog;
    return isAccepted && place >= 0 ? NamedDxfUnits()[place].name : QString();
}

/// A report with many remarks would be higher than the screen: the rest is among the details.
void ShowImportReport(QWidget& window, const QString& fileName, const DxfReportText& report)
{
    constexpr int MostLines = 10;
    QStringList lines = report.remarks.mid(0, MostLines);
    if (report.remarks.size() > MostLines)
        lines << QStringLiteral("……");
    const QString text = QStringLiteral("%1：已导入 %2 个图元，另有 %3 项说明。")
                             .arg(fileName, QString::number(report.importedCount),
                                  QString::number(report.remarks.size()));
    auto* pBox =
        vesk::MakePlainMessageBox(&window, QMessageBox::Information, QStringLiteral("导入"), text,
                                  lines.join(QLatin1Char('\n')));
    pBox->setStandardButtons(QMessageBox::Ok);
    if (report.remarks.size() > MostLines)
        pBox->setDetailedText(report.remarks.join(QLatin1Char('\n')));
    pBox->setObjectName(QStringLiteral("ImportReport"));
    pBox->setAttribute(Qt::WA_DeleteOnClose);
    pBox->setWindowModality(Qt::NonModal);
    pBox->show();
}
