#pragma once

#include <QObject>

namespace Qtitan
{

/// Reports every mouse button press in the application while it is active. A part of the view may
/// be a native window, whose clicks the ribbon's own window never sees.
class ClickWatcher final : public QObject
{
    Q_OBJECT

public:
    explicit ClickWatcher(QObject* pParent);

    void setActive(bool isActive);

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

signals:
    void clicked();
};

} // namespace Qtitan
