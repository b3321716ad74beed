#pragma once

#include <QToolButton>

namespace Qtitan
{

/// The strip with an arrow at an edge of a page that hides something; covers what is beneath it.
class RibbonScrollButton final : public QToolButton
{
    Q_OBJECT

public:
    RibbonScrollButton(Qt::ArrowType type, const QString& text, QWidget* pParent);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

} // namespace Qtitan
