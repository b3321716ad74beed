#pragma once

#include "Warnings/DebugMessageMgr.h"
#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <functional>
#include <utility>

namespace vesk::test
{

/// Replaces the warning dialog: while the first warning is on screen something happens, as in the
/// event loop of a dialog. Create it after the host, which it tells that a user is present.
class WarningScript final : public NqUiInterfaceFactory
{
public:
    WarningScript() : m_pPrevious(std::exchange(m_pFactory, this))
    {
        DebugMessageMgr::GetDebugMessageMgr()->SetAttended(true);
    }

    ~WarningScript() override
    {
        DebugMessageMgr::GetDebugMessageMgr()->SetAttended(false);
        m_pFactory = m_pPrevious;
    }

    IPropertyWidget* GetPropertyWidget() override { return nullptr; }

    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        return MakeOwner<Displayer>(*this);
    }

    /// What happens while the next warning is on screen.
    void SetAct(std::function<void()> act) { m_act = std::move(act); }

    int GetShownCount() const { return m_shownCount; }

private:
    class Displayer final : public IDebugWarningDialogDisplayer
    {
    public:
        explicit Displayer(WarningScript& script) : m_script(script) {}

        bool Display(const std::string&, int, const std::string&, const std::wstring&,
                     const std::wstring&, const std::wstring&) override
        {
            ++m_script.m_shownCount;
            if (const auto act = std::exchange(m_script.m_act, nullptr))
                act();
            return true;
        }

    private:
        WarningScript& m_script;
    };

    NqUiInterfaceFactory* m_pPrevious;
    std::function<void()> m_act;
    int m_shownCount = 0;
};

}
