#pragma once

#include <QObject>

namespace vesk
{

/// Forwards keys that arrive in a list or menu that has already closed.
///
/// A popup grabs the keyboard, and until the window system learns that it has closed it still
/// delivers keys to the popup. The user means the widget that has the focus by then. The rest of
/// the key that closed the popup stays there: its release is meant for no one else.
class ClosedPopupKeys final : public QObject
{
public:
    /// Watches the whole application while it lives.
    ClosedPopupKeys();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    /// Whether the popup was already closed when its last key was announced.
    bool m_isLate = false;
};

}
