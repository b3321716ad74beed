#include "SittingWatch.h"

#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/QtText.h"

#include <QLineEdit>

#include <algorithm>

using vesk::ActionManager;
using vesk::LengthUnit;
using vesk::TemporaryDimensionMgr;
using vesk::ToQString;

namespace
{

QLineEdit* FindEditor()
{
    return ScriptedUser::FindView()->findChild<QLineEdit*>("ViewInputLineEdit");
}

/// True while the user is in a field of the window: keys go there.
bool IsTypingInAField()
{
    return qobject_cast<QLineEdit*>(ScriptedUser::FindWindow()->focusWidget()) != nullptr;
}

/// The number of letters at the start of a text.
int FindLettersBefore(const QString& text)
{
    const auto end =
        std::find_if_not(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    return static_cast<int>(end - text.begin());
}

}

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
    const LengthUnit* pUnitBefore = &LengthUnit::GetCurrent();
    if (before.has_value() && act == Act::Zoom)
        ++m_tally.zoomsWithin;
    if (before.has_value() && act == Act::Button && !before->text.isEmpty())
        ++m_tally.switchesWithin;

    if (before.has_value() && !ActionManager::IsCommandWaiting())
        JudgeEditor(name);

    work();

    // With some other acts the window may already be closed.
    if (!before.has_value())
        return;
    if (&LengthUnit::GetCurrent() != pUnitBefore && FindInput().has_value())
        m_faults << name + QStringLiteral(" kept a value of another unit");
    if (act == Act::Zoom)
        JudgeZoom(name, *before);
    if (act == Act::CloseEditor)
        JudgeClosed(name);
    if (act == Act::Key || act == Act::CommittingKey)
        JudgeKey(name, act, *before);
}

void SittingWatch::Type(QChar character)
{
    const std::optional<Input> before = FindInput();
    const bool isExpected = before.has_value()
                                ? before->hasKeyboard
                                : TemporaryDimensionMgr::GetInstance()->HasHandler() &&
                                      ScriptedUser::FindView()->hasFocus();
    // A key is held back along with a waiting command.
    const bool isHeld = ActionManager::IsCommandWaiting();

    const QString hintBefore = ScriptedUser::FindView()->GetViewText();

    ScriptedUser::TypeNow(character);

    NoteLateUnit(hintBefore);

    if (isExpected && !isHeld && character.isDigit())
        JudgeDigit(character, before);
}

void SittingWatch::OnRecord(const vesk::JournalRecord& record)
{
    if (const auto* pCommand = std::get_if<vesk::CommandRecord>(&record.what))
        ++m_tally.begun[ToQString(pCommand->commandId)];
    if (std::holds_alternative<vesk::ValueRecord>(record.what) && m_act == Act::CommittingKey)
        ++m_tally.committed[ToQString(ActionManager::GetRunningCommandId())];
}

void SittingWatch::OnUiObject(const vesk::IJournalUiObject&, int) {}

std::optional<SittingWatch::Input> SittingWatch::FindInput()
{
    const TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
    const QLineEdit* pEditor = FindEditor();
    if (!manager.IsInputting() || pEditor == nullptr)
        return std::nullopt;
    const bool hasFocus = pEditor->hasFocus() || ScriptedUser::FindView()->hasFocus();
    return Input{manager.GetInputState(), pEditor->text(), pEditor->selectedText(),
                 hasFocus && !IsTypingInAField()};
}

void SittingWatch::JudgeKey(const QString& name, Act act, const Input& before)
{
    const std::optional<Input> after = FindInput();
    if (!after.has_value())
        return;
    if (before.hasKeyboard && !after->hasKeyboard)
        m_faults << name + QStringLiteral(" took the keyboard away");
    const bool isKept = after->state == before.state && after->text == before.text;
    if (act == Act::CommittingKey && isKept && after->selectedText == after->text)
        ++m_tally.refused;
}

void SittingWatch::JudgeEditor(const QString& name)
{
    const SketchView& view = *ScriptedUser::FindView();
    const QLineEdit& editor = *FindEditor();
    const QRect covered(view.mapFromGlobal(editor.mapToGlobal(QPoint(0, 0))), editor.size());
    if (!editor.isVisible() || !view.rect().contains(covered))
        m_faults << QStringLiteral("the editor (%1,%2 %3x%4) is not in the view (%5x%6) before ")
                            .arg(covered.x())
                            .arg(covered.y())
                            .arg(covered.width())
                            .arg(covered.height())
                            .arg(view.width())
                            .arg(view.height()) +
                        name;
}

void SittingWatch::JudgeZoom(const QString& name, const Input& before)
{
    const std::optional<Input> after = FindInput();
    if (!after.has_value() || after->state != before.state || after->text != before.text)
        m_faults << name + QStringLiteral(" changed what was being typed: ") + before.text;
}

void SittingWatch::JudgeClosed(const QString& name)
{
    if (FindInput().has_value() || FindEditor()->isVisible())
        m_faults << name + QStringLiteral(" left it open");
    ++m_tally.closed;
}

/// The view reports a unit that came too late, and the unit must not open an input.
void SittingWatch::NoteLateUnit(const QString& hintBefore)
{
    const QString hint = ScriptedUser::FindView()->GetViewText();
    if (hint == hintBefore || !hint.contains(QStringLiteral("空格")))
        return;
    ++m_tally.lateUnits;
    if (FindInput().has_value())
        m_faults << m_acts.back() + QStringLiteral(" began a value with a unit");
}

void SittingWatch::JudgeDigit(QChar digit, const std::optional<Input>& before)
{
    const std::optional<Input> after = FindInput();
    // Letters that might have become a unit are inserted together with the first key that rules
    // this out.
    const int length = before.has_value()
                           ? before->text.size() - before->selectedText.size() + 1
                           : FindLettersBefore(after.has_value() ? after->text : QString()) + 1;
    if (!after.has_value() || after->text.size() != length || !after->text.contains(digit))
        m_faults << m_acts.back() + QStringLiteral(" lost a digit: ") + digit;
}
