#pragma once

#include "TemporaryDimensionHandlersImpl/KindTable.h"

#include <functional>
#include <memory>

namespace vesk::test
{

/// A handler in a view that may be destroyed first, and an action that receives its values.
template <class View>
struct MortalViewFixture : KindFixture
{
    /// The view is created with the other arguments.
    template <class... Arguments>
    explicit MortalViewFixture(const KindRules& rules, Arguments... arguments)
        : KindFixture(rules.pCreateContext()), kind(rules),
          pView(std::make_unique<View>(2, &host.window, arguments...))
    {
        host.BeginAction();
        host.core.GetViewManager().AddView(pView.get());
        host.core.GetViewManager().SetCurrentView(pView.get());
        opHandler = CreateHandler();
    }

    ~MortalViewFixture()
    {
        ActionManager::Reset();
        DropView();
    }

    void DropView()
    {
        host.core.GetViewManager().RemoveView(pView.get());
        pView.reset();
    }

    /// Destroys "handler", "editor" or "view"; the view destroys its editor. "nobody" is none of
    /// them.
    void Kill(const QString& victim)
    {
        if (victim == "handler")
            opHandler.Reset();
        else if (victim == "editor")
            delete Editor();
        else if (victim == "view")
            DropView();
    }

    /// Also null without a view.
    QLineEdit* Editor() const
    {
        return pView != nullptr ? pView->template findChild<QLineEdit*>("ViewInputLineEdit")
                                : nullptr;
    }

    /// Opens the first field with a text, as if it had been typed.
    void TypeFirst(const QString& text) { Type(kind.StartState(), text); }

    bool FilterKey(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        return Object().eventFilter(Editor(), &press);
    }

    /// Presses a key in the editor as the window system does.
    void PressInEditor(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(Editor(), &press);
    }

    /// Calls every function that a host might still call.
    void UseHandler()
    {
        opHandler->OnEditorReturnPressed();
        QMetaObject::invokeMethod(&Object(), "OnEditorTabPressed");
        QMetaObject::invokeMethod(&Object(), "ResetEditorPosition");
        opHandler->HasEditorFocus();
        opHandler->EndInput();
    }

    const KindRules& kind;
    std::unique_ptr<View> pView;
};

using LifetimeFixture = MortalViewFixture<TestView>;

/// Does something once when a widget gets an event of a given type. A widget destroyed by that no
/// longer gets the event: Qt would crash.
class EventTrap final : public QObject
{
public:
    EventTrap(QWidget* pWidget, QEvent::Type type, std::function<void()> act)
        : m_type(type), m_act(std::move(act))
    {
        pWidget->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() != m_type)
            return false;
        const QPointer<QObject> pWidget(pWatched);
        if (const auto act = std::exchange(m_act, nullptr))
            act();
        return pWidget == nullptr;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_act;
};

/// Does something once when a warning is raised, as a dialog that runs an event loop might.
class WarningTrap final : public IDebugWarningObserver
{
public:
    explicit WarningTrap(std::function<void()> act) : m_act(std::move(act))
    {
        DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this);
    }

    ~WarningTrap() override { DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this); }

    void OnDebugWarning(const DebugWarning&) override
    {
        if (const auto act = std::exchange(m_act, nullptr))
            act();
    }

private:
    std::function<void()> m_act;
};

}
