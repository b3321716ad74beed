#pragma once

#include "HostUi/InputFixture.h"

#include "Dimension/LengthUnit.h"
#include "Support/TestValues.h"

#include <QMouseEvent>

#include <vector>

namespace vesk::test
{

/// What an action that takes points does, and what it was given.
struct PointScript
{
    bool takesPoint = true;
    bool refuses = false;
    bool hasDimensions = false;
    std::vector<Vector3d> points;
    std::vector<Vector3d> clicks;
};

class TypedPointAction final : public IdleAction
{
public:
    explicit TypedPointAction(PointScript& script) : m_script(script) {}

    bool TakesPoint() const override { return m_script.takesPoint; }
    void OnClick(const Vector3d& world) override { m_script.clicks.push_back(world); }
    bool OnPoint(const Vector3d& world) override
    {
        if (m_script.refuses)
            return false;
        m_script.points.push_back(world);
        return true;
    }
    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override
    {
        return m_script.hasDimensions ? MakeLinear() : nullptr;
    }

private:
    PointScript& m_script;
};

/// A view in which an action takes points, and a user at the keyboard.
struct PointFixture
{
    explicit PointFixture(const PointScript& given = {}) : points(given)
    {
        host.window.show();
        auto opCommand = MakeOwner<Command>(
            L"Test", Command::Kind::Interactive, [this](IUiView*, const CommandParameters&) {
                return OwnerPtr<IAction>(new TypedPointAction(points));
            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(&host.view, pCommand, {}, nullptr);
    }
    ~PointFixture()
    {
        ActionManager::Reset();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
    }

    PointFixture& Type(const QString& text)
    {
        for (const QChar character : text)
            Press(character.toUpper().unicode(), QString(character));
        return *this;
    }

    PointFixture& Press(int key, const QString& text = QString())
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        if (QLineEdit* pField = controller.GetOpenField())
            QCoreApplication::sendEvent(pField, &press);
        else
            controller.OnViewKey(press);
        return *this;
    }

    void PressInView(int key, const QString& text = QString(), bool isAutoRepeat = false)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, isAutoRepeat);
        controller.OnViewKey(press);
    }

    void SendMouse(QEvent::Type type, QPoint pixel, Qt::MouseButton button)
    {
        QMouseEvent event(type, pixel, host.view.mapToGlobal(pixel), button, button,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&host.view, &event);
    }

    QWidget* Fields() const { return host.view.findChild<QWidget*>("PointFields"); }
    QString X() const { return Text().x; }
    QString Y() const { return Text().y; }
    QString Message() const { return Text().message; }
    QString Current() const
    {
        const QLineEdit* pField = controller.GetOpenField();
        return pField != nullptr ? pField->objectName() : QString();
    }

    QString Note(const char* name) const
    {
        const auto* pNote = host.view.findChild<QLabel*>(QLatin1String(name));
        return pNote != nullptr && pNote->isVisible() ? pNote->text() : QString();
    }

    PointScript points;
    HostFixture host;
    TypingScript script;
    DimensionInputController controller;
    TypingHandlerFactory factory{host.view, script};

private:
    DimensionInputController::TypedPoint Text() const
    {
        return controller.GetTypedPoint().value_or(DimensionInputController::TypedPoint());
    }
};

}
