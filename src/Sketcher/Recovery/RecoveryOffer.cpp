#include "Recovery/RecoveryOffer.h"

#include "Model/UiText.h"
#include "Recovery/RecoveryBar.h"

#include "Command/ActionManager.h"
#include "Command/IActionManager.h"
#include "HostUi/MainWindow.h"
#include "Journal/JournalManager.h"

#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <new>
#include <utility>

using namespace vesk;

namespace
{

bool IsInUse(const QString& journal)
{
    return JournalManager::GetInstance().IsInUse(journal.toStdString());
}

/// Undecided journals are kept, but not without end: of those that were offered at every start for
/// half a year, only the newest stay.
bool IsTooOld(const QString& journal, int newerCount)
{
    constexpr int AlwaysKept = 20;
    constexpr int MostDays = 180;
    const QDateTime time = QFileInfo(journal).lastModified();
    return newerCount >= AlwaysKept && time.daysTo(QDateTime::currentDateTime()) > MostDays;
}

/// Removes old journals, but none that is in use or undecided.
void Prune(const JournalFolder& folder, const QString& ownJournal)
{
    int undecidedCount = 0;
    folder.Prune(JournalFolder::Bounds(), [&](const QString& journal) {
        if (journal == ownJournal || IsInUse(journal))
            return true;
        const bool isUndecided = !JournalFolder::IsSettled(journal) && !IsEnded(journal);
        return isUndecided && !IsTooOld(journal, undecidedCount++);
    });
}

void FindOrSettle(const QString& journal, std::vector<UnsavedWork>& works)
{
    try
    {
        if (const std::optional<UnsavedWork> work = FindUnsavedWork(journal))
            works.push_back(*work);
        else if (IsReadable(journal))
            JournalFolder::Settle(journal);
    }
    catch (const std::bad_alloc&)
    {
        // It is offered when there is more memory.
    }
}

bool IsNewer(const UnsavedWork& a, const UnsavedWork& b)
{
    return a.time > b.time;
}

}

QStringList FindUndecided(const JournalFolder& folder, const QString& ownJournal)
{
    QStringList undecided;
    for (const QString& journal : folder.GetJournals())
    {
        if (journal != ownJournal && !JournalFolder::IsSettled(journal) && !IsEnded(journal) &&
            !IsInUse(journal))
            undecided << journal;
    }
    return undecided;
}

RecoveryOffer::RecoveryOffer(MainWindow& window, std::vector<JournalFolder> folders,
                             Program program)
    : m_window(window), m_folders(std::move(folders)), m_program(std::move(program))
{}

RecoveryOffer::~RecoveryOffer()
{
    if (m_pSearch != nullptr)
        m_pSearch->wait();
}

/// Journals without work are settled, so that they are not read at every start.
void RecoveryOffer::Search(const QString& ownJournal)
{
    QStringList journals;
    for (const JournalFolder& folder : m_folders)
    {
        Prune(folder, ownJournal);
        journals << FindUndecided(folder, ownJournal);
    }
    auto pWorks = std::make_shared<std::vector<UnsavedWork>>();
    m_pSearch.reset(QThread::create([journals, pWorks] {
        for (const QString& journal : journals)
            FindOrSettle(journal, *pWorks);
        std::stable_sort(pWorks->begin(), pWorks->end(), &IsNewer);
    }));
    connect(m_pSearch.get(), &QThread::finished, this, [this, pWorks] { OnFound(*pWorks); });
    m_pSearch->start();
}

void RecoveryOffer::Add(const UnsavedWork& work)
{
    m_works.insert(m_works.begin(), work);
    ShowFirst();
}

void RecoveryOffer::OnFound(const std::vector<UnsavedWork>& works)
{
    m_works.insert(m_works.end(), works.begin(), works.end());
    ShowFirst();
    emit searched();
}

void RecoveryOffer::OnGoOn()
{
    if (std::exchange(m_isGoingOn, true))
        return;
    GoOnWhenIdle();
}

/// Ends a running action first, and waits until its event loop has unwound.
void RecoveryOffer::GoOnWhenIdle()
{
    const bool isIdle =
        IActionManager::CurrentAction() == nullptr && QThread::currentThread()->loopLevel() <= 1;
    if (isIdle)
        return GoOn();
    constexpr int RetryMs = 20;
    ActionManager::Reset();
    QTimer::singleShot(RetryMs, this, &RecoveryOffer::GoOnWhenIdle);
}

void RecoveryOffer::GoOn()
{
    const QPointer<RecoveryOffer> pThis(this);
    if (!m_works.empty())
    {
        const UnsavedWork work = m_works.front();
        TakeAway();
        GoOnWith(work);
    }
    if (pThis != nullptr)
        m_isGoingOn = false;
}

void RecoveryOffer::GoOnWith(const UnsavedWork& work)
{
    // Another window may have gone on with it in the meantime.
    if (JournalFolder::IsSettled(work.journal) || !QFileInfo::exists(work.journal))
    {
        m_window.ShowNotice("上次的操作已在另一窗口中恢复"_tr);
        return;
    }
    const QPointer<RecoveryOffer> pThis(this);
    const Result result = m_program.goOn(work);
    if (result == Result::Done)
        JournalFolder::Settle(work.journal);
    else if (result == Result::Cancelled && pThis != nullptr)
        Add(work);
}

void RecoveryOffer::Look()
{
    if (!m_works.empty())
        m_program.look(m_works.front());
}

void RecoveryOffer::Leave()
{
    if (m_works.empty())
        return;
    JournalFolder::Settle(m_works.front().journal);
    TakeAway();
}

void RecoveryOffer::ShowAnew()
{
    if (m_pBar == nullptr || m_isGoingOn)
        return;
    delete m_pBar;
    ShowFirst();
}

void RecoveryOffer::TakeAway()
{
    m_works.erase(m_works.begin());
    ShowFirst();
}

void RecoveryOffer::ShowFirst()
{
    if (m_works.empty())
    {
        if (m_pBar != nullptr)
            m_pBar->hide();
        return;
    }
    if (m_pBar == nullptr)
    {
        m_pBar = new RecoveryBar;
        connect(m_pBar, &RecoveryBar::goOnRequested, this, &RecoveryOffer::OnGoOn);
        connect(m_pBar, &RecoveryBar::lookRequested, this, &RecoveryOffer::Look);
        connect(m_pBar, &RecoveryBar::leaveRequested, this, &RecoveryOffer::Leave);
        connect(m_pBar, &RecoveryBar::postponed, this, &RecoveryOffer::TakeAway);
        m_window.AddBar(m_pBar);
    }
    const UnsavedWork& work = m_works.front();
    m_pBar->Offer(work, m_program.captionOf(work.command), static_cast<int>(m_works.size()) - 1);
    m_pBar->show();
}
