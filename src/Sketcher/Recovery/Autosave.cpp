#include "Recovery/Autosave.h"

#include "Model/Sketch.h"
#include "Recovery/Snapshot.h"

#include "Command/IActionManager.h"
#include "Replay/JournalReplayer.h"

#include <utility>

using namespace vesk;

Autosave::Autosave(const Sketch& sketch, std::function<QString()> journal)
    : m_sketch(sketch), m_journal(std::move(journal)), m_savedDigest(sketch.GetDigest())
{
    constexpr int CheckMs = 5000;
    startTimer(CheckMs);
    m_sinceLast.start();
    JournalManager::GetInstance().AddObserver(this);
}

Autosave::~Autosave()
{
    JournalManager::GetInstance().RemoveObserver(this);
    if (m_pWriting != nullptr)
        m_pWriting->wait();
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
    m_pWriting->start(QThread::LowPriority);
    return true;
}

void Autosave::OnRecord(const JournalRecord& record)
{
    const auto* pMark = std::get_if<MarkRecord>(&record.what);
    if (pMark == nullptr)
        return;
    m_record = record.number;
    m_digest = pMark->digest;
}

void Autosave::timerEvent(QTimerEvent*)
{
    constexpr qint64 MsPerMinute = 60000;
    if (m_minutes > 0 && m_sinceLast.elapsed() >= m_minutes * MsPerMinute)
        SaveNow();
}
