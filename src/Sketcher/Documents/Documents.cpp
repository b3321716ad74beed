#include "Documents/Documents.h"

#include "Documents/DocumentDialogs.h"
#include "Documents/DocumentWork.h"
#include "Model/KeptContent.h"
#include "Model/ParameterValue.h"
#include "Model/Sketch.h"
#include "Model/UiText.h"

#include "Command/ActionManager.h"
#include "HostUi/MainWindow.h"
#include "HostUi/QtText.h"
#include "Replay/JournalReplayer.h"

#include <QCursor>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QUrl>

#include <cstddef>
#include <iostream>
#include <string_view>
#include <utility>

using namespace vesk;
using namespace DocumentDialogs;

namespace
{

constexpr wchar_t ContentName[] = L"content";
constexpr wchar_t DigestName[] = L"digest";

/// Smaller ones are read and written at once.
constexpr qint64 LargeFile = 1 << 20;
constexpr std::size_t LargeDrawing = 5000;

const QString& EndingOfDrawings()
{
    static const QString s_ending = QStringLiteral(".vsk");
    return s_ending;
}

CommandParameters MakeParameters(const wchar_t* name, const QString& text)
{
    CommandParameters parameters;
    parameters.Add(name, CommandParameterValue(ToWide(text)));
    return parameters;
}

QString TextOf(const CommandParameters& parameters, const wchar_t* name)
{
    const auto* pText = FindParameter<std::wstring>(parameters, name);
    return pText != nullptr ? ToQString(*pText) : QString();
}

/// A name that files may have on any system, as similar to another as possible.
QString ToFileName(const QString& name)
{
    // With three bytes a character well below what file systems allow.
    constexpr int GreatestLength = 60;
    const QString reserved = QStringLiteral("/\\:*?\"<>|");
    QString result = name.simplified().left(GreatestLength);
    if (!result.isEmpty() && result.at(result.size() - 1).isHighSurrogate())
        result.chop(1);
    for (QChar& c : result)
    {
        if (c.category() == QChar::Other_Control || reserved.contains(c))
            c = QLatin1Char('_');
    }
    if (result.startsWith(QLatin1Char('.'))) // It would be hidden.
        result.front() = QLatin1Char('_');
    return result.isEmpty() ? "图纸"_tr : result;
}

/// The name of the file, then its folder; before them a digit, which is the key of the entry.
QString RecentCaption(const QString& path, int place)
{
    const QFileInfo file(path);
    QString caption =
        QStringLiteral("%1 - %2").arg(file.fileName(), QDir::toNativeSeparators(file.path()));
    caption.replace('&', "&&");
    return place < 10 ? QStringLiteral("&%1 %2").arg(place).arg(caption) : caption;
}

/// The drawing file that is being dragged; empty if it is something else.
QString DraggedFile(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    const QString path = urls.size() == 1 ? urls.front().toLocalFile() : QString();
    return path.endsWith(EndingOfDrawings(), Qt::CaseInsensitive) ? path : QString();
}

}

