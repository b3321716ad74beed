#include "VeskUiQtImpl/DebugWarnDialog.h"

#include "Foundation/IPublishConfig.h"
#include "Foundation/SourceText.h"
#include "VeskUiQtImpl/DebugWarnText.h"

#include "HostUi/QtText.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

using namespace vesk;

namespace
{

/// Shows a text scrolled to its beginning, however long it is.
void Show(QLineEdit& field, const QString& text)
{
    field.setText(text);
    field.setCursorPosition(0);
}

}

DebugWarnDialog::DebugWarnDialog(QWidget* pParent) : QDialog(pParent)
{
    m_form.Build(this);
    connect(m_form.pIgnore, &QPushButton::clicked, this, &DebugWarnDialog::IgnoreButtonPushed);
    connect(m_form.pIgnoreAll, &QPushButton::clicked, this,
            &DebugWarnDialog::IgnoreAllButtonPushed);
    connect(m_form.pReportBug, &QPushButton::clicked, this,
            &DebugWarnDialog::ReportBugButtonPushed);
    connect(m_form.pDebug, &QPushButton::clicked, this, &DebugWarnDialog::DebugButtonPushed);
}

DebugWarnDialog::~DebugWarnDialog() = default;

void DebugWarnDialog::SetInfo(const std::string& file, int line, const std::string& function,
                              const std::wstring& message, const std::wstring& person,
                              const std::wstring& date)
{
    m_form.pFile->setPlainText(QString::fromStdString(file));
    Show(*m_form.pLine, QString::number(line, 10));
    m_form.pFunction->setPlainText(QString::fromStdString(function));
    m_form.pMessage->setPlainText(ToQString(message));
    Show(*m_form.pPerson, ToQString(person));
    Show(*m_form.pDate, ToQString(date));

    const IConfigRecord* pInHouseMode =
        IPublishConfig::GetConfigRecord(PublishConfigRecordNames::InHouseMode);
    if (pInHouseMode != nullptr && !pInHouseMode->GetValueAsBool())
        Publish();
}

bool DebugWarnDialog::GetUserNameAndPassword(std::wstring& userName, std::wstring& password) const
{
    userName = ToWide(m_form.pUserName->text());
    password = ToWide(m_form.pPassword->text());
    return !userName.empty() && !password.empty();
}

void DebugWarnDialog::IgnoreButtonPushed()
{
    done(Ignored);
}

void DebugWarnDialog::IgnoreAllButtonPushed()
{
    done(AllIgnored);
}

void DebugWarnDialog::ReportBugButtonPushed()
{
    done(BugReported);
}

void DebugWarnDialog::DebugButtonPushed()
{
    done(DebuggerWanted);
}

void DebugWarnDialog::Publish()
{
    const QString hidden = QStringLiteral("******");
    m_form.pIgnore->hide();
    m_form.pDebug->hide();
    m_form.pIgnoreAll->setText(DebugWarnText(L"确定"_source));
    m_form.pIgnoreAll->setDefault(true);
    Show(*m_form.pPerson, hidden);
    Show(*m_form.pDate, hidden);
}
