#include "Output/ExportDialog.h"

#include "Model/UiText.h"
#include "Output/DrawingExport.h"

#include "HostUi/QtText.h"

#include <QFileDialog>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <cstddef>

namespace
{

/// Runs the dialog and destroys it. Returns the chosen path; an empty one if there is none.
QString PathFrom(const QPointer<QFileDialog>& pDialog)
{
    const bool isAccepted = pDialog->exec() == QDialog::Accepted;
    if (pDialog == nullptr)
        return {};
    const QStringList files = pDialog->selectedFiles();
    delete pDialog;
    return isAccepted && !files.isEmpty() ? files.front() : QString();
}

}

QString AskForExportPath(QWidget& window, const QString& suggestion)
{
    QStringList filters;
    for (const ExportFormat& format : ExportFormats())
        filters << QStringLiteral("%1 (*.%2)")
                       .arg(vesk::ToQString(Tr(format.caption)), vesk::ToQString(format.name));

    // On the heap: the dialog is destroyed with the window if the program ends meanwhile.
    const QPointer<QFileDialog> pDialog = new QFileDialog(&window, "导出图纸"_tr);
    pDialog->setObjectName(QStringLiteral("ExportDialog"));
    pDialog->setAcceptMode(QFileDialog::AcceptSave);
    pDialog->setNameFilters(filters);
    pDialog->selectFile(suggestion);
    const auto useSuffix = [pDialog, filters](const QString& filter) {
        const auto place = static_cast<std::size_t>(filters.indexOf(filter));
        pDialog->setDefaultSuffix(vesk::ToQString(ExportFormats()[place].name));
    };
    QObject::connect(pDialog, &QFileDialog::filterSelected, pDialog, useSuffix);
    useSuffix(filters.front());
    return PathFrom(pDialog);
}

QString AskForPdfPath(QWidget& window, const QString& suggestion)
{
    const QPointer<QFileDialog> pDialog = new QFileDialog(&window, "打印到文件"_tr);
    pDialog->setObjectName(QStringLiteral("PrintFileDialog"));
    pDialog->setAcceptMode(QFileDialog::AcceptSave);
    pDialog->setNameFilter("PDF 文档 (*.pdf)"_tr);
    pDialog->setDefaultSuffix(QStringLiteral("pdf"));
    pDialog->selectFile(suggestion);
    return PathFrom(pDialog);
}
