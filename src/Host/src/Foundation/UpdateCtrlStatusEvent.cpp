#include "Foundation/UpdateCtrlStatusEvent.h"

namespace vesk
{

namespace
{

int s_waitingCount = 0;
IControlStatusRefresher* s_pRefresher = nullptr;

}

UpdateCtrlStatusEvent::UpdateCtrlStatusEvent()
{
    ++s_waitingCount;
}

UpdateCtrlStatusEvent::~UpdateCtrlStatusEvent()
{
    if (m_isWaiting)
        --s_waitingCount;
}

void UpdateCtrlStatusEvent::Emit()
{
    if (!m_isWaiting)
        return;
    m_isWaiting = false;
    --s_waitingCount;
    if (s_waitingCount == 0 && s_pRefresher != nullptr)
        s_pRefresher->RefreshControls();
}

void IControlStatusRefresher::Set(IControlStatusRefresher* pRefresher)
{
    s_pRefresher = pRefresher;
}

}
