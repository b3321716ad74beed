#include "DebugWarnDialog.h"

#include "DebugWarnText.h"
#include "Foundation/IPublishConfig.h"

#include <HostUi/QtText.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

using namespace vesk;

DebugWarnDialog::DebugWarnDialog(QWidget* pParent) : QDialog(pParent)
{
    m_form.Build(this);
    connect(m_form.pIgnore, SIGNAL(clicked()), this, SLOT(IgnoreButtonPushed()));
    connect(m_form.pIgnoreAll, SIGNAL(clicked()), this, SLOT(IgnoreAllButtonPushed()));
    connect(m_form.pReportBug, SIGNAL(clicked()), this, SLOT(ReportBugButtonPushed()));
    connect(m_form.pDebug, SIGNAL(clicked()), this, SLOT(DebugButtonPushed()));
}

DebugWarnDialog::~DebugWarnDialog() = default;

void DebugWarnDialog::SetInfo(const std::string& file, int line, const std::string& function,
                              const std::wstring& message, const std::wstring& person,
                              const std::wstring& date)
{
    m_form.pFile->setPlainText(QString::fromStdString(file));
    m_form.pLine->setText(QString::number(line, 10));
    m_form.pFunction->setPlainText(QString::fromStdString(function));
    m_form.pMessage->setPlainText(ToQString(message));
    m_form.pPerson->setText(ToQString(person));
    m_form.pDate->setText(ToQString(date));

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
    m_form.pIgnoreAll->setText(DebugWarnText(L"确定"));
    m_form.pPerson->setText(hidden);
    m_form.pDate->setText(hidden);
}
