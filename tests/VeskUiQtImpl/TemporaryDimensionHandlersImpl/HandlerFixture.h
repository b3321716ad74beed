#pragma once

#include "Command/ActionManager.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"
#include "TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace vesk::test
{

VESK_EXPOSE(HandlerState, InputState, TemporaryDimensionHandler, m_InputState)
VESK_EXPOSE(HandlerData, TemporaryDimensionData, TemporaryDimensionHandler, m_data)

constexpr char BaseClass[] = "vesk::TemporaryDimensionHandler::";
constexpr char LinearClass[] = "vesk::LinearTemporaryDimensionHandler::";

/// A handler for a segment of length 50 and angle 53.13 degrees, made by the library's factory.
struct HandlerFixture
{
    explicit HandlerFixture(bool isLengthEnabled = true, bool isAngleEnabled = true)
    {
        host.window.show();
        context.SetLengthEnabled(isLengthEnabled);
        context.SetAngleEnabled(isAngleEnabled);
        opHandler = CreateHandler();
        opHandler->GenerateGraphics(&context);
    }

    OwnerPtr<ITemporaryDimensionHandler> CreateHandler() const
    {
        return TemporaryDimensionHandlerFactory::GetInstance()->UpdateOrCreateHandler(&context,
                                                                                      nullptr);
    }

    /// The handler as what the library knows it as.
    TemporaryDimensionHandler& Handler() const
    {
        return static_cast<TemporaryDimensionHandler&>(*opHandler);
    }

    /// The handler as its Qt object.
    QObject& Object() const { return *dynamic_cast<QObject*>(opHandler.Get()); }

    InputState State() const { return Handler().*MemberOf(HandlerState()); }
    void SetState(InputState state) { Handler().*MemberOf(HandlerState()) = state; }
    TemporaryDimensionData& Data() const { return Handler().*MemberOf(HandlerData()); }

    /// The editor of the host's view, null before there is one.
    QLineEdit* Editor() const
    {
        return host.view.findChild<QLineEdit*>(QStringLiteral("ViewInputLineEdit"));
    }

    /// Opens the length with a text, as if it had been typed.
    void TypeLength(const QString& text)
    {
        Handler().ShowInputWidget(InputState::IS_Length, false, true, text.toStdWString());
    }

    /// Sends a key press to the handler's own event operation.
    bool SendToHandler(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                       const QString& text = {})
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        return Object().event(&press);
    }

    /// Has the handler filter a key press of its editor.
    bool FilterKey(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        return Object().eventFilter(Editor(), &press);
    }

    HostFixture host;
    LinearTemporaryDimensionContext context{Coordinate3d(), Vector3d(0, 0, 0), Vector3d(30, 40, 0)};
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
