#pragma once

#include "Control/IControlDefinitionChangeEvent.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace vesk::test
{

/// Yields the same numbers for the same seed.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// From 0 to count - 1.
    int Throw(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

private:
    std::mt19937 m_engine;
};

/// Texts that no other item of a sequence has.
class Names
{
public:
    std::wstring Next() { return L"item " + std::to_wstring(++m_last); }

private:
    int m_last = 0;
};

inline QStringList ToTexts(const std::vector<std::wstring>& texts)
{
    QStringList result;
    for (const std::wstring& text : texts)
        result.push_back(QString::fromStdWString(text));
    return result;
}

inline QString Difference(const char* what, const QStringList& actual, const QStringList& expected)
{
    if (actual == expected)
        return {};
    return QStringLiteral("%1: %2 instead of %3. ")
        .arg(QLatin1String(what), actual.join('|'), expected.join('|'));
}

/// Receives the changes of a definition, keeps those of its items and does something each time.
class Listener final : public IControlDefinitionChangeEventHandler
{
public:
    explicit Listener(std::function<void()> act) : m_act(std::move(act)) {}

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
            m_heard.push_back(QStringLiteral("%1 at %2: %3")
                                  .arg(pArgs->GetType())
                                  .arg(pArgs->GetIndex())
                                  .arg(QString::fromStdWString(pArgs->GetItemCaption())));
        m_act();
    }

    const QStringList& GetHeard() const { return m_heard; }

private:
    std::function<void()> m_act;
    QStringList m_heard;
};

/// A sequence of changes to one kind of control; each step changes the control and a plain model of
/// it. Two handlers, one before the control and one after it, occasionally change the definition
/// again while they are notified of a change.
class Sequence
{
public:
    explicit Sequence(unsigned seed) : m_dice(seed) {}
    virtual ~Sequence() = default;
    Sequence(const Sequence&) = delete;
    Sequence& operator=(const Sequence&) = delete;

    void Step()
    {
        ++m_step;
        m_nestedLeft = m_dice.Throw(MostNested + 1);
        Change();
        m_nestedLeft = 0;
    }

    /// What differs between the control, its definition and the model; empty if nothing does.
    QString Compare() const
    {
        return CompareControl() +
               Difference("heard behind the control", m_behind.GetHeard(), m_before.GetHeard());
    }

protected:
    /// One change by the program or by the user.
    virtual void Change() = 0;
    virtual void ChangeByProgram() = 0;
    virtual QString CompareControl() const = 0;

    int GetStep() const { return m_step; }

    Dice m_dice;
    Names m_names;
    Listener m_before{[this] { Nest(); }};
    Listener m_behind{[this] { Nest(); }};

private:
    static constexpr int MostNested = 5;

    void Nest()
    {
        while (m_nestedLeft > 0 && m_dice.Throw(3) > 0)
        {
            --m_nestedLeft;
            ChangeByProgram();
        }
    }

    int m_step = 0;
    int m_nestedLeft = 0;
};

}
