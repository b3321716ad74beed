#include "Input/PointInput.h"

#include "Accessibility/AccessibleTexts.h"
#include "Command/IAction.h"
#include "Command/IActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "HostUi/QtText.h"
#include "Input/EscapeKey.h"
#include "Input/InputJudge.h"
#include "Input/KeyCode.h"
#include "Input/PointFields.h"
#include "Texts/HostUiText.h"
#include "View/IUiDocumentViewManager.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <array>
#include <variant>

namespace vesk
{
namespace
{

bool TakesPoint()
{
    const IAction* pAction = IActionManager::CurrentAction();
    return pAction != nullptr && pAction->TakesPoint();
}

}

PointInput::PointInput(EscapeKey& escape) : m_escape(escape), m_unit(LengthUnit::Millimetre())
{
    ActionManager::AddObserver(this);
    JournalManager::GetInstance().AddObserver(this);
}

PointInput::~PointInput()
{
    JournalManager::GetInstance().RemoveObserver(this);
    ActionManager::RemoveObserver(this);
    delete m_pFields;
}

bool PointInput::IsBegunBy(const QKeyEvent& event)
{
    const bool isRelative = event.text() == QString(RelativeMark);
    const bool hasDimensions = TemporaryDimensionMgr::GetInstance()->HasHandler();
    return (isRelative || (CanBeginValue(event) && !hasDimensions)) && TakesPoint();
}

void PointInput::Open(QWidget& view, const std::optional<QPoint>& cursor, QKeyEvent& event)
{
    if (m_pFields == nullptr || m_pFields->parentWidget() != &view)
        Make(view);
    m_isOpen = true;
    m_refusal.clear();
    m_unit = LengthUnit::GetCurrent();
    m_pFields->Clear(ToQString(m_unit.GetSymbol()));
    m_pFields->Place(cursor);
    m_pFields->show();
    m_pFields->raise();
    m_pFields->SetCurrent(0);
    QCoreApplication::sendEvent(&m_pFields->GetField(0), &event);
    Tell();
}

/// The view gets the keyboard before the fields are hidden: the toolkit would pass it on to any
/// widget.
void PointInput::Close()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    m_refusal.clear();
    if (m_pFields != nullptr)
    {
        if (m_pFields->isAncestorOf(m_pFields->window()->focusWidget()))
            m_pFields->parentWidget()->setFocus(Qt::OtherFocusReason);
        m_pFields->hide();
    }
    Tell();
}

QLineEdit* PointInput::GetField() const
{
    return m_isOpen && m_pFields != nullptr ? &m_pFields->GetField(m_pFields->GetCurrent())
                                            : nullptr;
}

QString PointInput::GetText(std::size_t index) const
{
    return GetField() != nullptr ? m_pFields->GetField(index).text() : QString();
}

NoteTexts PointInput::GetNotes(bool areKeysShown) const
{
    const std::size_t current = m_pFields->GetCurrent();
    NoteTexts texts{m_refusal, {}, {}};
    if (!m_pFields->GetField(current).text().isEmpty())
        texts.value = Judge(current).shown;
    if (areKeysShown)
        texts.keys = DescribeKeys(current == 0 ? QStringLiteral("Y") : QStringLiteral("X"), false);
    return texts;
}

QRect PointInput::GetRect() const
{
    return m_pFields->geometry();
}

void PointInput::MoveTo(const std::optional<QPoint>& cursor)
{
    if (GetField() == nullptr)
        return;
    m_pFields->Place(cursor);
    Tell();
}

void PointInput::OnActionChanged()
{
    if (!TakesPoint())
        Close();
}

void PointInput::OnRecord(const JournalRecord& record)
{
    const auto* pPoint = std::get_if<PointRecord>(&record.what);
    if (pPoint != nullptr && !pPoint->entity.has_value())
        m_last = pPoint->point;
}