Documents::Documents(Sketch& sketch, MainWindow& window, Manners manners, Runner runner)
    : m_sketch(sketch), m_window(window), m_manners(manners), m_runner(std::move(runner)),
      m_emptyDigest(sketch.GetDigest())
{
    m_document.savedDigest = m_emptyDigest;
    connect(&sketch, &Sketch::changed, this, &Documents::OnSketchChanged);
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

Documents::~Documents() = default;

bool Documents::IsModified() const
{
    const std::string digest = m_sketch.GetDigest();
    return digest != m_document.savedDigest && (m_document.HasFile() || digest != m_emptyDigest);
}

void Documents::New()
{
    const QPointer<Documents> pThis(this);
    if (!JournalReplayer::IsReplaying() && MayReplace() && pThis != nullptr)
        ActionManager::RunCommand(NewId, {});
}

void Documents::Open()
{
    const QPointer<Documents> pThis(this);
    QString path = std::exchange(m_nextPath, QString());
    if (JournalReplayer::IsReplaying() || !MayReplace() || pThis == nullptr)
        return;
    if (path.isEmpty() && m_manners != Manners::Silent)
        path = AskForFileToOpen(&m_window, QFileInfo(Suggest()).path());
    if (!path.isEmpty() && pThis != nullptr && !m_isEnding)
        OpenFile(path);
}

void Documents::Save()
{
    if (!JournalReplayer::IsReplaying())
        SaveWithQuestions();
}

void Documents::SaveAs()
{
    if (!JournalReplayer::IsReplaying())
        SaveAsWithQuestions();
}

void Documents::ShowRecent(const QString& controlId)
{
    if (JournalReplayer::IsReplaying() || m_manners == Manners::Silent)
        return;
    auto* pMenu = new QMenu(&m_window);
    pMenu->setObjectName(QStringLiteral("Sketcher.RecentFiles"));
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    pMenu->setToolTipsVisible(true);
    for (const QString& path : m_recent.Get())
    {
        QAction* pAction = pMenu->addAction(RecentCaption(path, pMenu->actions().size() + 1));
        pAction->setToolTip(QDir::toNativeSeparators(path));
        connect(pAction, &QAction::triggered, this, [this, path] { OpenLater(path); });
    }
    if (pMenu->isEmpty())
        pMenu->addAction("没有最近的文件"_tr)->setEnabled(false);
    const auto* pControl = m_window.findChild<QWidget*>(controlId);
    const bool isOnScreen = pControl != nullptr && pControl->isVisible();
    pMenu->popup(isOnScreen ? pControl->mapToGlobal(pControl->rect().bottomLeft())
                            : QCursor::pos());
}

void Documents::OpenLater(const QString& path)
{
    const auto open = [this, path] {
        m_nextPath = path;
        ActionManager::RunCommand(L"Sketcher.Open", {});
    };
    // The menu or the drag that asks for it ends first.
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

bool Documents::OpenFile(const QString& path)
{
    if (IsCurrent(path))
        return OpenLocked(path, m_document.pLock, m_document.isReadOnly);
    const QPointer<Documents> pThis(this);
    const auto pLock = std::make_shared<DocumentLock>(path);
    const bool isInUse = pLock->GetState() == DocumentLock::State::InUse;
    if (isInUse && m_manners != Manners::Silent &&
        !AskToOpenReadOnly(&m_window, QFileInfo(path).fileName(), pLock->GetHolder()))
        return false;
    return pThis != nullptr && !m_isEnding && OpenLocked(path, pLock, isInUse);
}

/// Takes a share in the lock: the command that opens the content drops that of the document.
bool Documents::OpenLocked(const QString& path, std::shared_ptr<DocumentLock> pLock,
                           bool isReadOnly)
{
    const QPointer<Documents> pThis(this);
    DocumentWork::Read read;
    RunWork(QFileInfo(path).size() > LargeFile, [&](const DocumentFile::Progress& progress) {
        read = DocumentWork::ReadFile(path, progress);
    });
    if (pThis == nullptr || m_isEnding || read.isCancelled)
        return false;
    if (!read.fault.isEmpty())
    {
        Fail("无法打开“%1”"_tr.arg(QDir::toNativeSeparators(path)), read.fault);
        return false;
    }
    m_prepared = Prepared{read.contentDigest, std::move(read.reading.content), read.reading.sum};
    ActionManager::RunCommand(OpenId, MakeParameters(ContentName, read.contentDigest));
    if (pThis == nullptr)
        return false;
    m_document = {QFileInfo(path).absoluteFilePath(), read.reading.digest, read.stamp, isReadOnly,
                  std::move(pLock)};
    m_recent.Add(path);
    NoteLock();
    OnSketchChanged();
    emit opened();
    return true;
}

void Documents::DoNew()
{
    m_sketch.Clear();
    m_document = {};
    m_document.savedDigest = m_sketch.GetDigest();
    NoteLock();
    OnSketchChanged();
    ActionManager::StepDone();
}

void Documents::DoOpen(const CommandParameters& parameters)
{
    std::optional<Prepared> prepared = TakePrepared(TextOf(parameters, ContentName));
    if (!prepared.has_value())
        return;
    // So that nothing stays selected.
    m_sketch.Clear();
    m_sketch.Restore(std::move(prepared->content), prepared->digest);
    m_document = {};
    m_document.savedDigest = m_sketch.GetDigest();
    NoteLock();
    OnSketchChanged();
    ActionManager::StepDone();
}

void Documents::DoSave(const CommandParameters& parameters)
{
    const QPointer<Documents> pThis(this);
    const QString path = std::exchange(m_savingPath, QString());
    const bool isSaved = path.isEmpty() ? CanSave(parameters) : Write(path);
    // The journal of a later crash must not tell that the work is in the file.
    if (!isSaved)
        ActionManager::FailCommand();
    if (pThis == nullptr)
        return;
    m_isSaved = isSaved;
    if (isSaved && path.isEmpty())
        m_document.savedDigest = m_sketch.GetDigest();
    OnSketchChanged();
}

bool Documents::CanOpen(const CommandParameters& parameters)
{
    m_prepared = TakePrepared(TextOf(parameters, ContentName));
    return m_prepared.has_value();
}

bool Documents::CanSave(const CommandParameters& parameters) const
{
    return GetSavedDigest(parameters) == m_sketch.GetDigest();
}

std::string Documents::GetSavedDigest(const CommandParameters& parameters)
{
    return TextOf(parameters, DigestName).toStdString();
}

bool Documents::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const QPointer<Documents> pThis(this);
    switch (pEvent->type())
    {
    case QEvent::Close:
        // Closing the window cancels work that is under way.
        if (m_isEnding || (!m_isWorking && MayReplace()) || pThis == nullptr || m_isEnding)
            return false;
        pEvent->ignore();
        return true;
    case QEvent::DragEnter:
    case QEvent::DragMove:
        if (m_isWorking || DraggedFile(*static_cast<QDropEvent*>(pEvent)).isEmpty())
            return false;
        static_cast<QDropEvent*>(pEvent)->acceptProposedAction();
        return true;
    case QEvent::Drop:
        if (m_isWorking || DraggedFile(*static_cast<QDropEvent*>(pEvent)).isEmpty())
            return false;
        OpenLater(DraggedFile(*static_cast<QDropEvent*>(pEvent)));
        static_cast<QDropEvent*>(pEvent)->acceptProposedAction();
        return true;
    default:
        return QObject::eventFilter(pWatched, pEvent);
    }
}

/// Asks what to do about unsaved changes. Returns false if the drawing must stay.
bool Documents::MayReplace()
{
    const bool isWorthAsking =
        m_manners == Manners::Ask || (m_manners == Manners::AskAboutFiles && m_document.HasFile());
    if (!isWorthAsking || !IsModified() || JournalReplayer::IsReplaying())
        return true;
    const QPointer<Documents> pThis(this);
    const SaveAnswer answer = AskToSave(&m_window, GetShownName());
    if (pThis == nullptr)
        return false;
    return answer == SaveAnswer::Discard || (answer == SaveAnswer::Save && SaveWithQuestions());
}

bool Documents::SaveWithQuestions()
{
    if (!m_document.HasFile() || m_document.isReadOnly)
        return SaveAsWithQuestions();
    const QPointer<Documents> pThis(this);
    const QString path = m_document.path;
    if (m_document.stamp.IsOutdated(path))
    {
        const bool isReplaced = m_manners != Manners::Silent &&
                                AskToReplaceChanged(&m_window, QFileInfo(path).fileName());
        if (!isReplaced || pThis == nullptr)
            return false;
    }
    return SaveTo(path);
}

bool Documents::SaveAsWithQuestions()
{
    if (m_manners == Manners::Silent)
        return false;
    const QPointer<Documents> pThis(this);
    const QString path =
        AskForFileToSave(&m_window, Suggest(), m_document.isReadOnly ? QString() : m_document.path);
    return pThis != nullptr && !path.isEmpty() && !m_isEnding && SaveTo(path);
}

/// Saves through the command.
bool Documents::SaveTo(const QString& path)
{
    const QPointer<Documents> pThis(this);
    m_savingPath = path;
    m_isSaved = false;
    ActionManager::RunCommand(
        SaveId, MakeParameters(DigestName, QString::fromStdString(m_sketch.GetDigest())));
    return pThis != nullptr && m_isSaved;
}

bool Documents::Write(const QString& path)
{
    const QPointer<Documents> pThis(this);
    const QString failure = "无法保存“%1”"_tr.arg(QDir::toNativeSeparators(path));
    const auto pLock = IsCurrent(path) ? m_document.pLock : std::make_shared<DocumentLock>(path);
    if (pLock->GetState() == DocumentLock::State::InUse)
    {
        Fail(failure, "该文件已在另一个程序中打开：%1"_tr.arg(pLock->GetHolder()));
        return false;
    }
    const SketchContent content = m_sketch.GetContent();
    const std::string digest = m_sketch.GetDigest();
    DocumentWork::Written written;
    RunWork(content.entities.size() > LargeDrawing, [&](const DocumentFile::Progress& progress) {
        written = DocumentWork::WriteFile(content, digest, path, progress);
    });
    if (pThis == nullptr || written.isCancelled)
        return false;
    if (!written.fault.isEmpty())
    {
        Fail(failure, written.fault);
        return false;
    }
    m_document = {QFileInfo(path).absoluteFilePath(), digest, written.stamp, false, pLock};
    m_recent.Add(path);
    NoteLock();
    m_window.ShowNotice("已保存 %1"_tr.arg(QDir::toNativeSeparators(path)));
    return true;
}

bool Documents::IsCurrent(const QString& path) const
{
    const QString current = QFileInfo(m_document.path).canonicalFilePath();
    return m_document.HasFile() && !m_document.isReadOnly &&
           (QFileInfo(path).absoluteFilePath() == m_document.path ||
            (!current.isEmpty() && QFileInfo(path).canonicalFilePath() == current));
}

QString Documents::GetShownName() const
{
    return m_document.HasFile() ? m_document.GetName() : ToQString(m_sketch.GetShownName());
}

/// The file that the drawing would be saved in.
QString Documents::Suggest() const
{
    if (m_document.HasFile())
        return m_document.path;
    const QStringList recent = m_recent.Get();
    const QString folder = recent.isEmpty()
                               ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                               : QFileInfo(recent.front()).path();
    return folder + QLatin1Char('/') + ToFileName(GetShownName()) + EndingOfDrawings();
}

void Documents::RunWork(bool isLarge, const Work& work)
{
    m_isWorking = true;
    const auto end = qScopeGuard([pThis = QPointer<Documents>(this)] {
        if (pThis != nullptr)
            pThis->m_isWorking = false;
    });
    if (isLarge)
        m_runner(work);
    else
        work({});
}

/// Says once why something failed: to the user or, if there is none, on standard error.
void Documents::Fail(const QString& text, const QString& details)
{
    if (m_manners == Manners::Silent)
        std::cerr << "sketcher: " << (text + "："_tr + details).toStdString() << '\n';
    else
        Tell(&m_window, text, details);
}

void Documents::NoteLock()
{
    const bool isUnlocked = m_document.pLock != nullptr && !m_document.isReadOnly &&
                            m_document.pLock->GetState() == DocumentLock::State::Impossible;
    const QString lock = QStringLiteral("document lock");
    if (isUnlocked)
        m_window.ShowState(
            lock, [] { return "文件未加锁"_tr; },
            [] { return "文件夹中无法建立锁文件，其他程序不会知道该文件已打开"_tr; });
    else
        m_window.RemoveState(lock);
    const QString readOnly = QStringLiteral("read-only");
    if (m_document.isReadOnly)
        m_window.ShowState(
            readOnly, [] { return "只读"_tr; },
            [] { return "该文件已在另一个程序中打开，更改只能另存为其他文件"_tr; });
    else
        m_window.RemoveState(readOnly);
}

void Documents::OnSketchChanged()
{
    emit changed();
}

/// The drawing that is about to be opened, otherwise the one that was kept under that digest;
/// nothing if there is none.
std::optional<Documents::Prepared> Documents::TakePrepared(const QString& contentDigest)
{
    std::optional<Prepared> prepared = std::exchange(m_prepared, std::nullopt);
    if (prepared.has_value() && prepared->contentDigest == contentDigest)
        return prepared;
    const std::optional<QByteArray> bytes = KeptContent::Get().Find(contentDigest);
    if (!bytes.has_value())
        return std::nullopt;
    DocumentReading reading;
    RunWork(bytes->size() > LargeFile, [&](const DocumentFile::Progress& progress) {
        reading = DocumentFile::FromText(
            {bytes->constData(), static_cast<std::size_t>(bytes->size())}, progress);
    });
    if (reading.outcome != DocumentReading::Outcome::Whole)
        return std::nullopt;
    return Prepared{contentDigest, std::move(reading.content), reading.sum};
}
