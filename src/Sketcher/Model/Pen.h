#pragma once

#include <QColor>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// How an entity is drawn, and on which layer.
struct Pen
{
    int style = 0;  ///< Index into LineStyles().
    int colour = 0; ///< Index into LineColours(); 0 for the layer's colour.
    int width = 2;  ///< Index into LineWidths().
    int layer = 0;  ///< The id of a layer.
};

bool operator==(const Pen& a, const Pen& b);

struct LineStyle
{
    std::wstring name;    ///< In journals and files.
    std::wstring caption; ///< On screen; a source text.
    Qt::PenStyle style;
};

struct LineColour
{
    std::wstring name;
    std::wstring caption; ///< On screen; a source text.
    QColor colour;        ///< Invalid for the palette's text colour.
};

struct LineWidth
{
    std::wstring name;  ///< In journals and files: the width in millimetres, such as "0.25".
    double millimetres; ///< On paper.
};

/// All styles, colours and widths; a new drawing starts with those of a default Pen.
const std::vector<LineStyle>& LineStyles();
const std::vector<LineColour>& LineColours();
const std::vector<LineWidth>& LineWidths();

/// A part of a pen with a fixed set of values, as the journal and the user know it.
struct PenPart
{
    std::wstring name;
    int Pen::*member;
    std::vector<std::wstring> valueNames;

    /// What the value of that index is called on screen, in the language of the moment.
    std::wstring (*getCaption)(std::size_t index);

    /// The value of that name; nothing if there is none.
    std::optional<int> Find(const std::wstring& valueName) const;
};

/// "style", "colour" and "width".
const std::vector<PenPart>& PenParts();

/// The one of these that layers have, too.
const PenPart& ColourPart();
