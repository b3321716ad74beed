#include "Input/EditorWidth.h"

#include "Dimension/TemporaryDimensionStyle.h"

#include <QFontMetrics>
#include <QLineEdit>

#include <algorithm>

namespace vesk
{
namespace
{

/// Border, margins and cursor of the editor.
constexpr int Frame = 16;

/// The part of the view that stays free on either side.
constexpr int ViewMargin = 4;

}

int FindEditorWidth(QLineEdit& editor, const QWidget& view)
{
    editor.ensurePolished();
    const int wanted = editor.fontMetrics().horizontalAdvance(editor.text()) + Frame;
    const int width = std::min(wanted, view.width() - 2 * ViewMargin);
    return width > TemporaryDimensionStyle::OpeningEditorWidth ? width : 0;
}

}
