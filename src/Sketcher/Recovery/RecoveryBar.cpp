#include "Recovery/RecoveryBar.h"

#include "Model/UiText.h"
#include "Recovery/UnsavedWork.h"

#include "HostUi/ElidedLabel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStringList>

namespace
{

/// The time alone if it was today.
QString TimeText(const QDateTime& time)
{
    const bool isToday = time.date() == QDate::currentDate();
    return time.toString(isToday ? QStringLiteral("HH:mm") : QStringLiteral("yyyy-MM-dd HH:mm"));
}

}

RecoveryBar::RecoveryBar(QWidget* pParent) : QFrame(pParent), m_pText(new vesk::ElidedLabel)
{
    setObjectName(QStringLiteral("RecoveryBar"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    m_pText->setObjectName(QStringLiteral("RecoveryText"));
    m_pText->setForegroundRole(QPalette::ToolTipText);

    auto* pLayout = new QHBoxLayout(this);
    constexpr int Margin = 6;
    pLayout->setContentsMargins(Margin, Margin / 2, Margin, Margin / 2);
    pLayout->addWidget(m_pText, 1);

    struct Choice
    {
        const char* name;
        QString text;
        QString toolTip;
        void (RecoveryBar::*signal)();
    };
    const Choice choices[] = {
        {"RecoveryGoOn", "继续(&R)"_tr, "恢复这些操作并继续绘图"_tr, &RecoveryBar::goOnRequested},
        {"RecoveryLook", "查看(&K)"_tr, "在另一窗口中查看，不作改动"_tr,
         &RecoveryBar::lookRequested},
        {"RecoveryLeave", "忽略(&I)"_tr, "不再提示；日志仍保留一段时间"_tr,
         &RecoveryBar::leaveRequested},
        {"RecoveryPostpone", "以后(&L)"_tr, "下次启动时再提示"_tr, &RecoveryBar::postponed},
    };
    for (const Choice& choice : choices)
    {
        auto* pButton = new QPushButton(choice.text);
        pButton->setObjectName(QString::fromLatin1(choice.name));
        pButton->setToolTip(choice.toolTip);
        pButton->setFocusPolicy(Qt::TabFocus);
        pButton->setAutoDefault(false);
        connect(pButton, &QPushButton::clicked, this, choice.signal);
        pLayout->addWidget(pButton);
    }
}

void RecoveryBar::Offer(const UnsavedWork& work, const QString& caption, int others)
{
    QStringList parts;
    if (!caption.isEmpty())
        parts << caption;
    parts << TimeText(work.time) << Tr("%n 步"_source, work.steps);
    QString text = "上次未正常结束：%1"_tr.arg(parts.join("，"_tr));
    if (!work.isReadInFull)
        text += "（日志有损坏，可恢复损坏之前的部分）"_tr;
    if (others > 0)
        text += Tr("；另有 %n 个"_source, others);
    m_pText->setText(text);
    m_pText->setToolTip(text);
    setAccessibleName(text);
}
