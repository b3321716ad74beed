#include "RandomTables.h"
#include "RandomUser.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "Support/TestValues.h"
#include "View/SketchView.h"

#include <QLineEdit>
#include <QWheelEvent>

#include <utility>

using namespace RandomTables;

namespace
{

/// Always inside the view, whatever its current size is.
QPoint ToPixel(const QPointF& place)
{
    constexpr int Margin = 3;
    const QRect inside =
        ScriptedUser::FindView()->rect().adjusted(Margin, Margin, -Margin, -Margin);
    const QPoint pixel = inside.center() + place.toPoint();
    return {qBound(inside.left(), pixel.x(), inside.right()),
            qBound(inside.top(), pixel.y(), inside.bottom())};
}

void TurnWheel(const QPoint& pixel, int steps)
{
    constexpr int StepAngle = 120;
    SketchView* pView = ScriptedUser::FindView();
    QWheelEvent wheel(pixel, pView->mapToGlobal(pixel), QPoint(), QPoint(0, StepAngle * steps),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(pView, &wheel);
}

QString TellPlace(const QPointF& place)
{
    return QStringLiteral(" %1,%2").arg(place.x()).arg(place.y());
}

}

void RandomUser::ClickView()
{
    ClickAt(Place());
}

void RandomUser::ClickAt(const QPointF& place)
{
    m_clicked.push_back(place);
    const Qt::KeyboardModifiers modifiers = IsOneIn(8) ? Qt::ShiftModifier : Qt::NoModifier;
    const bool isDouble = IsOneIn(12);
    Do((isDouble ? "double click" : "click") + TellPlace(place), Act::Other,
       [place, modifiers, isDouble] {
           SketchView* pView = ScriptedUser::FindView();
           if (isDouble)
               QTest::mouseDClick(pView, Qt::LeftButton, modifiers, ToPixel(place));
           else
               QTest::mouseClick(pView, Qt::LeftButton, modifiers, ToPixel(place));
       });
}

void RandomUser::MoveMouse()
{
    const QPointF place = Place();
    Do("move" + TellPlace(place), Act::Other,
       [place] { ScriptedUser::MovePointer(ToPixel(place)); });
}

void RandomUser::DragAnywhere()
{
    const QPointF start = Place();
    const QPointF end = Place();
    DragBetween(start, end);
}

/// With the left or the middle button.
void RandomUser::DragBetween(const QPointF& start, const QPointF& end)
{
    const Qt::MouseButton button = IsOneIn(5) ? Qt::MiddleButton : Qt::LeftButton;
    const Act act = button == Qt::MiddleButton ? Act::Zoom : Act::Other;
    Do((act == Act::Zoom ? "pan" : "drag") + TellPlace(start) + TellPlace(end), act,
       [start, end, button] {
           QTest::mousePress(ScriptedUser::FindView(), button, {}, ToPixel(start));
           ScriptedUser::MovePointer(ToPixel((start + end) / 2), button);
           ScriptedUser::MovePointer(ToPixel(end), button);
           QTest::mouseRelease(ScriptedUser::FindView(), button, {}, ToPixel(end));
       });
}

void RandomUser::Zoom()
{
    const QPointF place = Place();
    const int most = IsOneIn(8) ? 60 : 4;
    const int steps = (1 + Choose(most)) * (IsOneIn(2) ? 1 : -1);
    const QSize size(500 + 10 * Choose(90), 450 + 10 * Choose(55));
    switch (Choose(5))
    {
    case 0:
        return ClickButton("Sketcher.ZoomAll", Act::Zoom);
    case 1:
        return Press("Ctrl+0", Qt::Key_0, Qt::ControlModifier, Act::Zoom);
    case 2:
        return ResizeWindow(size);
    default:
        Do(QStringLiteral("wheel %1").arg(steps) + TellPlace(place), Act::Zoom,
           [place, steps] { TurnWheel(ToPixel(place), steps); });
    }
}

void RandomUser::ResizeWindow(const QSize& size)
{
    Do(QStringLiteral("resize %1x%2").arg(size.width()).arg(size.height()), Act::Zoom,
       [size] { ScriptedUser::FindWindow()->resize(size); });
}

/// Sometimes with another act between its characters.
void RandomUser::TypeValue()
{
    const QString text = Pick(Values);
    if (!IsOneIn(6))
        return Type(text);
    const int cut = Choose(text.size() + 1);
    Type(text.left(cut));
    switch (Choose(5))
    {
    case 0:
    case 1:
        Zoom();
        break;
    case 2:
    case 3:
        MoveMouse();
        break;
    default:
        CloseEditor();
    }
    Type(text.mid(cut));
}

/// As when requested by a window manager.
void RandomUser::CloseEditor()
{
    Do("close the editor", Act::CloseEditor, [] {
        auto* pEditor = ScriptedUser::FindView()->findChild<QLineEdit*>("ViewInputLineEdit");
        if (pEditor != nullptr && pEditor->isVisible())
            pEditor->close();
    });
}

void RandomUser::PressCommittingKey()
{
    if (IsOneIn(8))
        return PressAnyKey();
    const KeyChoice choice = Pick(CommittingKeys);
    Press(choice.name, choice.key, choice.modifier, Act::CommittingKey);
}

void RandomUser::PressAnyKey()
{
    const KeyChoice choice = Pick(OtherKeys);
    Press(choice.name, choice.key, choice.modifier);
}

void RandomUser::Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers, Act act)
{
    Do("press " + name, act, [key, modifiers] { ScriptedUser::PressNow(key, modifiers); });
}

void RandomUser::Type(const QString& text)
{
    Do("type " + text, Act::Other, [] {});
    for (const QChar character : text)
        Note([this, character] { m_watch.Type(character); });
}

void RandomUser::BeginBurst()
{
    m_isBurst = true;
}

void RandomUser::EndBurst()
{
    m_isBurst = false;
    if (!m_burst.empty())
        m_user.DoAtOnce(std::exchange(m_burst, {}));
}

void RandomUser::Do(const QString& name, Act act, std::function<void()> work)
{
    ++m_noted;
    Note([this, name, act, work = std::move(work)] { m_watch.Do(name, act, work); });
}

void RandomUser::Note(std::function<void()> step)
{
    if (m_isBurst)
        m_burst.push_back(std::move(step));
    else
        m_user.Do(std::move(step));
}

int RandomUser::Choose(int count)
{
    return static_cast<int>(m_random() % static_cast<unsigned>(count));
}

/// Relative to the centre of the view, in pixels; often a position clicked before, and often on a
/// line.
QPointF RandomUser::Place()
{
    constexpr double Step = 60.0;
    const int kind = Choose(4);
    if (kind == 0 && !m_clicked.empty())
        return Pick(m_clicked);
    if (kind == 1)
        return {Choose(700) - 350.0, Choose(600) - 300.0};
    return {Step * (Choose(5) - 2), Step * (Choose(5) - 2)};
}
