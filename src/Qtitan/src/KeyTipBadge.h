#pragma once

#include <QLabel>

namespace Qtitan
{

/// The small plate with the keys of one key tip: a label, so that its text() are the keys.
class KeyTipBadge final : public QLabel
{
    Q_OBJECT

public:
    /// Shows the keys with the badge's centre at a point of the parent, moved as little as keeps
    /// the badge inside it.
    KeyTipBadge(const QString& keys, const QPoint& centre, QWidget* pParent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

} // namespace Qtitan