bool PointInput::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress)
        return FilterKey(static_cast<const QKeyEvent&>(*pEvent));
    return QObject::eventFilter(pWatched, pEvent);
}

void PointInput::Make(QWidget& view)
{
    delete m_pFields;
    m_pFields = new PointFields(view);
    for (std::size_t i = 0; i < PointFields::Count; ++i)
    {
        QLineEdit& field = m_pFields->GetField(i);
        field.installEventFilter(this);
        connect(&field, &QLineEdit::textEdited, this, &PointInput::OnTextEdited);
        connect(&field, &QLineEdit::textChanged, this, &PointInput::changed);
    }
}

void PointInput::Tell()
{
    for (std::size_t i = 0; GetField() != nullptr && i < PointFields::Count; ++i)
    {
        QLineEdit& field = m_pFields->GetField(i);
        const bool isCurrent = i == m_pFields->GetCurrent();
        SetAccessibleTexts(field, field.accessibleName(), isCurrent ? m_refusal : QString());
    }
    emit changed();
}

/// True if the key goes no further.
bool PointInput::FilterKey(const QKeyEvent& event)
{
    if (GetField() == nullptr)
        return false;
    switch (event.key())
    {
    case Qt::Key_Escape:
        if (m_escape.Press(event))
            Close();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        GoToOther();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Take();
        return true;
    default:
        // The mark that the field begins with may be typed, too.
        return event.text() == RelativeMark && GetField()->text() == RelativeMark;
    }
}

void PointInput::OnTextEdited()
{
    m_refusal.clear();
    Tell();
}

/// A text that makes no sense must be mended first. After a distance from the last point the other
/// field expects one, too; what it begins with is seen, and can be removed.
void PointInput::GoToOther()
{
    const std::size_t current = m_pFields->GetCurrent();
    const QString text = m_pFields->GetField(current).text().trimmed();
    const CoordinateVerdict verdict = Judge(current);
    if (!text.isEmpty() && !verdict.refusal.isEmpty())
        return Refuse(current, verdict.refusal);
    m_refusal.clear();
    const std::size_t other = 1 - current;
    QLineEdit& field = m_pFields->GetField(other);
    m_pFields->SetCurrent(other);
    if (field.text().isEmpty() && text.startsWith(RelativeMark))
        field.insert(QString(RelativeMark));
    else
        field.selectAll();
    Tell();
}

/// With the other field still empty the user goes on there.
void PointInput::Take()
{
    const std::size_t other = 1 - m_pFields->GetCurrent();
    if (m_pFields->GetField(other).text().trimmed().isEmpty())
        return GoToOther();
    const std::array<CoordinateVerdict, PointFields::Count> verdicts{Judge(0), Judge(1)};
    for (std::size_t i = 0; i < PointFields::Count; ++i)
    {
        if (!verdicts[i].refusal.isEmpty())
            return Refuse(i, verdicts[i].refusal);
    }
    const Vector3d point(*verdicts[0].coordinate, *verdicts[1].coordinate, 0.0);
    const QPointer<PointInput> pSelf(this);
    const bool isTaken =
        ActionManager::ProcessPoint(UiDocumentViewManager::FindCurrentView(), point);
    if (pSelf == nullptr)
        return;
    if (isTaken)
        Close();
    else if (GetField() != nullptr)
        Refuse(m_pFields->GetCurrent(), "这个点在这里不起作用，请换一个"_tr);
}

void PointInput::Refuse(std::size_t index, const QString& refusal)
{
    m_refusal = refusal;
    m_pFields->SetCurrent(index);
    m_pFields->GetField(index).selectAll();
    Tell();
}

CoordinateVerdict PointInput::Judge(std::size_t index) const
{
    const std::optional<double> last =
        m_last.has_value() ? std::optional((*m_last)[static_cast<Eigen::Index>(index)])
                           : std::nullopt;
    return JudgeCoordinate(m_pFields->GetField(index).text(), last, m_unit);
}

}
