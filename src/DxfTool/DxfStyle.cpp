// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfStyle.h"

#include "Model/Pen.h"

#include <QColor>
#include <QTextCodec>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iterator>

namespace
{

/// By index into LineColours().
constexpr std::array<int, 7> ColourNumbers = {7, 1, 30, 3, 5, 6, 8};

/// By index into LineStyles().
constexpr std::array<const char*, 4> LineTypes = {"CONTINUOUS", "DASHED", "DOT", "DASHDOT"};

constexpr int Grey = 6;

/// The colour of a number, roughly.
QColor ColourOfNumber(int number)
{
    constexpr std::array<unsigned, 10> First = {0x000000, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff,
                                                0x0000ff, 0xff00ff, 0xffffff, 0x808080, 0xc0c0c0};
    constexpr int FirstOfGreys = 250;
    if (number < 10)
        return QColor(First[static_cast<std::size_t>(std::max(number, 0))]);
    if (number >= FirstOfGreys)
        return {0x80, 0x80, 0x80};
    return QColor::fromHsv((number - 10) / 10 * 15, 255, 255);
}

/// The index of the colour whose hue is nearest.
int ColourOfHue(int hue)
{
    struct Sector
    {
        int end;
        int colour;
    };
    constexpr Sector Sectors[] = {{15, 1}, {75, 2}, {165, 3}, {255, 4}, {345, 5}, {360, 1}};
    return std::find_if(std::begin(Sectors), std::end(Sectors),
                        [hue](const Sector& sector) { return hue < sector.end; })
        ->colour;
}

int ColourLike(const QColor& colour)
{
    constexpr int Colourless = 64;
    constexpr int Dark = 40;
    constexpr int Light = 230;
    if (colour.value() < Dark || (colour.saturation() < Colourless && colour.value() > Light))
        return 0;
    return colour.saturation() < Colourless ? Grey : ColourOfHue(colour.hue());
}

bool StartsWith(const QString& text, std::initializer_list<const char*> starts)
{
    return std::any_of(starts.begin(), starts.end(), [&text](const char* pStart) {
        return text.startsWith(QLatin1String(pStart));
    });
}

/// The text in which each escape, a backslash, U+ and four hexadecimal digits, is one character.
QString Unescaped(const QString& text)
{
    constexpr int EscapeLength = 7;
    QString result;
    for (int i = 0; i < text.size(); ++i)
    {
        bool isNumber = false;
        const QString escape = text.mid(i, EscapeLength);
        const int code = escape.startsWith(QLatin1String("\\U+")) && escape.size() == EscapeLength
                             ? escape.mid(3).toInt(&isNumber, 16)
                             : 0;
        result += isNumber ? QChar(code) : text[i];
        i += isNumber ? EscapeLength - 1 : 0;
    }
    return result;
}

/// The text with underscores for control characters; halves of pairs are replaced, too.
QString Readable(const QString& text)
{
    QString result;
    for (const char32_t code : text.toUcs4())
        result += QChar::category(code) == QChar::Other_Control ? QStringLiteral("_")
                                                                : QString::fromUcs4(&code, 1);
    return result;
}

QString FromBytes(const std::string& bytes, const std::string& codePage)
{
    const QByteArray raw = QByteArray::fromStdString(bytes);
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(raw, raw.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    const QByteArray page = QByteArray::fromStdString(codePage).toUpper();
    QTextCodec* pCodec =
        page == "ANSI_936" ? QTextCodec::codecForName("GB18030")
                           : QTextCodec::codecForName("windows-" + page.mid(page.indexOf('_') + 1));
    return pCodec != nullptr ? pCodec->toUnicode(raw) : QString::fromLatin1(raw);
}

}

int ColourNumberOf(int colour, int ofDefault)
{
    return colour == 0 ? ofDefault : ColourNumbers[static_cast<std::size_t>(colour)];
}

int NearestColour(int number, int rgb)
{
    constexpr int ByLayer = 256;
    if (rgb >= 0)
        return ColourLike(QColor(static_cast<QRgb>(rgb)));
    if (number <= 0 || number >= ByLayer)
        return 0;
    const auto* pExact = std::find(ColourNumbers.begin(), ColourNumbers.end(), number);
    return pExact != ColourNumbers.end() ? static_cast<int>(pExact - ColourNumbers.begin())
                                         : ColourLike(ColourOfNumber(number));
}

bool IsExactColour(int number, int rgb)
{
    if (rgb >= 0)
        return false;
    return number <= 0 || number >= 256 ||
           std::find(ColourNumbers.begin(), ColourNumbers.end(), number) != ColourNumbers.end();
}

const char* LineTypeOf(int style)
{
    return LineTypes[static_cast<std::size_t>(style)];
}

int NearestStyle(const std::string& lineType, const std::vector<double>& dashes)
{
    constexpr int Solid = 0;
    constexpr int Dashed = 1;
    constexpr int Dotted = 2;
    constexpr int DashDotted = 3;
    const QString name = QString::fromStdString(lineType).toUpper();
    if (StartsWith(name, {"DASHDOT", "CENTER", "DIVIDE", "BORDER", "PHANTOM", "ACAD_ISO04",
                          "ACAD_ISO05", "ACAD_ISO06", "ACAD_ISO08", "ACAD_ISO1"}))
        return DashDotted;
    if (StartsWith(name, {"DASHED", "HIDDEN", "ACAD_ISO02", "ACAD_ISO03"}))
        return Dashed;
    if (StartsWith(name, {"DOT", "ACAD_ISO07"}))
        return Dotted;
    const bool hasDot = std::find(dashes.begin(), dashes.end(), 0.0) != dashes.end();
    const bool hasDash =
        std::any_of(dashes.begin(), dashes.end(), [](double length) { return length > 0.0; });
    if (name == QLatin1String("CONTINUOUS") || (!hasDot && !hasDash))
        return Solid;
    return hasDot && hasDash ? DashDotted : hasDot ? Dotted : Dashed;
}

std::string InUpperCase(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return name;
}

int LineWeightOf(int width)
{
    return static_cast<int>(
        std::lround(LineWidths()[static_cast<std::size_t>(width)].millimetres * 100.0));
}

int NearestWidth(int lineWeight)
{
    if (lineWeight < 0)
        return Pen().width;
    const std::vector<LineWidth>& widths = LineWidths();
    const auto distance = [lineWeight](const LineWidth& width) {
        return std::abs(width.millimetres * 100.0 - lineWeight);
    };
    const auto nearest = std::min_element(
        widths.begin(), widths.end(),
        [&distance](const LineWidth& a, const LineWidth& b) { return distance(a) < distance(b); });
    return static_cast<int>(nearest - widths.begin());
}

std::string EncodeName(const std::wstring& name)
{
    const QString forbidden = QStringLiteral("<>/\\\":;?*|=,`");
    QString text;
    for (const QChar character : QString::fromStdWString(name))
    {
        const ushort code = character.unicode();
        if (code > 0x7e)
            text += QStringLiteral("\\U+%1").arg(code, 4, 16, QLatin1Char('0')).toUpper();
        else
            text += code < 0x20 || forbidden.contains(character) ? QLatin1Char('_') : character;
    }
    return text.toStdString();
}

std::wstring DecodeName(const std::string& bytes, const std::string& codePage)
{
    return Readable(Unescaped(FromBytes(bytes, codePage))).toStdWString();
}
