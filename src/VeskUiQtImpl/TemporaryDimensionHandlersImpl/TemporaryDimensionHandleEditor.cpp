#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandleEditor.h"

#include <limits>

namespace vesk
{

TemporaryDimensionHandleEditor::TemporaryDimensionHandleEditor(QWidget* pParent)
    : QLineEdit(pParent), m_isViewInput(true)
{
    // Text is never truncated: what is delivered is what was typed or set.
    setMaxLength(std::numeric_limits<int>::max());
}

}
