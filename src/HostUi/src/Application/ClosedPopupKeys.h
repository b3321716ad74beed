#pragma once

#include <QObject>

namespace vesk
{

/// Passes on the keys that arrive in a list or menu which has closed already.
///
/// A popup grabs the keyboard, and until the window system has heard of its closing it goes on
/// naming the popup as the receiver. Whoever types means what has the focus by then. The key that
/// closed the popup stays there: its second half is no key for others.
class ClosedPopupKeys final : public QObject
{
public:
    /// Watches the whole application while it lives.
    ClosedPopupKeys();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    /// Whether the popup was closed when its last key was announced.
    bool m_isLate = false;
};

}
