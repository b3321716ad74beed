#pragma once

#include "Dimension/InputState.h"
#include "Journal/JournalManager.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// What the users of some sittings did, by the ids of commands.
struct SittingTally
{
    int sittings = 0;
    int acts = 0;
    int entities = 0;             ///< In the drawings at the end.
    QMap<QString, int> begun;     ///< Commands that were recorded.
    QMap<QString, int> committed; ///< Values that a key had taken, by the action that took them.
    int refused = 0;              ///< Values that a key should have taken, and that stayed.
    int zoomsWithin = 0;          ///< Zooms beside a value that was being typed.
    int switchesWithin = 0;       ///< Buttons clicked beside such a value.
    int closed = 0;               ///< Editors that were closed with such a value in them.
    int lateUnits = 0;            ///< Units typed after a blank that took the value.
};

/// Looks over the shoulder of a sitting's user: keeps what was done, in order, and what it led to.
class SittingWatch final : public vesk::IJournalObserver
{
public:
    enum class Act
    {
        Other,
        Key, ///< Must leave the keyboard where a value is being typed, as long as one is.
        CommittingKey,
        Button,
        Zoom,        ///< Must leave a value that is being typed as it is.
        CloseEditor, ///< Must end the input.
    };

    explicit SittingWatch(SittingTally& tally);
    ~SittingWatch() override;
    SittingWatch(const SittingWatch&) = delete;
    SittingWatch& operator=(const SittingWatch&) = delete;

    /// Does an act. It may run the event loop of an action, and the acts that follow.
    void Do(const QString& name, Act act, const std::function<void()>& work);

    /// Types a character wherever the keyboard is. No digit must be lost, neither to a value nor to
    /// a dimension that waits for one.
    void Type(QChar character);

    const QStringList& GetActs() const { return m_acts; }

    /// What no user should see; empty when all is well.
    const QStringList& GetFaults() const { return m_faults; }

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

private:
    /// A value that is being typed.
    struct Input
    {
        vesk::InputState state;
        QString text;
        QString selectedText;
        bool hasKeyboard; ///< A click on another control takes it away.
    };

    static std::optional<Input> FindInput();
    void JudgeEditor(const QString& name);
    void JudgeKey(const QString& name, Act act, const Input& before);
    void JudgeZoom(const QString& name, const Input& before);
    void JudgeClosed(const QString& name);
    void JudgeDigit(QChar digit, const std::optional<Input>& before);
    void NoteLateUnit(const QString& hintBefore);

    SittingTally& m_tally;
    QStringList m_acts;
    QStringList m_faults;
    Act m_act = Act::Other; ///< The one begun last.
};
