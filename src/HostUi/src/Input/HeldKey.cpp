#include "Input/HeldKey.h"

#include "Command/ActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Input/EscapeKey.h"
#include "Input/KeptKey.h"
#include "View/IUiDocumentViewManager.h"

#include <QKeyEvent>

namespace vesk
{
namespace
{

/// Delivers a held Escape: ends the input or, if there is none, goes to the action.
void TakeEscape()
{
    if (TemporaryDimensionMgr::GetInstance()->IsInputting())
        TemporaryDimensionMgr::GetInstance()->EndInput();
    else
        ActionManager::ProcessEscape(UiDocumentViewManager::FindCurrentView());
}

}

void HoldKey(QKeyEvent& event, EscapeKey& escape, const std::function<void(QKeyEvent&)>& deliver)
{
    event.accept();
    if (event.key() == Qt::Key_Escape)
    {
        // Checked now, because its release will not wait.
        if (escape.Press(event))
            ActionManager::HoldInput(&TakeEscape);
        return;
    }
    ActionManager::HoldInput([deliver, kept = KeptKey(event)] { kept.Deliver(deliver); });
}

}
