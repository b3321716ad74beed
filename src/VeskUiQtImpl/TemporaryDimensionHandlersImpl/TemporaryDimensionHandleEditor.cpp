#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandleEditor.h"

#include <limits>

namespace vesk
{

TemporaryDimensionHandleEditor::TemporaryDimensionHandleEditor(QWidget* pParent)
    : QLineEdit(pParent), m_isViewInput(true)
{
    // No text is cut off: what is delivered is what was typed or set.
    setMaxLength(std::numeric_limits<int>::max());
}

}
