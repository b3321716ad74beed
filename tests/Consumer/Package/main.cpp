// Shows a text on a label, made through the control factory of the installed package.

#include <Control/IControl.h>
#include <Control/LabelDefinition.h>
#include <Control/VeskIControlFactory.h>
#include <HostCore.h>
#include <HostUi/ControlLibrary.h>
#include <HostUi/UiApplication.h>

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
    }
    if (vesk::VeskIControlFactory::Get() != nullptr)
    {
        std::fprintf(stderr, "the library is gone, its factory is not\n");
        return 1;
    }
    std::puts("the label shows its caption");
    return 0;
}
