#include "HostUi/DimensionInputController.h"

#include "Command/ActionManager.h"
#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Geometry/Constants.h"
#include "HostUi/QtText.h"
#include "Journal/IJournalUiObject.h"
#include "KeyCode.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace vesk
{
namespace
{

constexpr int EditorKind = 3;
constexpr int VirtualComma = 188;

TemporaryDimensionMgr& Manager()
{
    return *TemporaryDimensionMgr::GetInstance();
}

bool IsCommitting(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
           key == Qt::Key_Space;
}

IUiView* CurrentView()
{
    const IUiDocumentViewManager* pViews = IUiDocumentViewManager::Get();
    return pViews != nullptr ? pViews->GetCurrentUiView() : nullptr;
}

QWidget* CurrentViewWidget()
{
    const IUiView* pView = CurrentView();
    return pView != nullptr ? QWidget::find(pView->GetWindowId()) : nullptr;
}

/// The range of the field's values in the dimensions of the running action.
Intervald CurrentRange(InputState field)
{
    const IAction* pAction = IActionManager::CurrentAction();
    OwnerPtr<ITemporaryDimensionContext> opContext;
    if (pAction != nullptr)
        opContext = pAction->CreateDimensionContext();
    if (opContext == nullptr)
        return {-Constants::MAX_MODEL_SIZE, Constants::MAX_MODEL_SIZE};
    const bool isAngle = field == InputState::IS_Angle || field == InputState::IS_CentralAngle;
    return isAngle ? opContext->GetSecondValueRange() : opContext->GetFirstValueRange();
}

}

DimensionInputController::DimensionInputController()
{
    JournalManager::GetInstance().AddObserver(this);
    Manager().SetHandlerAccess(this);
    qApp->installEventFilter(this);
}

DimensionInputController::~DimensionInputController()
{
    Manager().SetHandlerAccess(nullptr);
    JournalManager::GetInstance().RemoveObserver(this);
}

bool DimensionInputController::OnViewKey(QKeyEvent& event)
{
    if (QLineEdit* pEditor = GetActiveEditor())
    {
        QCoreApplication::sendEvent(pEditor, &event);
        return true;
    }
    if (event.key() != Qt::Key_Escape)
        return OpenInput(event);
    if (!IsNewEscape(event))
        return true;
    if (IActionManager::CurrentAction() == nullptr)
        return false;
    ActionManager::ProcessEscape(CurrentView());
    return true;
}

bool DimensionInputController::Commit()
{
    QLineEdit* pEditor = GetActiveEditor();
    if (pEditor == nullptr)
        return true;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(pEditor, &press);
    return GetActiveEditor() == nullptr;
}

QLineEdit* DimensionInputController::GetActiveEditor() const
{
    return Manager().IsInputting() ? qobject_cast<QLineEdit*>(m_pEditor) : nullptr;
}

QString DimensionInputController::GetMessage() const
{
    const bool isShown = m_pMessage != nullptr && m_pMessage->isVisible();
    return isShown && GetActiveEditor() != nullptr ? m_pMessage->text() : QString();
}

void DimensionInputController::PlaceMessage()
{
    if (m_pMessage == nullptr)
        return;
    if (GetActiveEditor() == nullptr)
    {
        m_pMessage->hide();
        return;
    }
    constexpr int Gap = 4;
    const QWidget* pView = m_pMessage->parentWidget();
    const QPoint corner = pView->mapFromGlobal(m_pEditor->geometry().bottomLeft());
    const QSize size = m_pMessage->sizeHint();
    const bool hasRoomBelow = corner.y() + Gap + size.height() <= pView->height();
    const int y =
        hasRoomBelow ? corner.y() + Gap : corner.y() - m_pEditor->height() - Gap - size.height();
    const int x = qBound(0, corner.x(), qMax(0, pView->width() - size.width()));
    m_pMessage->setGeometry(QRect(QPoint(x, y), size));
}

void DimensionInputController::OnRecord(const JournalRecord&) {}

void DimensionInputController::OnUiObject(const IJournalUiObject& object, int kind)
{
    QObject* const* ppObject = std::any_cast<QObject*>(&object.GetUiObject());
    if (kind != EditorKind || ppObject == nullptr)
        return;
    auto* pEditor = qobject_cast<QLineEdit*>(*ppObject);
    if (pEditor == nullptr || pEditor == m_pEditor)
        return;
    m_pEditor = pEditor;
    connect(pEditor, &QLineEdit::textEdited, this, &DimensionInputController::OnTextEdited);
}

void DimensionInputController::ResetEditorPosition(ITemporaryDimensionHandler& handler)
{
    if (auto* pObject = dynamic_cast<QObject*>(&handler))
        QMetaObject::invokeMethod(pObject, "ResetEditorPosition");
    PlaceMessage();
}

InputState DimensionInputController::GetInputState(ITemporaryDimensionHandler& handler)
{
    const auto* pObject = dynamic_cast<QObject*>(&handler);
    return pObject != nullptr ? static_cast<InputState>(pObject->property("inputState").toInt())
                              : InputState::IS_None;
}

bool DimensionInputController::IsRawTextInput(ITemporaryDimensionHandler& handler)
{
    const auto* pObject = dynamic_cast<QObject*>(&handler);
    return pObject != nullptr && pObject->property("rawTextInput").toBool();
}

bool DimensionInputController::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyRelease)
        NoteRelease(static_cast<QKeyEvent&>(*pEvent));
    if (pWatched != m_pEditor || pWatched == nullptr)
        return false;
    if (pEvent->type() == QEvent::KeyPress)
        return FilterEditorKey(static_cast<QKeyEvent&>(*pEvent));
    if (pEvent->type() == QEvent::Hide)
        OnEditorHidden();
    return false;
}

