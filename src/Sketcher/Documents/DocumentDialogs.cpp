#include "Documents/DocumentDialogs.h"

#include "Model/UiText.h"

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
    pDialog->setNameFilters({"图纸 (*.vsk)"_tr, "所有文件 (*)"_tr});
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
    QPushButton* pCancel = pBox->addButton("取消"_tr, QMessageBox::RejectRole);
    pBox->setDefaultButton(pCancel);
    pBox->setEscapeButton(pCancel);
    const QAbstractButton* pChosen = Execute(pBox);
    return pChosen != nullptr && pChosen == pReplace;
}

}

DocumentDialogs::SaveAnswer DocumentDialogs::AskToSave(QWidget* pParent, const QString& name)
{
    const auto pBox = MakeBox(pParent, QMessageBox::Question, "要保存对“%1”的更改吗？"_tr.arg(name),
                              "如果不保存，更改将丢失。"_tr);
    const auto* pSave = pBox->addButton("保存(&S)"_tr, QMessageBox::AcceptRole);
    const auto* pDiscard = pBox->addButton("不保存(&N)"_tr, QMessageBox::DestructiveRole);
    pBox->setEscapeButton(pBox->addButton("取消"_tr, QMessageBox::RejectRole));
    const QAbstractButton* pChosen = Execute(pBox);
    if (pChosen == nullptr)
        return SaveAnswer::Cancel;
    if (pChosen == pSave)
        return SaveAnswer::Save;
    return pChosen == pDiscard ? SaveAnswer::Discard : SaveAnswer::Cancel;
}

bool DocumentDialogs::AskToReplaceChanged(QWidget* pParent, const QString& name)
{
    return AskToReplace(pParent, "“%1”打开之后已被其他程序修改。"_tr.arg(name),
                        "覆盖会丢失那些修改；也可以取消，再另存为其他文件。"_tr, "覆盖"_tr);
}

bool DocumentDialogs::AskToOpenReadOnly(QWidget* pParent, const QString& name,
                                        const QString& holder)
{
    const auto pBox =
        MakeBox(pParent, QMessageBox::Information, "“%1”已在另一个程序中打开。"_tr.arg(name),
                holder.isEmpty() ? QString() : "打开它的程序：%1"_tr.arg(holder));
    const auto* pOpen = pBox->addButton("以只读方式打开"_tr, QMessageBox::AcceptRole);
    pBox->setEscapeButton(pBox->addButton("取消"_tr, QMessageBox::RejectRole));
    const QAbstractButton* pChosen = Execute(pBox);
    return pChosen != nullptr && pChosen == pOpen;
}

QString DocumentDialogs::AskForFileToOpen(QWidget* pParent, const QString& folder)
{
    const auto pDialog = MakeFileDialog(pParent, "打开图纸"_tr);
    pDialog->setFileMode(QFileDialog::ExistingFile);
    pDialog->setDirectory(folder);
    return Execute(pDialog);
}

QString DocumentDialogs::AskForFileToSave(QWidget* pParent, const QString& suggestion,
                                          const QString& own)
{
    const auto pDialog = MakeFileDialog(pParent, "图纸另存为"_tr);
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
        AskToReplace(pParent, "“%1”已经存在。"_tr.arg(QFileInfo(path).fileName()),
                     "替换会丢失它现在的内容。"_tr, "替换"_tr);
    return isReplaced ? path : QString();
}

void DocumentDialogs::Tell(QWidget* pParent, const QString& text, const QString& details)
{
    const auto pBox = MakeBox(pParent, QMessageBox::Warning, text, details);
    pBox->addButton("确定"_tr, QMessageBox::AcceptRole);
    Execute(pBox);
}
