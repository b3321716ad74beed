// Whether a label follows its definition for as little as a label to which one writes by hand.

#include "Harness/Question.h"

#include "Control/LabelDefinition.h"
#include "HostUi/QtText.h"
#include "VeskUiQtImpl/Control/QtLabel.h"

#include <QLabel>
#include <QWidget>

#include <string>

using namespace vesk;

namespace
{

constexpr int Changes = 1000;

/// A label of either kind, shown in a window.
struct Labels
{
    Labels()
    {
        auto opDefinition = MakeOwner<LabelDefinition>(L"Label.Id");
        pDefinition = opDefinition.Get();
        pDefinition->SetCaption(captions[1]);
        opLabel = MakeOwner<QtLabel>(std::move(opDefinition), &window);
        pPlain = new QLabel(&window);
        pPlain->setText(ToQString(captions[1]));
        window.show();
    }

    /// Of the host, so that both sides have to convert them.
    const std::wstring captions[2] = {L"Length of the line", L"Length of the arc"};

    QWidget window;
    LabelDefinition* pDefinition;
    OwnerPtr<QtLabel> opLabel;
    QLabel* pPlain;
};

Side Changing(void (*change)(Labels&, int))
{
    return [change](Stopwatch& stopwatch) {
        Labels labels;
        stopwatch.Time([&] {
            for (int i = 0; i < Changes; ++i)
                change(labels, i);
        });
    };
}

/// Only compares a label with its definition, without any care.
class ComparingHandler final : public IControlDefinitionChangeEventHandler
{
public:
    ComparingHandler(const ILabelDefinition& definition, const QLabel& label)
        : m_definition(definition), m_label(label)
    {}

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
            return;
        m_differences += !IsSameText(m_label.text(), m_definition.GetCaption());
        m_differences += m_label.isHidden() == m_definition.IsVisible();
        m_differences += m_label.isEnabled() != m_definition.IsEnabled();
    }

private:
    const ILabelDefinition& m_definition;
    const QLabel& m_label;
    int m_differences = 0;
};

void Echo(Labels& labels, int)
{
    auto* pEvent = labels.pDefinition->GetControlDefinitionChangeEvent();
    static_cast<ControlDefinitionChangeEvent*>(pEvent)->RaisePropertyChanged();
}

void CompareOnly(Stopwatch& stopwatch)
{
    Labels labels;
    ComparingHandler handler(*labels.pDefinition, *labels.opLabel);
    auto* pEvent = labels.pDefinition->GetControlDefinitionChangeEvent();
    pEvent->Delete(labels.opLabel.Get());
    pEvent->Add(&handler);
    stopwatch.Time([&] {
        for (int i = 0; i < Changes; ++i)
            Echo(labels, i);
    });
    pEvent->Delete(&handler);
}

}

void AskQuestions()
{
    Ask("P4 caption of a label")
        .Ours(Changing(
            [](Labels& labels, int i) { labels.pDefinition->SetCaption(labels.captions[i % 2]); }))
        .Limit(Changing([](Labels& labels, int i) {
            labels.pPlain->setText(QString::fromStdWString(labels.captions[i % 2]));
        }))
        .TimeAtMost(0.97)
        .InstructionsAtMost(0.84);
    Ask("P5 enabled state of a label")
        .Ours(Changing([](Labels& labels, int i) { labels.pDefinition->SetEnabled(i % 2 != 0); }))
        .Limit(Changing([](Labels& labels, int i) { labels.pPlain->setEnabled(i % 2 != 0); }))
        .TimeAtMost(1.10);
    Ask("P5 visibility of a label")
        .Ours(Changing([](Labels& labels, int i) { labels.pDefinition->SetVisible(i % 2 != 0); }))
        .Limit(Changing([](Labels& labels, int i) { labels.pPlain->setVisible(i % 2 != 0); }))
        .TimeAtMost(1.15);
    Ask("P6 nothing changed, label")
        .Ours(Changing(&Echo))
        .Limit(&CompareOnly)
        .InstructionsAtMost(1.6)
        .AllocationsAtMost(0);
}
