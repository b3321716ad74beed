#include "Support/TestWindow.h"

namespace vesk::test
{

TestWindow::TestWindow()
    : m_pPreviousManager(IUiManager::Get()), m_pPreviousWindow(IMainWindow::GetMainWindow()),
      m_pNamedWindow(this), m_windowId(winId())
{
    resize(600, 400);
    IUiManager::Set(this);
    IMainWindow::SetMainWindow(this);
}

TestWindow::~TestWindow()
{
    IUiManager::Set(m_pPreviousManager);
    IMainWindow::SetMainWindow(m_pPreviousWindow);
}

void TestWindow::SetManagerInstalled(bool isInstalled)
{
    IUiManager::Set(isInstalled ? this : nullptr);
}

}
