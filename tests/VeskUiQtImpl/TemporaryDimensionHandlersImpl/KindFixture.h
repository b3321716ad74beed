#pragma once

#include "Command/ActionManager.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Graphics/IGraphicsNode.h"
#include "HostUi/LineEditValidateHelper.h"
#include "Support/ActiveWindow.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace vesk::test
{

VESK_EXPOSE(HandlerState, InputState, TemporaryDimensionHandler, m_InputState)
VESK_EXPOSE(HandlerData, TemporaryDimensionData, TemporaryDimensionHandler, m_data)

constexpr char BaseClass[] = "vesk::TemporaryDimensionHandler::";

/// A handler of any kind, created for a context by the factory of the library.
struct KindFixture
{
    explicit KindFixture(OwnerPtr<ITemporaryDimensionContext> opGiven)
        : opContext(std::move(opGiven))
    {
        ShowActive(host.window);
        opHandler = CreateHandler();
        opHandler->GenerateGraphics(opContext.Get());
    }

    OwnerPtr<ITemporaryDimensionHandler> CreateHandler() const
    {
        return TemporaryDimensionHandlerFactory::GetInstance()->UpdateOrCreateHandler(
            opContext.Get(), nullptr);
    }

    /// The handler as the class by which the library knows it.
    TemporaryDimensionHandler& Handler() const
    {
        return static_cast<TemporaryDimensionHandler&>(*opHandler);
    }

    /// The handler as its Qt object.
    QObject& Object() const { return *dynamic_cast<QObject*>(opHandler.Get()); }

    InputState State() const { return Handler().*MemberOf(HandlerState()); }
    void SetState(InputState state) { Handler().*MemberOf(HandlerState()) = state; }
    TemporaryDimensionData& Data() const { return Handler().*MemberOf(HandlerData()); }

    /// The editor of the view of the host; null until it is created.
    QLineEdit* Editor() const
    {
        return host.view.findChild<QLineEdit*>(QStringLiteral("ViewInputLineEdit"));
    }

    /// Opens a field with a text, as if it had been typed.
    void Type(InputState state, const QString& text)
    {
        Handler().ShowInputWidget(state, false, true, text.toStdWString());
    }

    /// Sends a key press to the handler's own event function.
    bool SendToHandler(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                       const QString& text = {})
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        return Object().event(&press);
    }

    /// Makes the handler filter a key press of its editor.
    bool FilterKey(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        return Object().eventFilter(Editor(), &press);
    }

    /// Applies the ranges and flags of the context, as when an action passes it again.
    void Configure() { opHandler->UpdateConfig(opContext.Get()); }

    bool IsValidatedLive() const
    {
        return Object().findChild<LineEditValidateHelper*>() != nullptr;
    }

    std::vector<ActionViewInput>& Inputs() { return host.actionLog.inputs; }

    HostFixture host;
    OwnerPtr<ITemporaryDimensionContext> opContext;
    OwnerPtr<ITemporaryDimensionHandler> opHandler;
};

/// A context of a class that no handler fits.
class ForeignContext final : public ITemporaryDimensionContext
{
public:
    Intervald GetFirstValueRange() const override { return {0, 1}; }
    Intervald GetSecondValueRange() const override { return {0, 1}; }
};

}
