#pragma once

#include "TemporaryDimensionHandlersImpl/KindTable.h"

namespace vesk::test
{

/// The three ways in which a key reaches a handler.
enum class Door
{
    View,   ///< OnKeyDown, with the key codes of the host.
    Event,  ///< A key press of the handler itself.
    Editor, ///< The handler's filter on its editor.
};

enum class ViewIs
{
    Found,
    Gone,
    WithoutWidget,
};

/// What is being typed when the key arrives.
struct Typed
{
    int field; ///< Negative: nothing.
    const char* text;
    bool isRaw;
    bool isAccepted;
};

/// A key, in any of the three ways.
struct Key
{
    int code;
    Qt::KeyboardModifiers modifiers;
    QString text;
    bool isRelease;

    QString Describe() const
    {
        return QString("%1 of key %2 with modifiers %3")
            .arg(isRelease ? "release" : "press")
            .arg(code)
            .arg(int(modifiers), 0, 16);
    }
};

/// The visible state of a handler afterwards, and what the key made it tell the host.
struct Outcome
{
    bool result = false;
    InputState state = InputState::IS_None;
    QString text;
    QString selected;
    int refreshCount = 0;
    int viewKeyCount = 0;
    QStringList values;
    QStringList warnings;

    /// Whether the next key starts from the same state as this one did.
    bool IsLike(const Outcome& before) const
    {
        return state == before.state && text == before.text && selected == before.selected &&
               values.isEmpty() && viewKeyCount == 0;
    }

    QString Describe() const
    {
        return QString("%1, state %2, text '%3', selected '%4', %5 refreshes, %6 keys to the view, "
                       "values [%7], warnings [%8]")
            .arg(result ? "true" : "false")
            .arg(int(state))
            .arg(text, selected)
            .arg(refreshCount)
            .arg(viewKeyCount)
            .arg(values.join("; "), warnings.join("; "));
    }
};

inline QString Warning(const std::string& function, const std::wstring& message)
{
    return QString::fromStdString(function) + ": " + QString::fromStdWString(message);
}

/// What each kind does with a key, stated independently of the library.
class Rules
{
public:
    Rules(const KindRules& kind, const Typed& typed, ViewIs view)
        : m_kind(kind), m_typed(typed), m_view(view)
    {}

    Outcome Expect(Door door, const Key& key, const Outcome& before) const
    {
        if (door == Door::Editor)
            return ExpectFromEditor(key, before);
        if (door == Door::Event)
            return ExpectFromEvent(key, key.text, before);
        return IsTakenFromView(key) ? ExpectFromEvent(key, QChar(key.code).toLower(), before)
                                    : before;
    }

private:
    static bool IsBetween(int code, int first, int last) { return code >= first && code <= last; }
    static bool IsDigit(int code) { return IsBetween(code, 48, 57) || IsBetween(code, 96, 105); }
    static bool IsMinus(int code) { return code == 45 || code == 109 || code == 189; }

    bool IsTakenFromView(const Key& key) const
    {
        const bool isHosts = key.code == 'P' && key.modifiers.testFlag(Qt::AltModifier);
        return IsDigit(key.code) ||
               (m_kind.Has(OpensWithMinus) && (key.code == 109 || key.code == 189)) ||
               (m_kind.Has(OpensWithLetters) && (key.code == 188 || IsBetween(key.code, 65, 90)) &&
                !isHosts);
    }

    QString OpeningText(int code, const QString& text) const
    {
        if (IsDigit(code))
            return QString::number((code - 48) % 48);
        if (m_kind.Has(OpensWithLetters) && IsBetween(code, 65, 90))
            return text;
        return m_kind.Has(OpensWithMinus) && IsMinus(code) ? "-" : "";
    }

