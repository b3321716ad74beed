#include "HostUi/Inspector.h"

#include "Command/ActionManager.h"
#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Dimension/InputField.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/QtText.h"
#include "Inspection/DefinitionText.h"
#include "Texts/HostUiText.h"

#include <QApplication>
#include <QDateTime>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>

namespace vesk
{
namespace
{

constexpr std::chrono::milliseconds RefreshInterval{200};
constexpr int MostEvents = 1000;

QString TypeText(int type)
{
    switch (type)
    {
    case ControlDefinitionChangeEventType::Add:
        return "添加"_tr;
    case ControlDefinitionChangeEventType::Insert:
        return "插入"_tr;
    case ControlDefinitionChangeEventType::Delete:
        return "删除"_tr;
    case ControlDefinitionChangeEventType::Clear:
        return "清空"_tr;
    case ControlDefinitionChangeEventType::PropertyChanged:
        return "属性"_tr;
    default:
        return QString::number(type);
    }
}

QString InputText(const DimensionInputController& input)
{
    const TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
    if (!manager.HasHandler())
        return "无"_tr;
    QStringList parts;
    if (const QLineEdit* pEditor = input.GetActiveEditor())
        parts << QStringLiteral("%1 “%2”").arg(ToQString(CaptionOf(manager.GetInputState())),
                                               pEditor->text());
    else
        parts << "等待键入"_tr;
    if (manager.IsRawTextInput())
        parts << "原文"_tr;
    for (const InputState field : manager.GetLocked())
        parts << "已锁定 %1"_tr.arg(ToQString(CaptionOf(field)));
    return parts.join("，"_tr);
}

/// Changes a text only if it differs, so that a selection survives.
void SetCell(QTreeWidgetItem& item, int column, const QString& text)
{
    if (item.text(column) != text)
        item.setText(column, text);
}

}

/// Reports the changes of one definition to the inspector.
class Inspector::Watch final : public IControlDefinitionChangeEventHandler
{
public:
    Watch(Inspector& inspector, std::wstring id, IControlDefinitionChangeEvent& event)
        : m_inspector(inspector), m_id(std::move(id)), m_event(event)
    {
        m_event.Add(this);
    }

    ~Watch() override { m_event.Delete(this); }

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        if (pArgs != nullptr)
            m_inspector.AddEvent(m_id, *pArgs);
    }

private:
    Inspector& m_inspector;
    std::wstring m_id;
    IControlDefinitionChangeEvent& m_event;
};

Inspector::Inspector(ControlHost& controls, const DimensionInputController& input)
    : m_pControls(&controls), m_pInput(&input), m_pState(new QLabel),
      m_pDefinitions(new QTreeWidget), m_pEvents(new QListWidget)
{
    m_pState->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pState->setMargin(4);
    m_pDefinitions->setObjectName(QStringLiteral("InspectorDefinitions"));
    m_pDefinitions->setRootIsDecorated(false);
    m_pDefinitions->setUniformRowHeights(true);
    m_pDefinitions->setFrameShape(QFrame::NoFrame);
    m_pDefinitions->setHeaderLabels({"定义"_tr, "种类"_tr, "值"_tr, "可见"_tr, "可用"_tr});
    // In a narrow pane the columns are too narrow for their names.
    QTreeWidgetItem* pHeader = m_pDefinitions->headerItem();
    for (int column = 0; column < pHeader->columnCount(); ++column)
        pHeader->setToolTip(column, pHeader->text(column));
    m_pEvents->setObjectName(QStringLiteral("InspectorEvents"));
    m_pEvents->setUniformItemSizes(true);
    m_pEvents->setFrameShape(QFrame::NoFrame);

    auto* pSplitter = new QSplitter;
    pSplitter->addWidget(m_pDefinitions);
    pSplitter->addWidget(m_pEvents);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pState);
    pLayout->addWidget(pSplitter, 1);

    m_refresh.setInterval(RefreshInterval);
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &Inspector::OnRefreshDue);
    controls.SetRemovalObserver(this);
    Listen();
}

Inspector::~Inspector()
{
    Stop();
}

void Inspector::UpdateStatus()
{
    if (m_pControls == nullptr)
        return;
    Listen();
    ShowState();
    ShowDefinitions();
    ShowEvents();
}

/// Its event may die with it, and the next definition may get the same address.
void Inspector::OnControlRemoved(const IControlDefinition& definition)
{
    m_watches.erase(&definition);
}

void Inspector::Stop()
{
    Rest();
    m_watches.clear();
    if (m_pControls != nullptr)
        m_pControls->SetRemovalObserver(nullptr);
    m_pControls = nullptr;
}

void Inspector::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    UpdateStatus();
    if (m_pControls != nullptr)
        qApp->installEventFilter(this);
}

