#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <chrono>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// Qt Test, extended to print the values that differ.
//
// A comparison finds only overloads declared before Qt Test itself, or next to the type: hence the
// order here, and hence no test includes Qt Test in any other way.

namespace Eigen
{

template <typename Scalar, int Rows, int Columns, int Options, int MaxRows, int MaxColumns>
class Matrix;

}

namespace vesk::test
{

constexpr int PatienceMs = 120000;

/// A copy that Qt Test frees.
inline char* ToShown(const QString& text)
{
    return qstrdup(text.toUtf8().constData());
}

/// A number compared bit by bit. Comparing doubles directly tolerates differences in the last bits,
/// and the sign of a zero.
struct Exactly
{
    double value;

    friend bool operator==(const Exactly& a, const Exactly& b)
    {
        return std::memcmp(&a.value, &b.value, sizeof(double)) == 0;
    }
};

inline char* toString(const Exactly& number)
{
    return ToShown(QString::number(number.value, 'g', std::numeric_limits<double>::max_digits10));
}

}

namespace QTest
{

inline char* toString(const std::wstring& text)
{
    return vesk::test::ToShown('"' + QString::fromStdWString(text) + '"');
}

inline char* toString(const std::string& text)
{
    return vesk::test::ToShown('"' + QString::fromStdString(text) + '"');
}

template <typename... TKinds>
char* toString(const std::variant<TKinds...>& value);
template <typename T>
char* toString(const std::optional<T>& value);
template <typename T>
char* toString(const std::vector<T>& values);
template <typename T, std::size_t Count>
char* toString(const std::array<T, Count>& values);
template <typename TCount, typename TPeriod>
char* toString(const std::chrono::duration<TCount, TPeriod>& time);
template <typename Scalar, int Rows, int Columns, int Options, int MaxRows, int MaxColumns>
char* toString(
    const Eigen::Matrix<Scalar, Rows, Columns, Options, MaxRows, MaxColumns>& coordinates);

}

#include <QtTest>

#include "Support/TestProgram.h"

// How long a test waits for an expected state: only a failing test waits that long, and no machine
// is too slow.
#undef QTRY_VERIFY
#undef QTRY_COMPARE
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), vesk::test::PatienceMs)
#define QTRY_COMPARE(actual, expected)                                                             \
    QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), vesk::test::PatienceMs)

/// Compares two numbers bit by bit.
#define QCOMPARE_EXACTLY(actual, expected)                                                         \
    QCOMPARE(vesk::test::Exactly{double(actual)}, vesk::test::Exactly{double(expected)})

namespace vesk::test
{

template <typename T>
QString Shown(const T& value)
{
    using QTest::toString;
    const std::unique_ptr<char[]> pText(toString(value));
    return pText != nullptr ? QString::fromUtf8(pText.get()) : QStringLiteral("?");
}

template <typename TElements>
char* ShowElements(const TElements& elements)
{
    QStringList shown;
    for (const auto& element : elements)
        shown.append(Shown(element));
    return ToShown('{' + shown.join(QLatin1String(", ")) + '}');
}

/// The fields of a record, for `toString` of its type.
template <typename... TFields>
char* ShowFields(const TFields&... fields)
{
    const QStringList shown{Shown(fields)...};
    return ToShown('(' + shown.join(QLatin1String(", ")) + ')');
}

}

namespace QTest
{

template <typename... TKinds>
char* toString(const std::variant<TKinds...>& value)
{
    return std::visit([](const auto& held) { return toString(held); }, value);
}

template <typename T>
char* toString(const std::optional<T>& value)
{
    return value ? toString(*value) : qstrdup("none");
}

template <typename T>
char* toString(const std::vector<T>& values)
{
    return vesk::test::ShowElements(values);
}

template <typename T, std::size_t Count>
char* toString(const std::array<T, Count>& values)
{
    return vesk::test::ShowElements(values);
}

template <typename TCount, typename TPeriod>
char* toString(const std::chrono::duration<TCount, TPeriod>& time)
{
    const std::chrono::duration<double, std::milli> milliseconds(time);
    return vesk::test::ToShown(QString::number(milliseconds.count()) + QLatin1String(" ms"));
}

template <typename Scalar, int Rows, int Columns, int Options, int MaxRows, int MaxColumns>
char* toString(
    const Eigen::Matrix<Scalar, Rows, Columns, Options, MaxRows, MaxColumns>& coordinates)
{
    QStringList shown;
    for (int i = 0; i < coordinates.size(); ++i)
        shown.append(vesk::test::Shown(vesk::test::Exactly{coordinates[i]}));
    return vesk::test::ToShown('(' + shown.join(QLatin1String(", ")) + ')');
}

}
