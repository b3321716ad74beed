#include "Output/ImportDialogs.h"

#include "Model/UiText.h"
#include "Output/DxfImport.h"
#include "Output/NamedDxfUnit.h"

#include "HostUi/PlainMessageBox.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QPointer>

QString AskForImportPath(QWidget& window)
{
    // On the heap: the dialog is destroyed with the window if the program ends meanwhile.
    const QPointer<QFileDialog> pDialog = new QFileDialog(&window, "导入"_tr);
    pDialog->setObjectName(QStringLiteral("ImportDialog"));
    pDialog->setFileMode(QFileDialog::ExistingFile);
    pDialog->setNameFilters({"DXF 图形 (*.dxf *.DXF)"_tr, "所有文件 (*)"_tr});
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
        captions << Tr(unit.caption);
    const QPointer<QInputDialog> pDialog = new QInputDialog(&window);
    pDialog->setObjectName(QStringLiteral("DxfUnitDialog"));
    pDialog->setWindowTitle("导入"_tr);
    pDialog->setLabelText("%1 没有注明单位。长度单位是："_tr.arg(fileName));
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
    const QString text =
        "%1：%2，%3。"_tr.arg(fileName, Tr("已导入 %n 个图元"_source, report.importedCount),
                              Tr("另有 %n 项说明"_source, report.remarks.size()));
    auto* pBox = vesk::MakePlainMessageBox(&window, QMessageBox::Information, "导入"_tr, text,
                                           lines.join(QLatin1Char('\n')));
    pBox->setStandardButtons(QMessageBox::Ok);
    if (report.remarks.size() > MostLines)
        pBox->setDetailedText(report.remarks.join(QLatin1Char('\n')));
    pBox->setObjectName(QStringLiteral("ImportReport"));
    pBox->setAttribute(Qt::WA_DeleteOnClose);
    pBox->setWindowModality(Qt::NonModal);
    pBox->show();
}
