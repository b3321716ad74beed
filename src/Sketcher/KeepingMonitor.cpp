#include "KeepingMonitor.h"

#include "Model/UiText.h"

#include "HostUi/MainWindow.h"

using namespace vesk;

KeepingMonitor::KeepingMonitor(MainWindow& window) : m_window(window)
{
    JournalManager::GetInstance().AddObserver(this);
    Update();
}

KeepingMonitor::~KeepingMonitor()
{
    JournalManager::GetInstance().RemoveObserver(this);
}

void KeepingMonitor::OnRecord(const JournalRecord&)
{
    Update();
}

void KeepingMonitor::OnUiObject(const IJournalUiObject&, int) {}

void KeepingMonitor::Update()
{
    const bool isKept = JournalManager::GetInstance().IsKept();
    if (isKept == m_isKept)
        return;
    m_isKept = isKept;
    const QString subject = QStringLiteral("journal");
    if (isKept)
        m_window.RemoveState(subject);
    else
        m_window.ShowState(
            subject, [] { return "日志未保存"_tr; },
            [] { return "日志文件无法写入，所做的操作没有保存"_tr; });
    m_window.ShowNotice(isKept ? "日志文件又可写入，缺少的记录已补上"_tr
                               : "日志文件无法写入，从现在起所做的操作没有保存"_tr);
}
