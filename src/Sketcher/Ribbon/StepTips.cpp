#include "Ribbon/StepTips.h"

#include "Model/Sketch.h"

#include "HostUi/QtText.h"

#include <QToolButton>

using namespace vesk;

StepTips::StepTips(const std::vector<CommandEntry>& commands, const Sketch& sketch,
                   const QWidget& ribbon)
    : m_sketch(sketch)
{
    for (const CommandEntry& entry : commands)
    {
        auto* pButton = ribbon.findChild<QToolButton*>(ToQString(entry.id));
        if (pButton != nullptr && entry.id == L"Sketcher.Undo")
            m_tips.push_back({entry, pButton, &Sketch::GetUndoText});
        if (pButton != nullptr && entry.id == L"Sketcher.Redo")
            m_tips.push_back({entry, pButton, &Sketch::GetRedoText});
    }
    connect(&sketch, &Sketch::changed, this, &StepTips::Show);
    Show();
}

void StepTips::Show()
{
    for (const Tip& tip : m_tips)
    {
        CommandEntry entry = tip.entry;
        const std::wstring step = (m_sketch.*tip.getStep)();
        if (!step.empty())
            entry.toolTip = entry.caption + L"：" + step;
        tip.pButton->setToolTip(ToQString(entry.GetToolTip()));
    }
}
