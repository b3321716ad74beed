#pragma once

#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/StandInNotes.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{

/// A context of the kind with that number.
class StandInContext final : public ITemporaryDimensionContext
{
public:
    /// The token lives as long as the context.
    explicit StandInContext(int kind, std::shared_ptr<int> pToken = nullptr)
        : m_kind(kind), m_pToken(std::move(pToken))
    {}

    Intervald GetFirstValueRange() const override { return {0.0, 1.0}; }
    Intervald GetSecondValueRange() const override { return {0.0, 1.0}; }
    int GetKind() const { return m_kind; }

private:
    int m_kind;
    std::shared_ptr<int> m_pToken;
};

/// What a stand-in handler does in its operations.
struct HandlerScript
{
    std::vector<std::string> log;
    std::function<void()> onGenerate;
    std::function<void()> onKeyDown;
    std::function<void()> onEndInput;
    std::string key; ///< The last key pressed, as "65 ctrl alt shift".
    bool isRawText = false;
};

/// Logs what happens to it, as "1.end input", and follows a script, which outlives it.
class StandInHandler final : public ITemporaryDimensionHandler, private StandInNotes
{
public:
    StandInHandler(int kind, HandlerScript& script)
        : StandInNotes(std::to_string(kind), script.log), m_kind(kind), m_script(script)
    {
        Note("made");
    }
    ~StandInHandler() override { Note("delete"); }

    OwnerPtr<IGraphicsNodeGroup>
    GenerateGraphics(const ITemporaryDimensionContext* /*pContext*/) override
    {
        Do("graphics", m_script.onGenerate);
        return IGraphicsNodeGroup::Create();
    }

    bool IsInputting() override { return m_isInputting; }
    bool HasEditorFocus() override { return m_isInputting; }

    void EndInput() override
    {
        m_isInputting = false;
        Do("end input", m_script.onEndInput);
    }

    void OnEditorReturnPressed() override {}

    bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift) override
    {
        m_script.key = std::to_string(virtualKey) + (isCtrl ? " ctrl" : "") +
                       (isAlt ? " alt" : "") + (isShift ? " shift" : "");
        if (virtualKey == '?')
            return false;
        m_isInputting = true;
        Do("key", m_script.onKeyDown);
        return true;
    }

    bool UpdateConfig(const ITemporaryDimensionContext* /*pContext*/) override { return true; }

    int GetKind() const { return m_kind; }

private:
    int m_kind;
    HandlerScript& m_script;
    bool m_isInputting = false;
};

/// Creates a stand-in for each kind but 0, for which there is no handler. Registered while it
/// exists.
class StandInHandlerFactory final : public ITemporaryDimensionHandlerFactory
{
public:
    explicit StandInHandlerFactory(HandlerScript& script) : m_script(script)
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(this);
    }
    ~StandInHandlerFactory() override
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(nullptr);
    }

    OwnerPtr<ITemporaryDimensionHandler>
    UpdateOrCreateHandler(const ITemporaryDimensionContext* pContext,
                          ITemporaryDimensionHandler* pCurrent) override
    {
        const int kind = dynamic_cast<const StandInContext&>(*pContext).GetKind();
        const auto* pHandler = dynamic_cast<StandInHandler*>(pCurrent);
        if (kind == 0 || (pHandler != nullptr && pHandler->GetKind() == kind))
            return nullptr;
        return MakeOwner<StandInHandler>(kind, m_script);
    }

private:
    HandlerScript& m_script;
};

/// Logs the positioning of editors, as "place". Set while it exists.
class StandInHandlerAccess final : public ITemporaryDimensionHandlerAccess
{
public:
    explicit StandInHandlerAccess(HandlerScript& script) : m_script(script)
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerAccess(this);
    }
    ~StandInHandlerAccess() override
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerAccess(nullptr);
    }

    void ResetEditorPosition(ITemporaryDimensionHandler& /*handler*/) override
    {
        m_script.log.push_back("place");
    }

    InputState GetInputState(ITemporaryDimensionHandler& /*handler*/) override
    {
        return InputState::IS_Angle;
    }

    bool IsRawTextInput(ITemporaryDimensionHandler& /*handler*/) override
    {
        return m_script.isRawText;
    }

private:
    HandlerScript& m_script;
};

}
