#pragma once

#include <QColor>

#include <optional>
#include <string>
#include <vector>

/// How an entity is drawn: indices into the tables below.
struct Pen
{
    int style = 0;
    int colour = 0;
};

struct LineStyle
{
    std::wstring name;    ///< In journals and files.
    std::wstring caption; ///< On screen.
    Qt::PenStyle style;
};

struct LineColour
{
    std::wstring name;
    std::wstring caption;
    QColor colour; ///< Invalid for the palette's text colour.
};

/// All styles and colours; a new drawing starts with the first of each.
const std::vector<LineStyle>& LineStyles();
const std::vector<LineColour>& LineColours();

/// One of the two parts of a pen, as the journal and the user know it.
struct PenPart
{
    std::wstring name;
    int Pen::*member;
    std::vector<std::wstring> valueNames;
    std::vector<std::wstring> valueCaptions;

    /// The value of that name; nothing if there is none.
    std::optional<int> Find(const std::wstring& valueName) const;
};

/// "style" and "colour".
const std::vector<PenPart>& PenParts();
