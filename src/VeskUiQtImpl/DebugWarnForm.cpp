#include "VeskUiQtImpl/DebugWarnForm.h"

#include "VeskUiQtImpl/DebugWarnText.h"

#include "Foundation/SourceText.h"

#include <QDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

using vesk::operator""_source;

namespace
{

using vesk::DebugWarnText;

QLabel* MakeLabel(const wchar_t* text, const QRect& rect, QWidget* pParent)
{
    auto* pLabel = new QLabel(DebugWarnText(text), pParent);
    pLabel->setGeometry(rect);
    return pLabel;
}

/// A read-only field whose text can be selected and copied.
template <class Field>
Field* MakeField(const QRect& rect, QWidget* pParent)
{
    auto* pField = new Field(pParent);
    pField->setGeometry(rect);
    pField->setReadOnly(true);
    return pField;
}

/// A multi-line field. It shows when it has the focus, which styles do not do for such a read-only
/// field, and its text can be selected with the keyboard alone.
QTextEdit* MakeBox(const QRect& rect, QWidget* pParent)
{
    auto* pBox = MakeField<QTextEdit>(rect, pParent);
    pBox->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pBox->setStyleSheet(
        QStringLiteral("QTextEdit:focus { border: 2px solid palette(highlight); }"));
    return pBox;
}

QLineEdit* MakeDisabledEdit(const QRect& rect, QWidget* pParent)
{
    auto* pEdit = new QLineEdit(pParent);
    pEdit->setGeometry(rect);
    pEdit->setEnabled(false);
    return pEdit;
}

QPushButton* AddButton(const wchar_t* text, QWidget* pRow)
{
    auto* pButton = new QPushButton(DebugWarnText(text), pRow);
    pRow->layout()->addWidget(pButton);
    return pButton;
}

}

void DebugWarnForm::Build(QDialog* pDialog)
{
    pDialog->setWindowTitle(DebugWarnText(L"调试警告"_source));
    // The contents do not move on resize, so a smaller window would gain nothing.
    pDialog->setMinimumSize(485, 393);
    pDialog->resize(485, 393);
    pDialog->setWindowModality(Qt::ApplicationModal);
    BuildReport(pDialog);
    BuildButtons(pDialog);
    BuildInformation(pDialog);
    BuildFields(pDialog);
}

/// Reporting a warning is not available: the controls are disabled and lie outside the visible part
/// of their group.
void DebugWarnForm::BuildReport(QWidget* pDialog)
{
    auto* pGroup = new QGroupBox(pDialog);
    pGroup->setGeometry(10, 370, 181, 16);
    const QFont font(QStringLiteral("宋体"), 12);
    MakeLabel(L"用户名："_source, {10, 30, 54, 16}, pGroup)->setFont(font);
    MakeLabel(L"密码："_source, {190, 30, 41, 16}, pGroup)->setFont(font);
    pUserName = MakeDisabledEdit({70, 30, 81, 20}, pGroup);
    pPassword = MakeDisabledEdit({250, 30, 91, 20}, pGroup);
    pReportBug = new QPushButton(DebugWarnText(L"报告"_source), pGroup);
    pReportBug->setGeometry(380, 30, 91, 23);
    pReportBug->setEnabled(false);
}

void DebugWarnForm::BuildButtons(QWidget* pDialog)
{
    auto* pRow = new QWidget(pDialog);
    pRow->setGeometry(200, 360, 281, 31);
    auto* pLayout = new QHBoxLayout(pRow);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pIgnore = AddButton(L"忽略一次"_source, pRow);
    pIgnore->setDefault(true);
    pIgnoreAll = AddButton(L"忽略所有"_source, pRow);
    pDebug = AddButton(L"调试"_source, pRow);
}

void DebugWarnForm::BuildInformation(QWidget* pDialog)
{
    auto* pGroup = new QGroupBox(DebugWarnText(L"信息"_source), pDialog);
    pGroup->setGeometry(9, 193, 471, 161);
    pMessage = MakeBox({10, 20, 451, 131}, pGroup);
}

void DebugWarnForm::BuildFields(QWidget* pDialog)
{
    MakeLabel(L"文件："_source, {10, 10, 48, 23}, pDialog);
    pFile = MakeBox({60, 10, 420, 41}, pDialog);
    MakeLabel(L"行号："_source, {10, 60, 48, 23}, pDialog);
    pLine = MakeField<QLineEdit>({60, 60, 200, 22}, pDialog);
    MakeLabel(L"函数："_source, {10, 90, 48, 23}, pDialog);
    pFunction = MakeBox({60, 90, 420, 31}, pDialog);
    MakeLabel(L"负责人："_source, {10, 130, 48, 23}, pDialog);
    pPerson = MakeField<QLineEdit>({60, 130, 200, 22}, pDialog);
    MakeLabel(L"日期："_source, {10, 160, 48, 23}, pDialog);
    pDate = MakeField<QLineEdit>({60, 160, 200, 22}, pDialog);
}
