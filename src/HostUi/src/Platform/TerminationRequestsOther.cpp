#include "HostUi/TerminationRequests.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>

namespace vesk
{
namespace
{

constexpr std::array<int, 3> Signals = {SIGTERM, SIGINT, SIGHUP};

/// The pipe end that the handler writes to; a signal handler may do little more.
int s_writingEnd = -1;

void OnSignal(int)
{
    const int error = errno;
    const char byte = 0;
    // A full pipe already holds enough requests.
    [[maybe_unused]] const ssize_t count = ::write(s_writingEnd, &byte, 1);
    errno = error;
}

}

class TerminationRequests::Listener
{
public:
    explicit Listener(TerminationRequests& requests)
    {
        if (::pipe2(m_ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        s_writingEnd = m_ends[1];
        m_pNotifier = std::make_unique<QSocketNotifier>(m_ends[0], QSocketNotifier::Read);
        QObject::connect(m_pNotifier.get(), &QSocketNotifier::activated, &requests,
                         [this, &requests] {
                             Drain();
                             emit requests.requested();
                         });
        for (std::size_t i = 0; i < Signals.size(); ++i)
            Catch(Signals[i], m_before[i]);
    }

    ~Listener()
    {
        if (m_pNotifier == nullptr)
            return;
        for (std::size_t i = 0; i < Signals.size(); ++i)
            ::sigaction(Signals[i], &m_before[i], nullptr);
        s_writingEnd = -1;
        m_pNotifier.reset();
        for (const int end : m_ends)
            ::close(end);
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

private:
    static void Catch(int signal, struct sigaction& before)
    {
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler == SIG_IGN)
            return;
        struct sigaction action = {};
        action.sa_handler = &OnSignal;
        action.sa_flags = SA_RESTART;
        ::sigaction(signal, &action, nullptr);
    }

    void Drain() const
    {
        std::array<char, 64> bytes{};
        while (::read(m_ends[0], bytes.data(), bytes.size()) > 0)
        {}
    }

    std::array<int, 2> m_ends = {-1, -1};
    std::array<struct sigaction, Signals.size()> m_before = {};
    std::unique_ptr<QSocketNotifier> m_pNotifier;
};

TerminationRequests::TerminationRequests() : m_pListener(std::make_unique<Listener>(*this)) {}

TerminationRequests::~TerminationRequests() = default;

void SurviveFailedWrites()
{
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

}
