#include "Input/PointFields.h"

#include "Input/EditorKeyboard.h"
#include "Texts/HostUiText.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace vesk
{
namespace
{

/// Between the cursor and the fields.
constexpr int CursorGap = 20;

/// What stays free at the edges of the view.
constexpr int ViewEdge = 4;

/// Border, margins and cursor of a field.
constexpr int FieldFrame = 16;

constexpr const char* Letters[PointFields::Count] = {"X", "Y"};

/// One coordinate of the place beside the cursor: after it or, where there is no room, before it.
int PlaceBeside(int cursor, int size, int room)
{
    const int after = cursor + CursorGap;
    const int place = after + size <= room - ViewEdge ? after : cursor - CursorGap - size;
    return std::max(ViewEdge, std::min(place, room - ViewEdge - size));
}

}

PointFields::PointFields(QWidget& view) : QFrame(&view), m_pUnit(new QLabel(this))
{
    setObjectName(QStringLiteral("PointFields"));
    setStyleSheet(QStringLiteral("#PointFields { background: palette(window); "
                                 "border: 1px solid palette(highlight); border-radius: 4px }"));
    setCursor(Qt::ArrowCursor);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(6, 3, 6, 3);
    for (std::size_t i = 0; i < Count; ++i)
        m_fields[i] = MakeField(i);
    pLayout->addWidget(m_pUnit);
    view.installEventFilter(this);
    hide();
}

void PointFields::SetCurrent(std::size_t index)
{
    m_current = index;
    m_fields[index]->setFocus(Qt::TabFocusReason);
}

void PointFields::Clear(const QString& unit)
{
    m_pUnit->setText(unit);
    for (std::size_t i = 0; i < Count; ++i)
    {
        m_fields[i]->clear();
        m_fields[i]->setAccessibleName("%1 坐标"_tr.arg(QLatin1String(Letters[i])));
    }
    Fit();
}

void PointFields::Place(const std::optional<QPoint>& cursor)
{
    m_cursor = cursor;
    adjustSize();
    const QSize view = parentWidget()->size();
    const QPoint centre((view.width() - width()) / 2, (view.height() - height()) / 2);
    move(cursor.has_value() ? QPoint(PlaceBeside(cursor->x(), width(), view.width()),
                                     PlaceBeside(cursor->y(), height(), view.height()))
                            : centre);
}

bool PointFields::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == parentWidget())
    {
        if (pEvent->type() == QEvent::Resize && !isHidden())
            Place(m_cursor);
        return false;
    }
    const auto* pFound = std::find(m_fields.begin(), m_fields.end(), pWatched);
    if (pEvent->type() == QEvent::FocusIn && pFound != m_fields.end())
        m_current = static_cast<std::size_t>(pFound - m_fields.begin());
    return false;
}

/// A key that a field has no use for is nobody else's: the view would pass it to the field again.
void PointFields::keyPressEvent(QKeyEvent* pEvent)
{
    pEvent->accept();
}

QLineEdit* PointFields::MakeField(std::size_t index)
{
    const QLatin1String letter(Letters[index]);
    auto* pLetter = new QLabel(letter, this);
    auto* pField = new QLineEdit(this);
    pLetter->setBuddy(pField);
    pField->setObjectName(QLatin1String("Point") + letter);
    // An input method would swallow letters, and no value needs one.
    pField->setAttribute(Qt::WA_InputMethodEnabled, false);
    EditorKeyboard::Watch(*pField);
    pField->installEventFilter(this);
    connect(pField, &QLineEdit::textChanged, this, &PointFields::Fit);
    layout()->addWidget(pLetter);
    layout()->addWidget(pField);
    return pField;
}

void PointFields::Fit()
{
    constexpr int OpeningDigits = 9;
    constexpr int MostDigits = 24;
    for (QLineEdit* pField : m_fields)
    {
        const QFontMetrics metrics = pField->fontMetrics();
        const int digit = metrics.horizontalAdvance(QLatin1Char('0'));
        const int text = metrics.horizontalAdvance(pField->text());
        pField->setFixedWidth(std::clamp(text, OpeningDigits * digit, MostDigits * digit) +
                              FieldFrame);
    }
    Place(m_cursor);
}

}
