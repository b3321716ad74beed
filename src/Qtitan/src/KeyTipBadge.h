#pragma once

#include <QLabel>

namespace Qtitan
{

/// The badge with the keys of one key tip: a label, so that text() returns the keys.
class KeyTipBadge final : public QLabel
{
    Q_OBJECT

public:
    /// Shows the badge centred at a point of the parent, moved as little as necessary to stay
    /// inside the parent.
    KeyTipBadge(const QString& keys, const QPoint& centre, QWidget* pParent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

} // namespace Qtitan