    Outcome ExpectFromEvent(const Key& key, const QString& text, Outcome outcome) const
    {
        const bool isComma = m_kind.Has(OpensWithLetters) && m_kind.Has(SwitchesWithTab) &&
                             (key.code == 44 || key.code == 188) &&
                             key.modifiers.testFlag(Qt::ShiftModifier);
        const QString opening = OpeningText(key.code, text);
        if (key.isRelease)
            return outcome;
        if (m_typed.field >= 0 || (opening.isEmpty() && !isComma))
            return Refreshed(outcome);

        const bool isMinus = IsMinus(key.code);
        Open(outcome, isComma ? m_kind.fields[1] : m_kind.fields[std::size_t(m_kind.start)],
             opening);
        outcome.result = !isMinus;
        return isMinus ? Refreshed(outcome) : outcome;
    }

    Outcome Refreshed(Outcome outcome) const
    {
        outcome.refreshCount += m_view == ViewIs::Gone ? 0 : 1;
        return outcome;
    }

    void Open(Outcome& outcome, const FieldRules& field, const QString& text) const
    {
        const char* create = "vesk::TemporaryDimensionHandler::CreateEditorWidget";
        if (m_view == ViewIs::Gone)
            outcome.warnings << Warning(create, L"pUIView为空。");
        else if (m_view == ViewIs::WithoutWidget)
            outcome.warnings << Warning(create, L"pNqView为空。");
        else
            Show(outcome, field, text);
    }

    static void Show(Outcome& outcome, const FieldRules& field, const QString& text)
    {
        outcome.state = field.state;
        outcome.text = text.isEmpty() ? field.ShownText() : text;
        outcome.selected = field.selected == Selected::Always ? outcome.text : QString();
        ++outcome.refreshCount;
    }

    Outcome ExpectFromEditor(const Key& key, Outcome outcome) const
    {
        const bool isReturn = key.code == Qt::Key_Return || key.code == Qt::Key_Enter;
        outcome.result = key.isRelease;
        if (key.isRelease)
            return outcome;
        if (m_view == ViewIs::Gone)
            outcome.warnings << Warning(m_kind.NameOf("eventFilter"), L"pUIView指针不能为空");
        else if (m_view == ViewIs::WithoutWidget)
            outcome.warnings << Warning(m_kind.NameOf("eventFilter"), L"pViewWidget指针不能为空");
        else if (isReturn || (m_kind.Has(CommitsWithSpace) && key.code == Qt::Key_Space))
            Commit(outcome);
        else if (key.code == Qt::Key_Escape)
            Escape(outcome);
        else if (m_kind.Has(SwitchesWithTab) && key.code == Qt::Key_Tab)
            Switch(outcome);
        return outcome;
    }

    /// Records a delivered value. Returns false if there was none, or an invalid one.
    bool Deliver(Outcome& outcome, int kind) const
    {
        if (m_typed.field < 0)
            return false;
        if (!m_typed.isAccepted)
        {
            outcome.selected = outcome.text;
            return false;
        }
        // The host redraws once for each value, as a step of its action.
        ++outcome.refreshCount;
        outcome.values << QString("%1 %2 '%3'")
                              .arg(kind)
                              .arg(outcome.text.toDouble())
                              .arg(m_typed.isRaw ? outcome.text : QString());
        return true;
    }

    void Commit(Outcome& outcome) const
    {
        const FieldRules& field = m_kind.fields[std::size_t(std::max(m_typed.field, 0))];
        if (!Deliver(outcome, field.returnKind))
            return;
        outcome.state = InputState::IS_None;
        outcome.selected.clear();
    }

    void Escape(Outcome& outcome) const
    {
        outcome.state = InputState::IS_None;
        outcome.selected.clear();
        outcome.result = m_kind.Has(HandsEscapeOn);
        outcome.viewKeyCount += m_kind.Has(HandsEscapeOn) ? 1 : 0;
    }

    void Switch(Outcome& outcome) const
    {
        outcome.result = true;
        const FieldRules& field = m_kind.fields[std::size_t(std::max(m_typed.field, 0))];
        if (!Deliver(outcome, field.tabKind))
            return;
        Show(outcome, m_kind.fields[std::size_t(1 - m_typed.field)], {});
        outcome.selected = outcome.text;
    }

    const KindRules& m_kind;
    const Typed& m_typed;
    ViewIs m_view;
};

}
