#include "NqUiQtImplFactory.h"

#include "Foundation/IDebugWarningDisplayer.h"

namespace vesk
{

NqUiQtImplFactory::NqUiQtImplFactory()
{
    m_pFactory = this;
}

/// There are no panes yet, so there is no property panel.
IPropertyWidget* NqUiQtImplFactory::GetPropertyWidget()
{
    return nullptr;
}

/// There is no warning dialog yet: the host's log is where warnings go.
OwnerPtr<IDebugWarningDialogDisplayer> NqUiQtImplFactory::CreateDebugWarningDialogDisplayer()
{
    return nullptr;
}

}