void Inspector::hideEvent(QHideEvent* pEvent)
{
    Rest();
    QWidget::hideEvent(pEvent);
}

/// Every change follows some event, or is a change event. Timers do not count: what they change
/// causes other events, and two watchers with timers would wake each other for ever. On Windows
/// a timer without an interval is announced by another event.
bool Inspector::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::Timer && pEvent->type() != QEvent::ZeroTimerEvent)
        RefreshSoon();
    return QWidget::eventFilter(pWatched, pEvent);
}

void Inspector::RefreshSoon()
{
    if (!m_refresh.isActive())
        m_refresh.start();
}

/// Behind another tab it counts as shown, but cannot be seen.
void Inspector::OnRefreshDue()
{
    if (!visibleRegion().isEmpty())
        UpdateStatus();
}

void Inspector::Rest()
{
    qApp->removeEventFilter(this);
    m_refresh.stop();
}

/// Listens to new definitions.
void Inspector::Listen()
{
    for (const IControlDefinition* pDefinition : m_pControls->GetDefinitions())
    {
        const auto* pSource = dynamic_cast<const IControlDefinitionChangeEventSource*>(pDefinition);
        IControlDefinitionChangeEvent* pEvent =
            pSource != nullptr ? pSource->GetControlDefinitionChangeEvent() : nullptr;
        std::unique_ptr<Watch>& pWatch = m_watches[pDefinition];
        if (pWatch == nullptr && pEvent != nullptr)
            pWatch = std::make_unique<Watch>(*this, pDefinition->GetId(), *pEvent);
    }
}

void Inspector::AddEvent(const std::wstring& id, const IControlDefinitionChangeEventArgs& args)
{
    m_newEvents.push_back({QDateTime::currentMSecsSinceEpoch(), id, args.GetType(), args.GetIndex(),
                           args.IsChangeByUser()});
    if (m_newEvents.size() > std::size_t(MostEvents))
        m_newEvents.pop_front();
    if (isVisible())
        RefreshSoon();
}

QString Inspector::Describe(const Event& event)
{
    const QTime time = QDateTime::fromMSecsSinceEpoch(event.time).time();
    QString text = time.toString(QStringLiteral("HH:mm:ss.zzz  ")) + ToQString(event.id) +
                   QLatin1String("  ") + TypeText(event.type);
    if (event.index >= 0)
        text += QStringLiteral(" [%1]").arg(event.index);
    return text + QLatin1String("  ") + (event.isByUser ? "用户"_tr : "程序"_tr);
}

/// Scrolls to the newest event unless the user has scrolled back.
void Inspector::ShowEvents()
{
    if (m_newEvents.empty())
        return;
    const QScrollBar* pBar = m_pEvents->verticalScrollBar();
    const bool isAtEnd = pBar->value() == pBar->maximum();
    const int count = m_pEvents->count() + static_cast<int>(m_newEvents.size());
    for (int surplus = count - MostEvents; surplus > 0; --surplus)
        delete m_pEvents->takeItem(0);
    for (const Event& event : std::exchange(m_newEvents, {}))
        m_pEvents->addItem(Describe(event));
    if (isAtEnd)
        m_pEvents->scrollToBottom();
}

void Inspector::ShowState()
{
    const IAction* pAction = IActionManager::CurrentAction();
    const QString action = pAction != nullptr
                               ? "%1（%2）"_tr.arg(ToQString(ActionManager::GetRunningCommandId()),
                                                   ToQString(pAction->GetViewText()))
                               : "无"_tr;
    m_pState->setText("动作：%1\n尺寸输入：%2"_tr.arg(action, InputText(*m_pInput)));
}

void Inspector::ShowDefinitions()
{
    const std::vector<IControlDefinition*> definitions = m_pControls->GetDefinitions();
    while (m_pDefinitions->topLevelItemCount() > static_cast<int>(definitions.size()))
        delete m_pDefinitions->takeTopLevelItem(m_pDefinitions->topLevelItemCount() - 1);
    while (m_pDefinitions->topLevelItemCount() < static_cast<int>(definitions.size()))
        m_pDefinitions->addTopLevelItem(new QTreeWidgetItem);

    const auto yesOrNo = [](bool is) { return is ? "是"_tr : "否"_tr; };
    int row = 0;
    for (const IControlDefinition* pDefinition : definitions)
    {
        QTreeWidgetItem& item = *m_pDefinitions->topLevelItem(row++);
        const DefinitionText text = DescribeDefinition(*pDefinition);
        SetCell(item, 0, ToQString(pDefinition->GetId()));
        SetCell(item, 1, text.kind);
        SetCell(item, 2, text.value);
        SetCell(item, 3, yesOrNo(pDefinition->IsVisible()));
        SetCell(item, 4, yesOrNo(pDefinition->IsEnabled()));
    }
}

}
