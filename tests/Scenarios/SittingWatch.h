#pragma once

#include "Dimension/InputState.h"
#include "Journal/JournalManager.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// What the users of several sittings did, by command id.
struct SittingTally
{
    int sittings = 0;
    int acts = 0;
    int entities = 0;             ///< In the final drawings.
    QMap<QString, int> begun;     ///< Commands that were recorded.
    QMap<QString, int> committed; ///< Values committed with a key, by the receiving action.
    int refused = 0;        ///< Values that a key should have committed but that were rejected.
    int zoomsWithin = 0;    ///< Zooms while a value was being typed.
    int switchesWithin = 0; ///< Buttons clicked while a value was being typed.
    int closed = 0;         ///< Editors closed with such a value in them.
    int lateUnits = 0;      ///< Units typed after a blank that committed the value.
};

/// Observes the user of a sitting: records what was done, in order, and its effects.
class SittingWatch final : public vesk::IJournalObserver
{
public:
    enum class Act
    {
        Other,
        Key, ///< Must leave the keyboard focus with the value being typed, if there is one.
        CommittingKey,
        Button,
        Zoom,        ///< Must not change a value that is being typed.
        CloseEditor, ///< Must end the input.
    };

    explicit SittingWatch(SittingTally& tally);
    ~SittingWatch() override;
    SittingWatch(const SittingWatch&) = delete;
    SittingWatch& operator=(const SittingWatch&) = delete;

    /// Carries out an act. It may run the event loop of an action, and the acts that follow.
    void Do(const QString& name, Act act, const std::function<void()>& work);

    /// Types a character wherever the keyboard focus is. No digit may be lost, neither from a value
    /// nor from a dimension that waits for one.
    void Type(QChar character);

    const QStringList& GetActs() const { return m_acts; }

    /// Faults that no user should see; empty if there are none.
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
        bool hasKeyboard; ///< False after a click on another control.
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
    Act m_act = Act::Other; ///< The most recently started act.
};
