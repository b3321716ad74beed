// Whether a button is constructed, changed and destroyed for as little as a tool button written by
// hand: with an icon, a text, a tip and a check mark on an action of its own.

#include "Buttons.h"
#include "Harness/Question.h"

#include <QAction>
#include <QCoreApplication>
#include <QPixmap>

#include <memory>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

using Icons = std::shared_ptr<const IconFiles>;

void AskAboutConstruction(const Icons& pIcons)
{
    Ask("P2 construct 1,000 buttons, 1,000 icon files")
        .Ours([pIcons](Stopwatch& stopwatch) {
            pIcons->Touch();
            QWidget parent;
            auto definitions = MakeDefinitions(*pIcons);
            std::vector<OwnerPtr<QtButton>> buttons;
            stopwatch.Time([&] { buttons = Construct(definitions, parent); });
        })
        .Limit([pIcons](Stopwatch& stopwatch) {
            QWidget parent;
            auto all = MakeData(*pIcons);
            std::vector<std::unique_ptr<PlainButton>> buttons;
            stopwatch.Time([&] { buttons = ConstructPlain(all, parent); });
        })
        .TimeAtMost(1.01);
}

/// Of buttons that have been shown, with no event waiting for them: to drop one takes a search in
/// all that wait.
void AskAboutDestruction(const Icons& pIcons, bool isShared)
{
    Ask(isShared ? "P3 destroy 1,000 buttons, 64 icon files"
                 : "P3 destroy 1,000 buttons, 1,000 icon files")
        .Ours([pIcons, isShared](Stopwatch& stopwatch) {
            if (!isShared)
                pIcons->Touch();
            QWidget parent;
            auto definitions = MakeDefinitions(*pIcons);
            auto buttons = Construct(definitions, parent);
            parent.grab();
            QCoreApplication::sendPostedEvents();
            stopwatch.Time([&] { buttons.clear(); });
        })
        .Limit([pIcons](Stopwatch& stopwatch) {
            QWidget parent;
            auto all = MakeData(*pIcons);
            auto buttons = ConstructPlain(all, parent);
            parent.grab();
            QCoreApplication::sendPostedEvents();
            stopwatch.Time([&] { buttons.clear(); });
        })
        .TimeAtMost(isShared ? 0.60 : 1.05);
}

/// A button of either kind, shown in a window, and captions to change to. The captions are those of
/// the host, so that both sides have to convert them.
struct Changed
{
    explicit Changed(const IconFiles& icons)
    {
        auto opDefinition = MakeDefinition(0, icons[0]);
        pDefinition = opDefinition.Get();
        opButton = MakeOwner<QtButton>(std::move(opDefinition), &window);
        pPlain = new PlainButton(DataOf(0, icons[0]), &window);
        for (int i = 0; i < 2; ++i)
            captions.push_back(ToWide(CaptionOf(i + 1)));
        window.show();
    }

    QWidget window;
    CommandButtonDefinition* pDefinition;
    OwnerPtr<QtButton> opButton;
    PlainButton* pPlain;
    std::vector<std::wstring> captions;
};

constexpr int Changes = 1000;

void AskAboutChanges(const Icons& pIcons)
{
    Ask("P4 caption of a button")
        .Ours([pIcons](Stopwatch& stopwatch) {
            Changed changed(*pIcons);
            stopwatch.Time([&] {
                for (std::size_t i = 0; i < Changes; ++i)
                    changed.pDefinition->SetCaption(changed.captions[i % 2]);
            });
        })
        .Limit([pIcons](Stopwatch& stopwatch) {
            Changed changed(*pIcons);
            stopwatch.Time([&] {
                for (std::size_t i = 0; i < Changes; ++i)
                    changed.pPlain->defaultAction()->setText(
                        QString::fromStdWString(changed.captions[i % 2]));
            });
        })
        .TimeAtMost(0.75);
    Ask("P4 check mark of a button")
        .Ours([pIcons](Stopwatch& stopwatch) {
            Changed changed(*pIcons);
            stopwatch.Time([&] {
                for (std::size_t i = 0; i < Changes; ++i)
                    changed.pDefinition->SetChecked(i % 2 == 0);
            });
        })
        .Limit([pIcons](Stopwatch& stopwatch) {
            Changed changed(*pIcons);
            stopwatch.Time([&] {
                for (std::size_t i = 0; i < Changes; ++i)
                    changed.pPlain->defaultAction()->setChecked(i % 2 == 0);
            });
        })
        .TimeAtMost(0.80);
}

/// Only compares a tool button with its definition, without any care.
class ComparingHandler final : public IControlDefinitionChangeEventHandler
{
public:
    ComparingHandler(const ICommandButtonDefinition& definition, const QToolButton& button)
        : m_definition(definition), m_button(button), m_iconPath(definition.GetIconPath())
    {}

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
            return;
        const QAction* pAction = m_button.defaultAction();
        m_differences += m_button.toolButtonStyle() != m_definition.GetButtonStyle();
        m_differences += m_definition.GetIconPath() != m_iconPath;
        m_differences += !IsSameText(pAction->text(), m_definition.GetCaption());
        m_differences += pAction->isChecked() != m_definition.IsChecked();
    }

private:
    const ICommandButtonDefinition& m_definition;
    const QToolButton& m_button;
    std::wstring m_iconPath;
    int m_differences = 0;
};

void AskAboutEchoes(const Icons& pIcons)
{
    Ask("P6 nothing changed, button")
        .Ours([pIcons](Stopwatch& stopwatch) {
            Changed changed(*pIcons);
            auto* pEvent = changed.pDefinition->GetControlDefinitionChangeEvent();
            stopwatch.Time([&] {
                for (int i = 0; i < Changes; ++i)
                    static_cast<ControlDefinitionChangeEvent*>(pEvent)->RaisePropertyChanged();
            });
        })
        .Limit([pIcons](Stopwatch& stopwatch) {
            Changed changed(*pIcons);
            ComparingHandler handler(*changed.pDefinition, *changed.opButton);
            auto* pEvent = changed.pDefinition->GetControlDefinitionChangeEvent();
            pEvent->Delete(changed.opButton.Get());
            pEvent->Add(&handler);
            stopwatch.Time([&] {
                for (int i = 0; i < Changes; ++i)
                    static_cast<ControlDefinitionChangeEvent*>(pEvent)->RaisePropertyChanged();
            });
            pEvent->Delete(&handler);
        })
        .InstructionsAtMost(1.5)
        .AllocationsAtMost(0);
}

}

void AskQuestions()
{
    const auto pFew = std::make_shared<const IconFiles>(64);
    const auto pMany = std::make_shared<const IconFiles>(Buttons);
    AskAboutConstruction(pMany);
    AskAboutDestruction(pFew, true);
    AskAboutDestruction(pMany, false);
    AskAboutChanges(pFew);
    AskAboutEchoes(pFew);
}
