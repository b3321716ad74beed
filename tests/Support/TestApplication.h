#pragma once

#include "Support/IdleApplication.h"

#include <QObject>

namespace vesk::test
{

/// An application that posts through Qt.
class TestApplication final : public QObject, public IdleApplication
{
public:
    void PostEvent(OwnerPtr<IApplicationEvent> opEvent) override;
    IApplicationWindow* GetMainWindow() const override { return m_pMainWindow; }

    /// Sets the application's window (not owned); null, the initial value, for none.
    void SetMainWindow(IApplicationWindow* pMainWindow) { m_pMainWindow = pMainWindow; }

    /// How many events to refresh the controls were posted.
    int GetStatusUpdateCount() const { return m_statusUpdateCount; }

protected:
    void customEvent(QEvent* pEvent) override;

private:
    IApplicationWindow* m_pMainWindow = nullptr;
    int m_statusUpdateCount = 0;
};

}
