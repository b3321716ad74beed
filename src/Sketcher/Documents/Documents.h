#pragma once

#include "Documents/OpenDocument.h"
#include "Documents/RecentFiles.h"
#include "Model/DocumentFile.h"

#include "Journal/CommandParameters.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class Sketch;

namespace vesk
{
class MainWindow;
}

/// The drawing file of a window: new, open, save, close, and the questions about it.
///
/// What these do to the drawing is done by commands whose parameters are digests, so that a replay
/// needs no files but those kept beside the journal: it opens what was opened, and checks instead
/// of saving. The drawing is modified if its digest is not that of the file.
class Documents final : public QObject
{
    Q_OBJECT

public:
    static constexpr wchar_t NewId[] = L"Sketcher.NewDrawing";
    static constexpr wchar_t OpenId[] = L"Sketcher.OpenContent";
    static constexpr wchar_t SaveId[] = L"Sketcher.SaveDrawing";

    /// Whether there is somebody to ask.
    enum class Manners
    {
        Ask,
        AskAboutFiles, ///< A drawing without a file may be dropped: its journal or model is wanted.
        Silent,        ///< Nobody: no dialog is shown at all.
    };

    /// Work in another thread, or in this one.
    using Work = std::function<void(const DocumentFile::Progress& progress)>;

    /// Runs work while the window lives. It may process events.
    using Runner = std::function<void(const Work& work)>;

    /// Sketch and window are not owned and outlive this. Large files are read and written by the
    /// runner.
    Documents(Sketch& sketch, vesk::MainWindow& window, Manners manners, Runner runner);
    ~Documents() override;

    const OpenDocument& GetDocument() const { return m_document; }
    bool IsModified() const;

    /// Begins an empty drawing, opens a file that the user chooses, saves. Ask what there is to
    /// ask.
    void New();
    void Open();
    void Save();
    void SaveAs();

    /// Shows a menu of the recent files below the control with that id.
    void ShowRecent(const QString& controlId);

    /// Opens a file as Open does, once a running action has ended.
    void OpenLater(const QString& path);

    /// Opens a file; what is in the drawing is lost. Returns false if that fails, after saying why.
    bool OpenFile(const QString& path);

    /// From now on windows close without a question: the program has been told to end.
    void EndWithoutQuestions() { m_isEnding = true; }

    /// The effects of the commands, and whether they can be done.
    void DoNew();
    void DoOpen(const vesk::CommandParameters& parameters);
    void DoSave(const vesk::CommandParameters& parameters);
    bool CanOpen(const vesk::CommandParameters& parameters);
    bool CanSave(const vesk::CommandParameters& parameters) const;

    /// The digest of the drawing that a command with the id SaveId saves.
    static std::string GetSavedDigest(const vesk::CommandParameters& parameters);

signals:
    /// Another file, or another state of it.
    void changed();

    /// A file has been opened.
    void opened();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool MayReplace();
    bool SaveWithQuestions();
    bool SaveAsWithQuestions();
    bool SaveTo(const QString& path);
    bool Write(const QString& path);
    bool OpenLocked(const QString& path, std::shared_ptr<DocumentLock> pLock, bool isReadOnly);
    bool IsCurrent(const QString& path) const;
    QString GetShownName() const;
    QString Suggest() const;
    void RunWork(bool isLarge, const Work& work);
    void Fail(const QString& text, const QString& details);
    void NoteLock();
    void OnSketchChanged();
    void OpenRecent(const QString& path);

    /// A drawing that is about to be opened, and the digest under which its bytes are kept.
    struct Prepared
    {
        QString contentDigest;
        SketchContent content;
        Digest digest;
    };

    std::optional<Prepared> TakePrepared(const QString& contentDigest);

    Sketch& m_sketch;
    vesk::MainWindow& m_window;
    const Manners m_manners;
    const Runner m_runner;
    const std::string m_emptyDigest; ///< Of a new drawing.
    RecentFiles m_recent;
    OpenDocument m_document;
    std::optional<Prepared> m_prepared;
    QString m_nextPath;   ///< What Open opens without asking; empty to ask.
    QString m_savingPath; ///< Where the command saves; empty in a replay.
    bool m_isSaved = false;
    bool m_isWorking = false;
    bool m_isEnding = false;
};
