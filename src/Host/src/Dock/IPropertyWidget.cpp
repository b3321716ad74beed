#include "Dock/IPropertyWidget.h"

namespace vesk
{

std::wstring IPropertyWidget::GetTypeName()
{
    return L"PropertyWidget";
}

}
