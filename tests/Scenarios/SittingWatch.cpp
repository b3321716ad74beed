#include "SittingWatch.h"

#include "ScriptedUser.h"
#include "SketchView.h"

#include "Command/ActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/QtText.h"

#include <QLineEdit>

using vesk::ToQString;

SittingWatch::SittingWatch(SittingTally& tally) : m_tally(tally)
{
    ++m_tally.sittings;
    vesk::JournalManager::GetInstance().AddObserver(this);
}

SittingWatch::~SittingWatch()
{
    vesk::JournalManager::GetInstance().RemoveObserver(this);
}

void SittingWatch::Do(const QString& name, Act act, const std::function<void()>& work)
{
    m_acts << name;
    ++m_tally.acts;
    m_act = act;
    const std::optional<Input> before = FindInput();
    if (before.has_value() && act == Act::Zoom)
        ++m_tally.zoomsWithin;
    if (before.has_value() && act == Act::Button && !before->text.isEmpty())
        ++m_tally.switchesWithin;

    work();

    if (before.has_value())
        Judge(name, act, *before);
}

void SittingWatch::OnRecord(const vesk::JournalRecord& record)
{
    if (const auto* pCommand = std::get_if<vesk::CommandRecord>(&record.what))
        ++m_tally.begun[ToQString(pCommand->commandId)];
    if (std::holds_alternative<vesk::ValueRecord>(record.what) && m_act == Act::CommittingKey)
        ++m_tally.committed[ToQString(vesk::ActionManager::GetRunningCommandId())];
}

void SittingWatch::OnUiObject(const vesk::IJournalUiObject&, int) {}

std::optional<SittingWatch::Input> SittingWatch::FindInput()
{
    const vesk::TemporaryDimensionMgr& manager = *vesk::TemporaryDimensionMgr::GetInstance();
    const auto* pEditor = ScriptedUser::FindView()->findChild<QLineEdit*>("ViewInputLineEdit");
    if (!manager.IsInputting() || pEditor == nullptr)
        return std::nullopt;
    return Input{manager.GetInputState(), pEditor->text(), pEditor->selectedText()};
}

void SittingWatch::Judge(const QString& name, Act act, const Input& before)
{
    // With other acts the window may be closed by now.
    if (act != Act::CommittingKey && act != Act::Zoom)
        return;
    const std::optional<Input> after = FindInput();
    const bool isKept =
        after.has_value() && after->state == before.state && after->text == before.text;
    if (act == Act::Zoom && !isKept)
        m_faults << name + QStringLiteral(" changed what was being typed: ") + before.text;
    if (act == Act::CommittingKey && isKept && after->selectedText == after->text)
        ++m_tally.refused;
}
