#include "Ribbon/StepTips.h"

#include "Model/Sketch.h"
#include "Model/UiText.h"

#include "HostUi/QtText.h"

StepTips::StepTips(const Sketch& sketch, const QWidget& window)
    : m_sketch(sketch), m_undo(Find(window, QStringLiteral("Sketcher.Undo"))),
      m_redo(Find(window, QStringLiteral("Sketcher.Redo")))
{
    connect(&sketch, &Sketch::changed, this, &StepTips::Update);
    Update();
}

StepTips::Tip StepTips::Find(const QWidget& window, const QString& id)
{
    auto* pButton = window.findChild<QToolButton*>(id);
    return {pButton, pButton != nullptr ? pButton->toolTip() : QString()};
}

/// The keys at the end of the plain tip stay.
void StepTips::Show(const Tip& tip, const std::wstring& step)
{
    if (tip.pButton == nullptr)
        return;
    const int keys = tip.plain.lastIndexOf(QStringLiteral(" ("));
    const QString named = "%1：%2"_tr.arg(tip.pButton->text(), vesk::ToQString(Tr(step))) +
                          (keys < 0 ? QString() : tip.plain.mid(keys));
    const QString& text = step.empty() ? tip.plain : named;
    // Telling the button the same again would only cost an event, after each of many equal steps.
    if (text != tip.pButton->toolTip())
        tip.pButton->setToolTip(text);
}

void StepTips::Update()
{
    Show(m_undo, m_sketch.GetUndoText());
    Show(m_redo, m_sketch.GetRedoText());
}
