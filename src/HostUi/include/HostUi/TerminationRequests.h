#pragma once

#include "HostUi/HostUiExport.h"

#include <QObject>

#include <memory>

namespace vesk
{

/// Hears of the operating system's requests to end: SIGTERM, SIGINT and SIGHUP, on Windows those of
/// the console. The process goes on; whoever listens ends it.
///
/// What the process was started to ignore stays ignored. One such object at a time.
class VESK_HOST_UI_API TerminationRequests final : public QObject
{
    Q_OBJECT

public:
    TerminationRequests();

    /// From now on requests end the process at once, as ever.
    ~TerminationRequests() override;

signals:
    /// Sent from the event loop.
    void requested();

private:
    class Listener;

    std::unique_ptr<Listener> m_pListener;
};

/// Has a write that fails say so, where the operating system would end the process for it: beyond
/// the greatest size of a file, or when nobody reads what is written.
VESK_HOST_UI_API void SurviveFailedWrites();

}
