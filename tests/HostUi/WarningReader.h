#pragma once

#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <functional>
#include <utility>

namespace vesk::test
{

/// A user who closes the dialog of a debug warning after something has happened behind it.
class WarningReader final : public NqUiInterfaceFactory
{
public:
    WarningReader() { m_pFactory = this; }
    ~WarningReader() override { m_pFactory = nullptr; }

    IPropertyWidget* GetPropertyWidget() override { return nullptr; }

    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        return MakeOwner<Displayer>(*this);
    }

    std::function<void()> whileShown;

private:
    class Displayer final : public IDebugWarningDialogDisplayer
    {
    public:
        explicit Displayer(WarningReader& reader) : m_reader(reader) {}

        bool Display(const std::string&, int, const std::string&, const std::wstring&,
                     const std::wstring&, const std::wstring&) override
        {
            if (m_reader.whileShown)
                std::exchange(m_reader.whileShown, nullptr)();
            return true;
        }

    private:
        WarningReader& m_reader;
    };
};

}
