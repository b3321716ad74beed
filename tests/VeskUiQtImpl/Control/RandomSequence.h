#pragma once

#include <QString>
#include <QStringList>

#include <random>
#include <string>
#include <vector>

namespace vesk::test
{

/// The same numbers again for the same seed.
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

/// A sequence on one kind of control; each step changes the control and a plain model of it.
class Sequence
{
public:
    explicit Sequence(unsigned seed) : m_dice(seed) {}
    virtual ~Sequence() = default;

    virtual void Step() = 0;

    /// What differs between the control, its definition and the model; empty when nothing does.
    virtual QString Compare() const = 0;

protected:
    Dice m_dice;
    Names m_names;
};

inline QString Difference(const char* what, const QStringList& actual, const QStringList& expected)
{
    if (actual == expected)
        return {};
    return QStringLiteral("%1: %2 instead of %3. ")
        .arg(QLatin1String(what), actual.join('|'), expected.join('|'));
}

}
