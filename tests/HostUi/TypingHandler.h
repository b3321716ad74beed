#pragma once

#include "Command/TypedValue.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/InputState.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

namespace vesk::test
{

/// A value that a handler committed.
struct TakenValue
{
    QString text;                    ///< As it was in the editor.
    EditorText typed;                ///< What the host knew about it at that moment.
    Qt::KeyboardModifiers modifiers; ///< Of the key that committed it.
};

/// A key that a handler received.
struct HeardKey
{
    int virtualKey = 0;
    bool isCtrl = false;
    bool isAlt = false;
    bool isShift = false;
};

/// What a handler must do, and what it did.
struct TypingScript
{
    InputState state = InputState::IS_Length;

    /// The keys, besides Return and Enter, that commit a value. Tab then continues with the angle.
    QSet<int> commitKeys;
    bool isRawTextInput = false;
    QString currentValue = QStringLiteral("50.000");
    std::vector<TakenValue> taken;
    std::vector<HeardKey> heard;
    std::wstring dimensionText; ///< Shown at the origin of the model unless it is empty.

    /// The texts of the values taken.
    QStringList TakenTexts() const
    {
        QStringList texts;
        for (const TakenValue& value : taken)
            texts << value.text;
        return texts;
    }
};

/// Commits any text in its editor, which floats over a view, when one of its keys is pressed.
class TypingHandler final : public QObject, public ITemporaryDimensionHandler
{
    Q_OBJECT
    Q_PROPERTY(bool rawTextInput READ IsRawTextInput)
    Q_PROPERTY(int inputState READ GetInputState)

public:
    /// The editor is the view's child; the script outlives the handler.
    TypingHandler(QWidget& view, TypingScript& script)
        : m_script(script), m_pEditor(new QLineEdit(&view))
    {
        m_pEditor->setObjectName(QStringLiteral("Editor"));
        m_pEditor->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        m_pEditor->resize(96, 26);
        m_pEditor->installEventFilter(this);
        OwnerPtr<IJournalUiObject> opUiObject = IJournalUiObject::Create();
        opUiObject->SetUiObject(Any(static_cast<QObject*>(m_pEditor)));
        IJournalManager::Get()->AddUiObject(std::move(opUiObject), 3, 0);
    }
    ~TypingHandler() override { delete m_pEditor; }

    OwnerPtr<IGraphicsNodeGroup> GenerateGraphics(const ITemporaryDimensionContext*) override
    {
        auto opGraphics = IGraphicsNodeGroup::Create();
        if (!m_script.dimensionText.empty())
            opGraphics->AddChild(IGraphicsText::Create(Vector3d::Zero(), m_script.dimensionText,
                                                       GraphicsRole::Dimension));
        return opGraphics;
    }

    bool IsInputting() override { return m_state != InputState::IS_None; }
    bool HasEditorFocus() override { return m_pEditor->hasFocus(); }

    void EndInput() override
    {
        m_state = InputState::IS_None;
        if (m_pEditor != nullptr)
            m_pEditor->hide();
    }

    void OnEditorReturnPressed() override { Take(Qt::NoModifier); }

    /// Shift+comma opens the editor with the current value, any other key but the comma with its
    /// character.
    bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift) override
    {
        constexpr int Comma = 188;
        m_script.heard.push_back({virtualKey, isCtrl, isAlt, isShift});
        if (virtualKey == Comma && !isShift)
            return false;
        m_state = m_script.state;
        m_pEditor->show();
        m_pEditor->setText(virtualKey == Comma ? m_script.currentValue
                                               : QString(QChar(virtualKey).toLower()));
        return true;
    }

    bool UpdateConfig(const ITemporaryDimensionContext*) override { return true; }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() != QEvent::KeyPress)
            return false;
        const auto& press = static_cast<const QKeyEvent&>(*pEvent);
        const int key = press.key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter && !m_script.commitKeys.contains(key))
            return false;
        Take(press.modifiers());
        if (key == Qt::Key_Tab)
            GoOn();
        else
            EndInput();
        return true;
    }

    Q_INVOKABLE void ResetEditorPosition() {}

private:
    bool IsRawTextInput() const { return m_script.isRawTextInput; }
    int GetInputState() const { return static_cast<int>(m_state); }

    void Take(Qt::KeyboardModifiers modifiers)
    {
        m_script.taken.push_back({m_pEditor->text(), EditorTextScope::Take(), modifiers});
    }

    void GoOn()
    {
        m_state = InputState::IS_Angle;
        m_pEditor->setText(m_script.currentValue);
        m_pEditor->selectAll();
    }

    TypingScript& m_script;
    InputState m_state = InputState::IS_None;
    QPointer<QLineEdit> m_pEditor;
};

/// Creates such a handler for any context. Registered while it lives.
class TypingHandlerFactory final : public ITemporaryDimensionHandlerFactory
{
public:
    TypingHandlerFactory(QWidget& view, TypingScript& script) : m_view(view), m_script(script)
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(this);
    }
    ~TypingHandlerFactory() override
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(nullptr);
    }

    OwnerPtr<ITemporaryDimensionHandler>
    UpdateOrCreateHandler(const ITemporaryDimensionContext*,
                          ITemporaryDimensionHandler* pCurrent) override
    {
        if (pCurrent != nullptr)
            return nullptr;
        return MakeOwner<TypingHandler>(m_view, m_script);
    }

private:
    QWidget& m_view;
    TypingScript& m_script;
};

}
