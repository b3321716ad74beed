#include "View/IUiManager.h"

namespace vesk
{

namespace
{

IUiManager* s_pUiManager = nullptr;
IMainWindow* s_pMainWindow = nullptr;

}

IUiManager* IUiManager::Get()
{
    return s_pUiManager;
}

void IUiManager::Set(IUiManager* pManager)
{
    s_pUiManager = pManager;
}

IMainWindow* IMainWindow::GetMainWindow()
{
    return s_pMainWindow;
}

void IMainWindow::SetMainWindow(IMainWindow* pMainWindow)
{
    s_pMainWindow = pMainWindow;
}

}
