#pragma once

#include <QFrame>
#include <QString>

class QLabel;
struct UnsavedWork;

/// Offers unsaved work of an earlier session. It never takes the focus by itself; Tab and the
/// underlined letters reach its buttons.
class RecoveryBar final : public QFrame
{
    Q_OBJECT

public:
    explicit RecoveryBar(QWidget* pParent = nullptr);

    /// Shows the offer. `caption` names the last command, `others` counts further offers.
    void Offer(const UnsavedWork& work, const QString& caption, int others);

signals:
    void goOnRequested();  ///< Continue with it.
    void lookRequested();  ///< Only look at it.
    void leaveRequested(); ///< Never offer it again.
    void postponed();      ///< Offer it again at the next start.

private:
    QLabel* m_pText;
};
