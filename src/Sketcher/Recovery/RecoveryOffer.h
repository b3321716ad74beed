#pragma once

#include "Recovery/JournalFolder.h"
#include "Recovery/UnsavedWork.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QThread>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class RecoveryBar;

namespace vesk
{
class MainWindow;
}

/// Offers what earlier sessions left unsaved in a bar of the window, the newest first, and removes
/// old journals that nobody needs any more.
class RecoveryOffer final : public QObject
{
    Q_OBJECT

public:
    enum class Result
    {
        Done,      ///< The work is in the drawing and in its journal.
        Partly,    ///< Not all of it could be repeated.
        Cancelled, ///< Nothing of it is in the drawing.
    };

    /// What the program does about an offer.
    struct Program
    {
        /// The caption of a command; empty if it is unknown.
        std::function<QString(const std::wstring& commandId)> captionOf;

        /// Goes on with the work. May process events, and end everything.
        std::function<Result(const UnsavedWork& work)> goOn;
        std::function<void(const UnsavedWork& work)> look;
    };

    /// The window is not owned and outlives this.
    RecoveryOffer(vesk::MainWindow& window, std::vector<JournalFolder> folders, Program program);

    /// Waits until the search has ended.
    ~RecoveryOffer() override;

    /// Searches the folders in another thread, except for this session's own journal, and then
    /// shows what was found.
    void Search(const QString& ownJournal);

    /// Also offers that; it comes first.
    void Add(const UnsavedWork& work);

    /// Builds what is shown anew, in the user's language.
    void ShowAnew();

    const std::vector<UnsavedWork>& GetWorks() const { return m_works; }

signals:
    /// The search has ended and its offers are shown.
    void searched();

private:
    void OnFound(const std::vector<UnsavedWork>& works);
    void OnGoOn();
    void GoOnWhenIdle();
    void GoOn();
    void GoOnWith(const UnsavedWork& work);
    void Look();
    void Leave();
    void TakeAway();
    void ShowFirst();

    vesk::MainWindow& m_window;
    const std::vector<JournalFolder> m_folders;
    const Program m_program;
    std::vector<UnsavedWork> m_works; ///< The first one is shown.
    QPointer<RecoveryBar> m_pBar;
    std::unique_ptr<QThread> m_pSearch;

    /// From the click until the work is in the drawing.
    bool m_isGoingOn = false;
};

/// Journals of the folder without an end about which nobody has decided, the newest first. Those in
/// use by another program are not among them.
QStringList FindUndecided(const JournalFolder& folder, const QString& ownJournal);
