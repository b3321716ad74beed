// Whether a wide text reaches Qt for little more than the copy of its characters.

#include "Harness/Question.h"

#include "HostUi/QtText.h"

#include <QString>

#include <string>
#include <vector>

using namespace vesk;

namespace
{

// So few that all stay in the cache of a processor: the question is the conversion, not the memory.
constexpr int Texts = 100;
constexpr int Times = 10;

std::wstring TextOf(std::size_t length)
{
    std::wstring text;
    for (std::size_t i = 0; i < length; ++i)
        text += i % 5 == 4 ? L'\u957f' : static_cast<wchar_t>(L'a' + i % 26);
    return text;
}

/// The copy of a text that is UTF-16 already.
QString Copy(const std::u16string& text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<int>(text.size()));
}

void AskAboutLength(std::size_t length, double bar)
{
    const std::vector<std::wstring> wide(Texts, TextOf(length));
    const std::vector<std::u16string> copied(Texts, ToQString(wide.front()).toStdU16String());
    Ask("P24 wide text to QString, " + std::to_string(length) + " characters")
        .Ours([wide](Stopwatch& stopwatch) {
            std::vector<QString> converted(Texts);
            stopwatch.Time([&] {
                for (std::size_t i = 0; i < Texts * Times; ++i)
                    converted[i % Texts] = ToQString(wide[i % Texts]);
            });
        })
        .Limit([copied](Stopwatch& stopwatch) {
            std::vector<QString> converted(Texts);
            stopwatch.Time([&] {
                for (std::size_t i = 0; i < Texts * Times; ++i)
                    converted[i % Texts] = Copy(copied[i % Texts]);
            });
        })
        .TimeAtMost(bar);
}

}

void AskQuestions()
{
    AskAboutLength(8, 1.05);
    AskAboutLength(32, 1.05);
    AskAboutLength(256, 1.6);
}
