// A Qt plug-in that uses the examples as their tutorials say: no example has any code for tests.
// It is loaded into them by QT_QPA_GENERIC_PLUGINS=example_user:<example>.

#include "Examples/ExampleUser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QStatusBar>

namespace vesk
{
namespace
{

using Steps = std::vector<ExampleStep>;

QMainWindow* FindWindow()
{
    for (QWidget* pWidget : QApplication::topLevelWidgets())
    {
        auto* pWindow = qobject_cast<QMainWindow*>(pWidget);
        if (pWindow != nullptr && pWindow->isVisible())
            return pWindow;
    }
    return nullptr;
}

/// A visible and enabled widget of the window by its object name.
template <class Widget>
Widget* Find(const QString& name)
{
    const QMainWindow* pWindow = FindWindow();
    auto* pWidget = pWindow != nullptr ? pWindow->findChild<Widget*>(name) : nullptr;
    return pWidget != nullptr && pWidget->isVisible() && pWidget->isEnabled() ? pWidget : nullptr;
}

QLineEdit* FindEditor()
{
    for (QWidget* pWidget : QApplication::allWidgets())
    {
        auto* pEditor = qobject_cast<QLineEdit*>(pWidget);
        if (pEditor != nullptr && pEditor->isVisible())
            return pEditor;
    }
    return nullptr;
}

bool IsChecked(const QString& button)
{
    const auto* pButton = Find<QAbstractButton>(button);
    return pButton != nullptr && pButton->isChecked();
}

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& position, Qt::MouseButton button)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void MoveTo(QWidget& widget, const QPoint& position)
{
    SendMouse(widget, QEvent::MouseMove, position, Qt::NoButton);
}

void ClickAt(QWidget& widget, const QPoint& position)
{
    SendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton);
}

void ClickView(const QPoint& position)
{
    MoveTo(*FindWindow()->centralWidget(), position);
    ClickAt(*FindWindow()->centralWidget(), position);
}

void PressIn(QWidget& widget, int key, const QString& text = QString())
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
    {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

/// Keys arrive in the view until the window system has moved the focus to the editor.
void Press(Qt::Key key)
{
    PressIn(*FindWindow()->centralWidget(), key);
}

void Type(const QString& text)
{
    for (const QChar character : text)
        PressIn(*FindWindow()->centralWidget(), character.toUpper().unicode(), character);
}

ExampleStep Click(const QString& button)
{
    return {"an enabled button " + button,
            [button] { return Find<QAbstractButton>(button) != nullptr; },
            [button] {
                auto& pressed = *Find<QAbstractButton>(button);
                ClickAt(pressed, pressed.rect().center());
            }};
}

ExampleStep Expect(const QString& what, std::function<bool()> isTrue)
{
    return {what, std::move(isTrue), [] {}};
}

ExampleStep ExpectText(const QString& label, const QString& text)
{
    return Expect('"' + text + "\" on " + label, [label, text] {
        const auto* pLabel = Find<QLabel>(label);
        return pLabel != nullptr && pLabel->text() == text;
    });
}

ExampleStep ExpectStatus(const QString& text)
{
    return Expect('"' + text + "\" in the status bar", [text] {
        return FindWindow() != nullptr && FindWindow()->statusBar()->currentMessage() == text;
    });
}

ExampleStep CloseWindow()
{
    return {"a window", [] { return FindWindow() != nullptr; }, [] { FindWindow()->close(); }};
}

Steps UseFirstControl()
{
    return {ExpectText("Example.Clicks", "clicks: 0"), Click("Example.Count"),
            ExpectText("Example.Clicks", "clicks: 1"), Click("Example.Count"),
            ExpectText("Example.Clicks", "clicks: 2"), CloseWindow()};
}

Steps UseTypedDimensions()
{
    const auto isRunning = [] { return IsChecked("Example.Line"); };
    const auto isEditing = [] { return FindEditor() != nullptr; };
    return {Click("Example.Line"),
            {"the running action", isRunning,
             [] {
                 ClickView({100, 100});
                 MoveTo(*FindWindow()->centralWidget(), {200, 60});
                 Type("2*60+5.5");
             }},
            {"an editor", isEditing,
             [] {
                 Press(Qt::Key_Tab);
                 Type("30");
                 Press(Qt::Key_Return);
             }},
            ExpectStatus("length 125.5"),
            {"the running action", isRunning, [] { Press(Qt::Key_Escape); }},
            Expect("no running action", [] { return !IsChecked("Example.Line"); }),
            CloseWindow()};
}

Steps UseOwnControl()
{
    const auto hasDial = [] { return Find<QWidget>("Example.Dial") != nullptr; };
    return {ExpectText("Example.Value", "turn the dial"),
            {"the dial", hasDial, [] { PressIn(*Find<QWidget>("Example.Dial"), Qt::Key_Up); }},
            ExpectText("Example.Value", "1, set by you"),
            Click("Example.Reset"),
            ExpectText("Example.Value", "0, set by the program"),
            Expect("a disabled button Example.Reset",
                   [] { return Find<QAbstractButton>("Example.Reset") == nullptr; }),
            CloseWindow()};
}

Steps UseExistingPlatform()
{
    const auto isRunning = [] { return IsChecked("Planner.Room"); };
    const auto isEditing = [] { return FindEditor() != nullptr; };
    return {Click("Planner.Room"),
            {"the running action", isRunning,
             [] {
                 ClickView({100, 300});
                 MoveTo(*FindWindow()->centralWidget(), {200, 200});
                 Type("4m");
             }},
            {"an editor", isEditing,
             [] {
                 Press(Qt::Key_Tab);
                 Type("3500");
                 Press(Qt::Key_Return);
             }},
            Expect("the room's size in the title",
                   [] {
                       return FindWindow() != nullptr &&
                              FindWindow()->windowTitle() == "1 room, 4000 x 3500 mm";
                   }),
            Expect("no running action", [] { return !IsChecked("Planner.Room"); }),
            CloseWindow()};
}

}

class ExampleUserPlugin final : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "example_user.json")

public:
    /// `example` is the name of the program. Null for an unknown one: then nothing closes it.
    QObject* create(const QString&, const QString& example) override
    {
        if (example == "first-control")
            return new ExampleUser(UseFirstControl());
        if (example == "typed-dimensions")
            return new ExampleUser(UseTypedDimensions());
        if (example == "own-control")
            return new ExampleUser(UseOwnControl());
        if (example == "existing-platform")
            return new ExampleUser(UseExistingPlatform());
        return nullptr;
    }
};

}

#include "ExampleSessions.moc"
