#pragma once

#include "Ribbon/CommandEntry.h"

#include <QObject>

#include <vector>

class QToolButton;
class QWidget;
class Sketch;

/// Makes the tool tips of undo and redo name the step that they act on: "撤销：直线 (Ctrl+Z)".
class StepTips final : public QObject
{
    Q_OBJECT

public:
    /// `commands` describe the buttons, which are children of the ribbon. Sketch and ribbon are not
    /// owned and outlive this.
    StepTips(const std::vector<CommandEntry>& commands, const Sketch& sketch,
             const QWidget& ribbon);

private:
    struct Tip
    {
        CommandEntry entry;
        QToolButton* pButton;
        std::wstring (Sketch::*getStep)() const;
    };

    void Show();

    const Sketch& m_sketch;
    std::vector<Tip> m_tips;
};
