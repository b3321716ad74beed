#include "ScriptedUser.h"

#include "Session.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Support/TestValues.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QStatusBar>
#include <QStyleOptionToolButton>
#include <QToolButton>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

using vesk::Vector3d;

namespace
{

constexpr qint64 PatienceMs = 120000;

QPoint PixelOf(const SketchView& view, double x, double y)
{
    double pixelX = 0.0;
    double pixelY = 0.0;
    double depth = 0.0;
    view.GetCamera().WorldToScreen(Vector3d(x, y, 0.0), pixelX, pixelY, depth);
    return {qRound(pixelX), qRound(pixelY)};
}

QPoint ArrowOf(const QToolButton& button)
{
    QStyleOptionToolButton option;
    option.initFrom(&button);
    option.features = QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::MenuButtonPopup;
    option.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    return button.style()
        ->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, &button)
        .center();
}

QMenu* MenuOf(const QAction& entry)
{
    return qobject_cast<QMenu*>(entry.parent());
}

void ClickEntry(QMenu& menu, QAction& entry)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&entry).center());
}

void MoveMouse(double x, double y, Qt::MouseButtons buttons)
{
    ScriptedUser::MovePointer(PixelOf(*ScriptedUser::FindView(), x, y), buttons);
}

QWidget* KeyboardTarget()
{
    QWidget* pFocus = QApplication::focusWidget();
    return pFocus != nullptr ? pFocus : ScriptedUser::FindView();
}

}

ScriptedUser::ScriptedUser()
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &ScriptedUser::DoNext);
}

ScriptedUser& ScriptedUser::Click(const QString& controlId)
{
    Until([controlId] {
        const QAbstractButton* pButton = FindButton(controlId);
        // One that was made just now has no size until its layout is done.
        return pButton != nullptr && pButton->isEnabled() && !pButton->size().isEmpty();
    });
    return Do([controlId] { QTest::mouseClick(FindButton(controlId), Qt::LeftButton); });
}

ScriptedUser& ScriptedUser::OpenMenu(const QString& buttonId)
{
    Do([buttonId] {
        QToolButton* pButton = FindMenuButton(buttonId);
        QTest::mouseClick(pButton, Qt::LeftButton, {}, ArrowOf(*pButton));
    });
    return Until([buttonId] { return FindMenuButton(buttonId)->menu()->isVisible(); });
}

ScriptedUser& ScriptedUser::Choose(const QString& buttonId, const QString& commandId)
{
    OpenMenu(buttonId);
    Do([buttonId, commandId] {
        QMenu* pMenu = FindMenuButton(buttonId)->menu();
        QMenu* pSubMenu = MenuOf(*FindEntry(commandId));
        if (pSubMenu != pMenu)
            ClickEntry(*pMenu, *pSubMenu->menuAction());
    });
    Until([commandId] { return MenuOf(*FindEntry(commandId))->isVisible(); });
    return Do([commandId] {
        QAction* pEntry = FindEntry(commandId);
        ClickEntry(*MenuOf(*pEntry), *pEntry);
    });
}

ScriptedUser& ScriptedUser::ChooseItem(const QString& boxId, int index)
{
    Do([boxId] { QTest::mouseClick(FindBox(boxId), Qt::LeftButton); });
    Until([boxId] { return FindBox(boxId)->view()->isVisible(); });
    return Do([boxId, index] {
        QAbstractItemView* pList = FindBox(boxId)->view();
        QTest::keyClick(pList, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(pList, Qt::Key_Down);
        QTest::keyClick(pList, Qt::Key_Return);
    });
}

ScriptedUser& ScriptedUser::MoveTo(double x, double y)
{
    return Do([x, y] { MoveMouse(x, y, Qt::NoButton); });
}

ScriptedUser& ScriptedUser::PressAt(double x, double y, Qt::KeyboardModifiers modifiers)
{
    return Do([x, y, modifiers] {
        QTest::mousePress(FindView(), Qt::LeftButton, modifiers, PixelOf(*FindView(), x, y));
    });
}

ScriptedUser& ScriptedUser::DragTo(double x, double y)
{
    return Do([x, y] { MoveMouse(x, y, Qt::LeftButton); });
}

ScriptedUser& ScriptedUser::ReleaseAt(double x, double y)
{
    return Do([x, y] {
        QTest::mouseRelease(FindView(), Qt::LeftButton, {}, PixelOf(*FindView(), x, y));
    });
}

ScriptedUser& ScriptedUser::Drag(double startX, double startY, double endX, double endY,
                                 Qt::KeyboardModifiers modifiers)
{
    PressAt(startX, startY, modifiers).DragTo((startX + endX) / 2, (startY + endY) / 2);
    return DragTo(endX, endY).ReleaseAt(endX, endY);
}

ScriptedUser& ScriptedUser::ClickAt(double x, double y, Qt::KeyboardModifiers modifiers)
{
    return Do([x, y, modifiers] {
        QTest::mouseClick(FindView(), Qt::LeftButton, modifiers, PixelOf(*FindView(), x, y));
    });
}

ScriptedUser& ScriptedUser::DrawLine(double startX, double startY, double endX, double endY)
{
    Click(QStringLiteral("Sketcher.Line")).ClickAt(startX, startY).ClickAt(endX, endY);
    return Press(Qt::Key_Escape).UntilRunning(QString());
}

ScriptedUser& ScriptedUser::Type(const QString& text)
{
    for (const QChar character : text)
        Do([character] { TypeNow(character); });
    return *this;
}

ScriptedUser& ScriptedUser::Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    return Do([key, modifiers] { PressNow(key, modifiers); });
}

