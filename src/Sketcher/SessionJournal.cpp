#include "SessionJournal.h"

#include "DataFile.h"
#include "Model/KeptContent.h"
#include "Options.h"

#include "Journal/JournalManager.h"
#include "Replay/JournalReplayer.h"

using namespace vesk;

namespace
{

/// Far below the greatest integer, to leave numbers for the records of any session.
constexpr int GreatestNumberToGoOnFrom = 1000000000;

JournalManager& Manager()
{
    return JournalManager::GetInstance();
}

}

SessionJournal::SessionJournal(const Options& options)
    : m_path(options.journal), m_isNamed(!m_path.isEmpty()),
      m_isContinued(m_isNamed && IsSameFile(m_path, options.GetSource()))
{
    if (!m_isNamed && options.task != Options::Task::Replay)
        m_path = GetFolder().NewPath();
}

JournalFolder SessionJournal::GetFolder()
{
    return JournalFolder(DataFile(QStringLiteral("journals")));
}

bool SessionJournal::Reserve(std::string& error)
{
    KeptContent::Get().SetJournal(m_path);
    return !m_isContinued || Manager().Reserve(m_path.toStdString(), error);
}

bool SessionJournal::Open(std::string& error)
{
    if (m_isContinued || m_path.isEmpty())
        return true;
    const bool isOpen = Manager().Open(m_path.toStdString(), error);
    if (!isOpen)
        KeptContent::Get().SetJournal({});
    return isOpen || !m_isNamed;
}

QString SessionJournal::GoOn(const JournalReplayResult& result, int lastNumber)
{
    if (!m_isContinued)
        return {};
    if (lastNumber > GreatestNumberToGoOnFrom)
        return LeaveForAnother();
    Manager().Continue(lastNumber);
    for (const EndRecord& mark : result.missingMarks)
        Manager().Add(mark);
    return {};
}

QString SessionJournal::LeaveForAnother()
{
    if (!m_isContinued)
        return {};
    *this = SessionJournal(Options());
    KeptContent::Get().SetJournal(m_path);
    std::string error;
    Manager().MoveTo(m_path.toStdString(), error);
    return m_path;
}

QString SessionJournal::StartAnew()
{
    const bool isContinued = m_isContinued;
    if (isContinued)
    {
        *this = SessionJournal(Options());
        KeptContent::Get().SetJournal(m_path);
        Manager().Close();
    }
    Manager().SetVersion(HeaderRecord::CurrentVersion);
    std::string error;
    Manager().Open(m_path.toStdString(), error);
    return isContinued ? m_path : QString();
}
