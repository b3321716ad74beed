#pragma once

#include "HostUi/HostUiExport.h"

#include <QObject>

#include <memory>

namespace vesk
{

/// Receives the operating system's requests to terminate: SIGTERM, SIGINT and SIGHUP, on Windows
/// those of the console. The process goes on; the receiver of the signal ends it.
///
/// Signals that the process was started to ignore stay ignored. Only one such object at a time.
class VESK_HOST_UI_API TerminationRequests final : public QObject
{
    Q_OBJECT

public:
    TerminationRequests();

    /// From now on requests end the process at once, as usual.
    ~TerminationRequests() override;

signals:
    /// Emitted from the event loop.
    void requested();

private:
    class Listener;

    std::unique_ptr<Listener> m_pListener;
};

/// Makes failed writes return an error where the operating system would otherwise end the process:
/// beyond the file size limit, or on a pipe that has no reader.
VESK_HOST_UI_API void SurviveFailedWrites();

}
