#include "Recovery/Autosave.h"

#include "Model/Sketch.h"
#include "Recovery/Snapshot.h"

#include "Command/IActionManager.h"
#include "Replay/JournalReplayer.h"

#include <algorithm>
#include <utility>

using namespace vesk;

Autosave::Autosave(const Sketch& sketch, std::function<QString()> journal)
    : m_sketch(sketch), m_journal(std::move(journal)), m_digest(sketch.GetDigest()),
      m_savedDigest(m_digest)
{
    m_sinceLast.start();
    JournalManager::GetInstance().AddObserver(this);
}

Autosave::~Autosave()
{
    JournalManager::GetInstance().RemoveObserver(this);
    if (m_pWriting != nullptr)
        m_pWriting->wait();
}

void Autosave::SetInterval(int minutes)
{
    m_minutes = minutes;
    m_due.stop();
    Await();
}

bool Autosave::SaveNow()
{
    const QString journal = m_journal();
    // An action's later points could not be replayed without its first ones.
    const bool isWriting = m_pWriting != nullptr && m_pWriting->isRunning();
    const bool isPossible =
        !isWriting && IActionManager::CurrentAction() == nullptr && !JournalReplayer::IsReplaying();
    if (journal.isEmpty() || !isPossible)
        return false;
    if (m_digest == m_savedDigest || m_sketch.GetDigest() != m_digest)
        return false;
    m_savedDigest = m_digest;
    m_sinceLast.start();
    const int record = m_record;
    m_pWriting.reset(QThread::create([this, journal, record, content = m_sketch.GetContent()] {
        if (Snapshot::Write(journal, record, content))
            emit saved(record);
    }));
    connect(m_pWriting.get(), &QThread::finished, this, &Autosave::Await);
    m_pWriting->start(QThread::LowPriority);
    return true;
}

void Autosave::OnRecord(const JournalRecord& record)
{
    if (const auto* pMark = std::get_if<MarkRecord>(&record.what))
    {
        m_record = record.number;
        m_digest = pMark->digest;
    }
    Await();
}

void Autosave::timerEvent(QTimerEvent*)
{
    m_due.stop();
    if (m_minutes > 0 && GetWaitMs() <= 0)
        SaveNow();
    else
        Await();
}

/// How long it takes until the next snapshot is due.
qint64 Autosave::GetWaitMs() const
{
    constexpr qint64 MsPerMinute = 60000;
    return m_minutes * MsPerMinute - m_sinceLast.elapsed();
}

/// Waits for the time of the next snapshot, if there is something to write. If it is impossible
/// then, it is tried again after the next record: what makes it possible, writes one.
void Autosave::Await()
{
    constexpr qint64 LeastMs = 1000;
    if (m_minutes > 0 && m_digest != m_savedDigest && !m_due.isActive())
        m_due.start(static_cast<int>(std::max(GetWaitMs(), LeastMs)), this);
}
