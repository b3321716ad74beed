#pragma once

#include "Output/PaperPainter.h"

#include <QLabel>

/// A sheet of paper with a drawing on it, as large as there is room.
class PaperPreview final : public QLabel
{
    Q_OBJECT

public:
    /// The content is not owned and outlives this.
    explicit PaperPreview(const SketchContent& content);

    void Show(const PaperPlacement& placement);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void Draw();

    const SketchContent& m_content;
    PaperPlacement m_placement;
};
