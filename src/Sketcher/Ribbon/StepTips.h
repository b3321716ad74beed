#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QToolButton>

#include <string>

class Sketch;

/// Names the step in the tool tips of the buttons that undo or redo it: "撤销：直线 (Ctrl+Z)".
class StepTips final : public QObject
{
    Q_OBJECT

public:
    /// The buttons are found in the window by their ids; without one there is nothing to name. The
    /// sketch is not owned and outlives this.
    StepTips(const Sketch& sketch, const QWidget& window);

private:
    /// A button and what its tool tip says while there is no step.
    struct Tip
    {
        QPointer<QToolButton> pButton;
        QString plain;
    };

    static Tip Find(const QWidget& window, const QString& id);
    static void Show(const Tip& tip, const std::wstring& step);
    void Update();

    const Sketch& m_sketch;
    const Tip m_undo;
    const Tip m_redo;
};
