#include "SessionJournal.h"

#include "Model/KeptContent.h"
#include "Model/UserFiles.h"
#include "Options.h"
#include "Recovery/UnsavedWork.h"

#include "Journal/JournalManager.h"
#include "Replay/JournalReplayer.h"

#include <QDir>
#include <QFileInfo>

using namespace vesk;

namespace
{

/// Far below the greatest integer, to leave numbers for the records of any session.
constexpr int GreatestNumberToGoOnFrom = 1000000000;

/// The chosen folder, then former ones. An empty path is that of the data folder.
QStringList& FolderPaths()
{
    static QStringList s_paths = {QString()};
    return s_paths;
}

JournalFolder FolderOf(const QString& path)
{
    return JournalFolder(path.isEmpty() ? DataFile(QStringLiteral("journals")) : path);
}

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
    return FolderOf(FolderPaths().front());
}

void SessionJournal::SetFolder(const QString& path, const QStringList& former)
{
    const bool isUsable =
        QFileInfo(path).isAbsolute() && QDir().mkpath(path) && QFileInfo(path).isWritable();
    FolderPaths() = QStringList(path) + former + QStringList(QString());
    // Work that is in it is offered all the same.
    if (!isUsable)
        FolderPaths().prepend(QString());
    FolderPaths().removeDuplicates();
}

std::vector<JournalFolder> SessionJournal::GetFolders()
{
    std::vector<JournalFolder> folders;
    for (const QString& path : FolderPaths())
        folders.push_back(FolderOf(path));
    return folders;
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
    if (m_isNamed && !SecureReplaced(error))
        return false;
    const bool isOpen = Manager().Open(m_path.toStdString(), error);
    if (!isOpen)
        KeptContent::Get().SetJournal({});
    return isOpen || !m_isNamed;
}

/// The file is locked before it is moved: another program may still be writing it.
bool SessionJournal::SecureReplaced(std::string& error)
{
    if (!QFileInfo::exists(m_path) || IsEnded(m_path) ||
        (IsReadable(m_path) && !FindUnsavedWork(m_path).has_value()))
        return true;
    if (!Manager().Reserve(m_path.toStdString(), error))
        return false;
    // A link stays a link.
    const std::optional<QString> secured =
        GetFolder().TakeIn(QFileInfo(m_path).canonicalFilePath());
    if (!secured.has_value())
        error = m_path.toStdString() + " may hold unsaved work, which cannot be moved to " +
                GetFolder().GetPath().toStdString();
    m_secured = secured.value_or(QString());
    return secured.has_value();
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

bool SessionJournal::Close(Work work)
{
    if (work == Work::Decided)
        Manager().Add(CloseRecord());
    return Manager().Close();
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

QString SessionJournal::StartAnother(int version)
{
    const QString left = m_path;
    *this = SessionJournal(Options());
    std::string error;
    // Closed in any case: what follows must not be added to the file that was left.
    Manager().Close();
    Manager().SetVersion(version);
    Manager().Open(m_path.toStdString(), error);
    KeptContent::Get().SetJournal(m_path);
    return left;
}