ScriptedUser& ScriptedUser::Do(std::function<void()> step)
{
    m_steps.push_back([step = std::move(step)] {
        step();
        return true;
    });
    return *this;
}

ScriptedUser& ScriptedUser::DoAtOnce(const std::vector<std::function<void()>>& steps)
{
    const auto pLeft = std::make_shared<std::size_t>(steps.size());
    const auto post = [this, pLeft](const std::function<void()>& step) {
        QTimer::singleShot(0, this, [pLeft, step] {
            --*pLeft;
            step();
        });
    };
    Do([steps, post] { std::for_each(steps.begin(), steps.end(), post); });
    return Until([pLeft] { return *pLeft == 0; });
}

ScriptedUser& ScriptedUser::UntilRunning(const QString& commandId)
{
    return Until([commandId] { return IsRunning(commandId); });
}

ScriptedUser& ScriptedUser::Until(std::function<bool()> condition)
{
    m_steps.push_back([this, condition = std::move(condition)] {
        if (!m_waiting.isValid())
            m_waiting.start();
        const bool isGivenUp = m_waiting.elapsed() > PatienceMs;
        if (!condition() && !isGivenUp)
            return false;
        m_waiting.invalidate();
        if (isGivenUp)
            QTest::qFail("what was waited for did not happen", __FILE__, __LINE__);
        return true;
    });
    return *this;
}

int ScriptedUser::Run(const Options& options)
{
    Session session(options);
    // Without a display the screen has 800 x 600 pixels: panes would give way. On a larger one, a
    // window manager keeps the window as large as the screen.
    m_steps.push_front([] {
        constexpr QSize Large(1200, 900);
        const QSize size = FindWindow()->size();
        const bool isLarge = size.expandedTo(Large) == size;
        if (!isLarge)
            FindWindow()->resize(Large);
        return isLarge;
    });
    Schedule();
    return session.Run();
}

void ScriptedUser::MovePointer(const QPoint& pixel, Qt::MouseButtons buttons)
{
    SketchView* pView = FindView();
    QMouseEvent move(QEvent::MouseMove, pixel, pView->mapToGlobal(pixel), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(pView, &move);
}

void ScriptedUser::TypeNow(QChar character)
{
    QTest::keyClick(KeyboardTarget(), character.toLatin1());
}

void ScriptedUser::PressNow(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(KeyboardTarget(), key, modifiers);
}

SketcherWindow* ScriptedUser::FindWindow()
{
    for (QWidget* pWidget : QApplication::topLevelWidgets())
    {
        if (auto* pWindow = qobject_cast<SketcherWindow*>(pWidget))
            return pWindow;
    }
    return nullptr;
}

QString ScriptedUser::States()
{
    const auto* pStates = FindWindow()->statusBar()->findChild<QLabel*>("States");
    return pStates->isVisible() ? pStates->text() : QString();
}

SketchView* ScriptedUser::FindView()
{
    return &FindWindow()->GetView();
}

QDialog* ScriptedUser::FindDialog()
{
    for (QWidget* pWidget : QApplication::topLevelWidgets())
    {
        auto* pDialog = qobject_cast<QDialog*>(pWidget);
        if (pDialog != nullptr && pDialog->isVisible())
            return pDialog;
    }
    return nullptr;
}

QAbstractButton* ScriptedUser::FindButton(const QString& controlId)
{
    return FindWindow()->findChild<QAbstractButton*>(controlId);
}

QToolButton* ScriptedUser::FindMenuButton(const QString& controlId)
{
    return FindWindow()->findChild<QToolButton*>(controlId);
}

QComboBox* ScriptedUser::FindBox(const QString& controlId)
{
    return FindWindow()->findChild<QComboBox*>(controlId);
}

bool ScriptedUser::IsRunning(const QString& commandId)
{
    return vesk::ActionManager::GetRunningCommandId() == commandId.toStdWString();
}

QAction* ScriptedUser::FindEntry(const QString& commandId)
{
    const QList<QAction*> actions = FindWindow()->findChildren<QAction*>();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](const QAction* pAction) {
        return pAction->property("CommandId").toString() == commandId;
    });
    return found != actions.end() ? *found : nullptr;
}

void ScriptedUser::Schedule()
{
    m_next.start(0);
}

void ScriptedUser::DoNext()
{
    if (m_steps.empty())
    {
        FindWindow()->close();
        return;
    }
    // The next step becomes due before this one returns, since this one may run an event loop.
    Step step = std::move(m_steps.front());
    m_steps.pop_front();
    Schedule();
    if (!step())
        m_steps.push_front(std::move(step));
}
