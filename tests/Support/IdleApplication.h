#pragma once

#include "Foundation/IApplication.h"

namespace vesk::test
{

/// An application that drops posted events. Installed during its lifetime. Test doubles override
/// what they need.
class IdleApplication : public IApplication
{
public:
    IdleApplication() : m_pPrevious(Get()) { Set(this); }
    ~IdleApplication() override { Set(m_pPrevious); }
    IdleApplication(const IdleApplication&) = delete;
    IdleApplication& operator=(const IdleApplication&) = delete;

    void PostEvent(OwnerPtr<IApplicationEvent>) override {}
    IApplicationWindow* GetMainWindow() const override { return nullptr; }

private:
    IApplication* m_pPrevious;
};

}
