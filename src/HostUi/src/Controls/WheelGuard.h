#pragma once

#include <QObject>

class QComboBox;

namespace vesk
{

/// Keeps the wheel from changing a combo box that does not have the focus: a user who scrolls a
/// panel with the pointer over the box means the panel, so the event is passed to the parent. Nor
/// does the wheel give the box the focus. With the focus it works as usual.
class WheelGuard final : public QObject
{
public:
    /// Guards the widget if it is a combo box, for as long as it lives.
    static void Protect(QWidget& widget);

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    explicit WheelGuard(QComboBox& box);
};

}
