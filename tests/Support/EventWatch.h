#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMetaEnum>
#include <QObject>
#include <QStringList>

namespace vesk::test
{

/// Records the events of the whole program, to tell whether it sleeps.
class EventWatch final : public QObject
{
public:
    /// Leaves out the events of what the test itself needs: the children of an object, if there is
    /// one. It is not owned and outlives this.
    explicit EventWatch(const QObject* pDriver) : m_pDriver(pDriver)
    {
        qApp->installEventFilter(this);
        m_clock.start();
    }

    /// True if no event was delivered since this was created, or since it was last asked so long
    /// after that. To be asked again and again.
    bool IsQuietFor(qint64 milliseconds)
    {
        if (!m_clock.hasExpired(milliseconds))
            return false;
        m_last = m_events;
        m_events.clear();
        m_clock.start();
        return m_last.isEmpty();
    }

    /// What kept it from being quiet the last time: "Timer to QTimer".
    const QStringList& GetLast() const { return m_last; }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        const bool isDrivers = m_pDriver != nullptr && pWatched->parent() == m_pDriver;
        if (!isDrivers && !IsOnItsWay(pWatched, *pEvent))
            m_events << QMetaEnum::fromType<QEvent::Type>().valueToKey(pEvent->type()) +
                            QStringLiteral(" to ") + pWatched->metaObject()->className();
        return false;
    }

private:
    /// On Windows the event dispatcher is told by an event that a timer is due, also by one of the
    /// driver. The timer's own event, which follows, is what counts.
    static bool IsOnItsWay(const QObject* pWatched, const QEvent& event)
    {
        const bool isTimer =
            event.type() == QEvent::Timer || event.type() == QEvent::ZeroTimerEvent;
        return isTimer && pWatched == QAbstractEventDispatcher::instance();
    }

    const QObject* m_pDriver;
    QElapsedTimer m_clock;
    QStringList m_events;
    QStringList m_last;
};

}
