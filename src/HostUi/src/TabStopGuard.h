#pragma once

#include <QAbstractButton>
#include <QList>
#include <QObject>
#include <QPointer>

namespace vesk
{

/// Keeps every box of a group reachable with Tab and the arrows. The toolkit makes one stop of a
/// group: right for radio buttons, of which one is chosen, but of boxes it leaves only the one
/// that had the focus last.
class TabStopGuard final : public QObject
{
public:
    /// Guards these buttons as long as `owner` lives.
    static void Protect(const QList<QAbstractButton*>& boxes, QObject& owner);

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    TabStopGuard(const QList<QAbstractButton*>& boxes, QObject& owner);

    QList<QPointer<QAbstractButton>> m_boxes;
};

}
