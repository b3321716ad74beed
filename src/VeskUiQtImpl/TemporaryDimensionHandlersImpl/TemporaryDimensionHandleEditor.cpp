#include "TemporaryDimensionHandlersImpl/TemporaryDimensionHandleEditor.h"

namespace vesk
{

TemporaryDimensionHandleEditor::TemporaryDimensionHandleEditor(QWidget* pParent)
    : QLineEdit(pParent), m_isViewInput(true)
{}

}
