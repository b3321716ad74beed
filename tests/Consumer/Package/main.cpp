// Shows a text on a label, made through the control factory of the installed package, and on a
// control of its own.

#include <Control/IControl.h>
#include <Control/LabelDefinition.h>
#include <Control/VeskIControlFactory.h>
#include <HostCore.h>
#include <HostUi/ControlLibrary.h>
#include <HostUi/UiApplication.h>
#include <VeskUiQtImpl/Control/Control.h>

#include <QApplication>
#include <QLabel>

#include <cstdio>

namespace
{

constexpr wchar_t CAPTION[] = L"装好了";

bool ShowsCaption()
{
    auto opDefinition = vesk::MakeOwner<vesk::LabelDefinition>(L"Consumer.Label");
    opDefinition->SetCaption(CAPTION);
    const vesk::OwnerPtr<vesk::IControl> opControl =
        vesk::VeskIControlFactory::Get()->CreateQtLabel(std::move(opDefinition));
    const auto* pLabel = dynamic_cast<const QLabel*>(opControl.Get());
    return pLabel != nullptr && pLabel->text() == QString::fromWCharArray(CAPTION) &&
           pLabel->objectName() == QLatin1String("Consumer.Label");
}

/// A control written outside the library: the host treats it like any other.
class Dial final : public vesk::Control
{
public:
    vesk::IControlDefinition* GetControlDefinition() const override { return &m_definition; }
    void UpdateStatus() override { m_isEnabled = m_definition.IsEnabled(); }

    bool IsEnabled() const { return m_isEnabled; }
    void Disable() { m_definition.SetEnabled(false); }

private:
    mutable vesk::LabelDefinition m_definition{L"Consumer.Dial"};
    bool m_isEnabled = true;
};

bool FollowsAsAControl()
{
    auto opDial = vesk::MakeOwner<Dial>();
    Dial& dial = *opDial;
    const vesk::OwnerPtr<vesk::IControl> opControl = std::move(opDial);
    dial.Disable();
    opControl->UpdateStatus();
    return !dial.IsEnabled() && opControl->GetControlDefinition()->GetId() == L"Consumer.Dial";
}

}

int main(int argc, char* argv[])
{
    QApplication qtApplication(argc, argv);
    vesk::HostCore host;
    vesk::UiApplication application;
    {
        vesk::ControlLibrary library;
        if (!library.IsLoaded() || vesk::VeskIControlFactory::Get() == nullptr)
        {
            std::fprintf(stderr, "no control library: %s\n", qPrintable(library.GetError()));
            return 1;
        }
        if (!ShowsCaption())
        {
            std::fprintf(stderr, "the label does not show its caption\n");
            return 1;
        }
        if (!FollowsAsAControl())
        {
            std::fprintf(stderr, "the program's own control does not follow its definition\n");
            return 1;
        }
    }
    if (vesk::VeskIControlFactory::Get() != nullptr)
    {
        std::fprintf(stderr, "the library is gone, its factory is not\n");
        return 1;
    }
    std::puts("the label shows its caption");
    return 0;
}
