#pragma once

#include "HostUi/DimensionInputController.h"
#include "HostUi/TypingHandler.h"

#include "Command/ActionManager.h"
#include "Command/Command.h"
#include "Command/ICommandManager.h"
#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Support/ActiveWindow.h"
#include "Support/HostFixture.h"
#include "Support/IdleAction.h"

#include <QCoreApplication>
#include <QLabel>

#include <functional>
#include <vector>

namespace vesk::test
{

using ContextMaker = std::function<OwnerPtr<ITemporaryDimensionContext>()>;

inline OwnerPtr<ITemporaryDimensionContext> MakeLinear()
{
    return MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), Vector3d::Zero(),
                                                      Vector3d(30, 40, 0));
}

inline OwnerPtr<ITemporaryDimensionContext> MakeRadius()
{
    return MakeOwner<RadiusTemporaryDimensionContext>(Coordinate3d(), Vector3d::Zero(),
                                                      Vector3d(30, 0, 0), Vector3d(0, 30, 0));
}

inline OwnerPtr<ITemporaryDimensionContext> MakeCentralAngle()
{
    return MakeOwner<CentralAngleTemporaryDimensionContext>(Coordinate3d(), Vector3d::Zero(),
                                                            Vector3d(30, 0, 0), Vector3d(0, 30, 0),
                                                            Vector3d(0, 40, 0));
}

using Refuse = std::function<std::wstring(InputState field, double value)>;

/// An action that only shows dimensions and rejects values.
class DimensionAction final : public IdleAction
{
public:
    DimensionAction(const ContextMaker& makeContext, const Refuse& refuse,
                    std::vector<InputState>& freed)
        : m_makeContext(makeContext), m_refuse(refuse), m_freed(freed)
    {}

    std::wstring GetRefusal(InputState field, double value) override
    {
        return m_refuse ? m_refuse(field, value) : std::wstring();
    }
    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override
    {
        return m_makeContext();
    }
    void OnValueFreed(InputState field) override { m_freed.push_back(field); }

private:
    ContextMaker m_makeContext;
    Refuse m_refuse;
    std::vector<InputState>& m_freed;
};

/// A view in which an action shows dimensions, and a user at the keyboard.
struct InputFixture
{
    explicit InputFixture(const TypingScript& typing, const ContextMaker& makeContext = &MakeLinear,
                          const Refuse& refuse = nullptr)
        : script(typing)
    {
        ShowActive(host.window);
        auto opCommand = MakeOwner<Command>(
            L"Test", Command::Kind::Interactive,
            [this, makeContext, refuse](IUiView*, const CommandParameters&) {
                return OwnerPtr<IAction>(new DimensionAction(makeContext, refuse, freed));
            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(&host.view, pCommand, {}, nullptr);
    }
    ~InputFixture() { ActionManager::Reset(); }

    InputFixture& Type(const QString& text)
    {
        for (const QChar character : text)
            Press(0, QString(character));
        return *this;
    }

    InputFixture& Press(int key, const QString& text = QString())
    {
        const int code = text.isEmpty() ? key : text.front().toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
        if (Editor()->isVisible())
            QCoreApplication::sendEvent(Editor(), &press);
        else
            controller.OnViewKey(press);
        return *this;
    }

    InputFixture& PressShiftComma()
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Less, Qt::ShiftModifier, QStringLiteral("<"));
        controller.OnViewKey(press);
        return *this;
    }

    QLineEdit* Editor() const { return host.view.findChild<QLineEdit*>("Editor"); }

    /// The text of a note; empty while it is hidden.
    QString Note(const char* name) const
    {
        const auto* pNote = host.view.findChild<QLabel*>(QLatin1String(name));
        return pNote != nullptr && pNote->isVisible() ? pNote->text() : QString();
    }

    /// The last text that the view was given.
    std::wstring Hint() const { return host.view.GetTexts().back(); }

    /// The fields whose locked values the action was told to free.
    std::vector<InputState> freed;

    HostFixture host;
    TypingScript script;
    DimensionInputController controller;
    TypingHandlerFactory factory{host.view, script};
};

inline TypingScript Linear()
{
    TypingScript script;
    script.commitKeys = {Qt::Key_Space, Qt::Key_Tab};
    return script;
}

inline TypingScript CentralAngle()
{
    TypingScript script;
    script.state = InputState::IS_CentralAngle;
    return script;
}

}