void DimensionInputController::OnEditorHidden()
{
    PlaceMessage();
    // Without a window manager nobody else gives the keyboard back.
    IUiView* pView = CurrentView();
    if (pView != nullptr && QGuiApplication::applicationState() == Qt::ApplicationActive)
        pView->Activate();
}

/// True when the key goes no further.
bool DimensionInputController::FilterEditorKey(QKeyEvent& event)
{
    QLineEdit* pEditor = GetActiveEditor();
    if (pEditor == nullptr)
    {
        // The window system had not yet given the keyboard back to the view.
        if (QWidget* pView = CurrentViewWidget())
            QCoreApplication::sendEvent(pView, &event);
        return true;
    }
    if (event.key() == Qt::Key_Escape)
        return !IsNewEscape(event);
    if (!IsCommitting(event.key()))
        return false;
    if (!Manager().IsRawTextInput() && IsRefused(*pEditor))
        return true;
    Manager().SetTypedValue({ToWide(pEditor->text()), !m_isTextTyped});
    m_isTextTyped = m_isTextTyped && event.key() != Qt::Key_Tab;
    return false;
}

void DimensionInputController::NoteRelease(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Escape || event.isAutoRepeat())
        return;
    m_isEscapeDown = false;
    m_escapeReleaseTime = event.timestamp();
}

/// A key that is held down was meant once. The toolkit does not mark every repetition: when the
/// keyboard goes to another window a release may be lost, and a release that is read before its
/// press looks like the end. The two then bear the same time, which no finger can do.
bool DimensionInputController::IsNewEscape(const QKeyEvent& event)
{
    constexpr qint64 LongestRepeatDelayMs = 1000;
    const bool isDown = m_isEscapeDown && m_sinceEscape.elapsed() < LongestRepeatDelayMs;
    const bool isTornPair = event.timestamp() != 0 && event.timestamp() == m_escapeReleaseTime;
    m_isEscapeDown = true;
    m_sinceEscape.start();
    return !event.isAutoRepeat() && !isDown && !isTornPair;
}

bool DimensionInputController::IsRefused(QLineEdit& editor)
{
    bool isNumber = false;
    const double value = editor.text().toDouble(&isNumber);
    const Intervald range = CurrentRange(Manager().GetInputState());
    if (isNumber && range.Contains(value))
        return false;
    editor.selectAll();
    ShowMessage(isNumber ? QStringLiteral("请输入 %1 到 %2 之间的数")
                               .arg(QString::number(range.GetMin(), 'g', 12),
                                    QString::number(range.GetMax(), 'g', 12))
                         : QStringLiteral("这不是一个数"));
    return true;
}

/// False for a key that can open no input.
bool DimensionInputController::OpenInput(const QKeyEvent& event)
{
    const int virtualKey = ToVirtualKey(event);
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    m_isTextTyped = virtualKey != VirtualComma;
    if (virtualKey != 0)
        Manager().OnKeyDown(virtualKey, false, modifiers & Qt::AltModifier,
                            modifiers & Qt::ShiftModifier);
    if (CanBeginValue(event) && !Manager().IsInputting())
        OpenInputWithText(event.text());
    return virtualKey != 0 || CanBeginValue(event);
}

/// Opens the input as a digit would and puts the character in the digit's place.
void DimensionInputController::OpenInputWithText(const QString& text)
{
    Manager().OnKeyDown('0', false, false, false);
    if (QLineEdit* pEditor = GetActiveEditor())
        pEditor->setText(text);
}

void DimensionInputController::OnTextEdited()
{
    m_isTextTyped = true;
    ShowMessage(QString());
}

void DimensionInputController::ShowMessage(const QString& message)
{
    QWidget* pView = CurrentViewWidget();
    if (m_pMessage == nullptr && pView != nullptr && !message.isEmpty())
    {
        m_pMessage = new QLabel(pView);
        m_pMessage->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_pMessage->setMargin(4);
        m_pMessage->setStyleSheet(
            QStringLiteral("background: #b03a37; color: white; border-radius: 4px"));
    }
    if (m_pMessage == nullptr)
        return;
    m_pMessage->setText(message);
    PlaceMessage();
    m_pMessage->setVisible(!message.isEmpty());
    m_pMessage->raise();
}

}
