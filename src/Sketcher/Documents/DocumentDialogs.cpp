#include "Documents/DocumentDialogs.h"

#include "HostUi/PlainMessageBox.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace
{

QPointer<QMessageBox> MakeBox(QWidget* pParent, QMessageBox::Icon icon, const QString& text,
                              const QString& details)
{
    return vesk::MakePlainMessageBox(pParent, icon, QStringLiteral("Sketcher"), text, details);
}

/// The button that was chosen; null if there is none any more.
const QAbstractButton* Execute(const QPointer<QMessageBox>& pBox)
{
    pBox->exec();
    if (pBox == nullptr)
        return nullptr;
    pBox->deleteLater();
    return pBox->clickedButton();
}

QPointer<QFileDialog> MakeFileDialog(QWidget* pParent, const QString& title)
{
    auto* pDialog = new QFileDialog(pParent, title);
    pDialog->setNameFilters({QStringLiteral("图纸 (*.vsk)"), QStringLiteral("所有文件 (*)")});
    pDialog->setObjectName(QStringLiteral("DrawingFileDialog"));
    pDialog->setDefaultSuffix(QStringLiteral("vsk"));
    return pDialog;
}

QString Execute(const QPointer<QFileDialog>& pDialog)
{
    const bool isAccepted = pDialog->exec() == QDialog::Accepted;
    if (pDialog == nullptr)
        return {};
    pDialog->deleteLater();
    return isAccepted ? pDialog->selectedFiles().value(0) : QString();
}

/// Whether to do something that loses what is in a file.
bool AskToReplace(QWidget* pParent, const QString& text, const QString& details,
                  const QString& button)
{
    const auto pBox = MakeBox(pParent, QMessageBox::Warning, text, details);
    const auto* pReplace = pBox->addButton(button, QMessageBox::DestructiveRole);
    QPushButton* pCancel = pBox->addButton(QStringLiteral("取消"), QMessageBox::RejectRole);
    pBox->setDefaultButton(pCancel);
    pBox->setEscapeButton(pCancel);
    const QAbstractButton* pChosen = Execute(pBox);
    return pChosen != nullptr && pChosen == pReplace;
}

}

DocumentDialogs::SaveAnswer DocumentDialogs::AskToSave(QWidget* pParent, const QString& name)
{
    const auto pBox =
        MakeBox(pParent, QMessageBox::Question, QStringLiteral("要保存对“%1”的更改吗？").arg(name),
                QStringLiteral("如果不保存，更改将丢失。"));
    const auto* pSave = pBox->addButton(QStringLiteral("保存(&S)"), QMessageBox::AcceptRole);
    const auto* pDiscard =
        pBox->addButton(QStringLiteral("不保存(&N)"), QMessageBox::DestructiveRole);
    pBox->setEscapeButton(pBox->addButton(QStringLiteral("取消"), QMessageBox::RejectRole));
    const QAbstractButton* pChosen = Execute(pBox);
    if (pChosen == nullptr)
        return SaveAnswer::Cancel;
    if (pChosen == pSave)
        return SaveAnswer::Save;
    return pChosen == pDiscard ? SaveAnswer::Discard : SaveAnswer::Cancel;
}

bool DocumentDialogs::AskToReplaceChanged(QWidget* pParent, const QString& name)
{
    return AskToReplace(pParent, QStringLiteral("“%1”打开之后已被其他程序修改。").arg(name),
                        QStringLiteral("覆盖会丢失那些修改；也可以取消，再另存为其他文件。"),
                        QStringLiteral("覆盖"));
}

bool DocumentDialogs::AskToOpenReadOnly(QWidget* pParent, const QString& name,
                                        const QString& holder)
{
    const auto pBox = MakeBox(
        pParent, QMessageBox::Information, QStringLiteral("“%1”已在另一个程序中打开。").arg(name),
        holder.isEmpty() ? QString() : QStringLiteral("打开它的程序：%1").arg(holder));
    const auto* pOpen = pBox->addButton(QStringLiteral("以只读方式打开"), QMessageBox::AcceptRole);
    pBox->setEscapeButton(pBox->addButton(QStringLiteral("取消"), QMessageBox::RejectRole));
    const QAbstractButton* pChosen = Execute(pBox);
    return pChosen != nullptr && pChosen == pOpen;
}

QString DocumentDialogs::AskForFileToOpen(QWidget* pParent, const QString& folder)
{
    const auto pDialog = MakeFileDialog(pParent, QStringLiteral("打开图纸"));
    pDialog->setFileMode(QFileDialog::ExistingFile);
    pDialog->setDirectory(folder);
    return Execute(pDialog);
}

QString DocumentDialogs::AskForFileToSave(QWidget* pParent, const QString& suggestion,
                                          const QString& own)
{
    const auto pDialog = MakeFileDialog(pParent, QStringLiteral("图纸另存为"));
    // It would also ask about the drawing's own file.
    pDialog->setOption(QFileDialog::DontConfirmOverwrite);
    const QPointer<QWidget> pAsker(pParent);
    const QFileInfo file(suggestion);
    pDialog->setAcceptMode(QFileDialog::AcceptSave);
    pDialog->setDirectory(file.path());
    pDialog->selectFile(file.fileName());
    const QString path = Execute(pDialog);
    if (path.isEmpty() || pAsker == nullptr)
        return {};
    if (path == own || !QFileInfo::exists(path))
        return path;
    const bool isReplaced =
        AskToReplace(pParent, QStringLiteral("“%1”已经存在。").arg(QFileInfo(path).fileName()),
                     QStringLiteral("替换会丢失它现在的内容。"), QStringLiteral("替换"));
    return isReplaced ? path : QString();
}

void DocumentDialogs::Tell(QWidget* pParent, const QString& text, const QString& details)
{
    const auto pBox = MakeBox(pParent, QMessageBox::Warning, text, details);
    pBox->addButton(QStringLiteral("确定"), QMessageBox::AcceptRole);
    Execute(pBox);
}
