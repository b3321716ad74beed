#include "Model/Pen.h"

#include "Model/UiText.h"

#include <algorithm>

namespace
{

template <class Value>
PenPart MakePart(const std::wstring& name, int Pen::*member, const std::vector<Value>& values,
                 std::wstring (*getCaption)(std::size_t))
{
    PenPart part{name, member, {}, getCaption};
    for (const Value& value : values)
        part.valueNames.push_back(value.name);
    return part;
}

std::wstring CaptionOfStyle(std::size_t index)
{
    return Tr(LineStyles()[index].caption);
}

std::wstring CaptionOfColour(std::size_t index)
{
    return Tr(LineColours()[index].caption);
}

std::wstring CaptionOfWidth(std::size_t index)
{
    return QStringLiteral("%L1 mm").arg(LineWidths()[index].millimetres).toStdWString();
}

}

const std::vector<LineStyle>& LineStyles()
{
    static const std::vector<LineStyle> s_styles = {
        {L"solid", L"实线"_source, Qt::SolidLine},
        {L"dashed", L"虚线"_source, Qt::DashLine},
        {L"dotted", L"点线"_source, Qt::DotLine},
        {L"dashdot", L"点画线"_source, Qt::DashDotLine},
    };
    return s_styles;
}

const std::vector<LineColour>& LineColours()
{
    static const std::vector<LineColour> s_colours = {
        {L"default", L"默认"_source, QColor()},
        {L"red", L"红色"_source, QColor(0xd3, 0x2f, 0x2f)},
        {L"orange", L"橙色"_source, QColor(0xe0, 0x7b, 0x12)},
        {L"green", L"绿色"_source, QColor(0x2e, 0x8b, 0x3d)},
        {L"blue", L"蓝色"_source, QColor(0x2f, 0x7d, 0xe1)},
        {L"magenta", L"洋红"_source, QColor(0xb0, 0x3a, 0xb0)},
        {L"grey", L"灰色"_source, QColor(0x80, 0x86, 0x8b)},
    };
    return s_colours;
}

const std::vector<LineWidth>& LineWidths()
{
    static const std::vector<LineWidth> s_widths = {
        {L"0.13", 0.13}, {L"0.18", 0.18}, {L"0.25", 0.25}, {L"0.35", 0.35}, {L"0.5", 0.5},
        {L"0.7", 0.7},   {L"1", 1.0},     {L"1.4", 1.4},   {L"2", 2.0},
    };
    return s_widths;
}

bool operator==(const Pen& a, const Pen& b)
{
    return a.style == b.style && a.colour == b.colour && a.width == b.width && a.layer == b.layer;
}

std::optional<int> PenPart::Find(const std::wstring& valueName) const
{
    const auto found = std::find(valueNames.begin(), valueNames.end(), valueName);
    if (found == valueNames.end())
        return std::nullopt;
    return static_cast<int>(found - valueNames.begin());
}

const std::vector<PenPart>& PenParts()
{
    static const std::vector<PenPart> s_parts = {
        MakePart(L"style", &Pen::style, LineStyles(), &CaptionOfStyle),
        MakePart(L"colour", &Pen::colour, LineColours(), &CaptionOfColour),
        MakePart(L"width", &Pen::width, LineWidths(), &CaptionOfWidth),
    };
    return s_parts;
}

const PenPart& ColourPart()
{
    static const PenPart& s_colour =
        *std::find_if(PenParts().begin(), PenParts().end(),
                      [](const PenPart& part) { return part.member == &Pen::colour; });
    return s_colour;
}
