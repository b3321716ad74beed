#pragma once

#include "Command/ActionManager.h"
#include "Command/IAction.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/IApplication.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/StandInNotes.h"
#include "Support/IdleAction.h"
#include "Support/IdleApplication.h"
#include "Support/IdleView.h"
#include "View/IUiView.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{

using Log = std::vector<std::string>;

/// Runs the posted events one after the other until Quit is called.
class ScriptedLoop final : public IActionEventLoop
{
public:
    using Event = std::function<void()>;

    void Run() override
    {
        ++m_runCount;
        m_greatestDepth = std::max(m_greatestDepth, ++m_depth);
        m_isQuit = false;
        while (!m_isQuit && !m_events.empty())
        {
            const Event event = std::move(m_events.front());
            m_events.pop_front();
            event();
        }
        --m_depth;
    }

    void Quit() override { m_isQuit = true; }

    void Post(Event event) { m_events.push_back(std::move(event)); }

    int GetRunCount() const { return m_runCount; }
    int GetDepth() const { return m_depth; }
    int GetGreatestDepth() const { return m_greatestDepth; }

private:
    std::deque<Event> m_events;
    bool m_isQuit = false;
    int m_runCount = 0;
    int m_depth = 0;
    int m_greatestDepth = 0;
};

/// What a stand-in action does in its operations.
struct ActionScript
{
    std::function<void()> onBegin;
    std::function<void()> onMouseMove;
    std::function<void()> onClick;
    std::function<void(const ActionViewInput&)> onViewInput;
    TypedValue typed;                  ///< What was typed for the last input.
    IUiView* pView = nullptr;          ///< The view in which it began.
    Vector3d world = Vector3d::Zero(); ///< The last point it received.
    std::function<void()> onEnd;
    std::function<OwnerPtr<ITemporaryDimensionContext>()> makeContext;
    bool hasLocks = false;
    bool isFinished = false;
    bool canReplay = true;
    std::wstring text = L"next point";
};

/// Logs what happens to it, as "Line.click", and follows a script, which outlives it.
class StandInAction final : public test::IdleAction, private StandInNotes
{
public:
    StandInAction(std::string name, Log& log, ActionScript& script)
        : StandInNotes(std::move(name), log), m_script(script)
    {}
    ~StandInAction() override { Note("delete"); }

    std::wstring GetViewText() const override { return m_script.text; }

    void OnBegin(IUiView* pView) override
    {
        m_script.pView = pView;
        Do("begin", m_script.onBegin);
    }

    void OnMouseMove(const Vector3d& world) override
    {
        m_script.world = world;
        Do("move", m_script.onMouseMove);
    }

    void OnClick(const Vector3d& world) override
    {
        m_script.world = world;
        Do("click", m_script.onClick);
    }

    void OnEnd() override { Do("end", m_script.onEnd); }

    void OnViewInput(const ActionViewInput& input, const TypedValue& typed) override
    {
        Note("input");
        m_script.typed = typed;
        if (m_script.onViewInput)
            m_script.onViewInput(input);
    }

    void OnValueFreed(InputState field) override
    {
        Note("freed " + std::to_string(static_cast<int>(field)));
    }

    bool OnEscape() override
    {
        Note("escape");
        return std::exchange(m_script.hasLocks, false);
    }

    bool IsFinished() const override { return m_script.isFinished; }

    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override
    {
        return m_script.makeContext ? m_script.makeContext() : nullptr;
    }

    bool ReplayPoint(const Vector3d& world, const std::optional<int>& entity) override
    {
        Note("point " + std::to_string(static_cast<int>(world.x())) +
             (entity.has_value() ? " on " + std::to_string(*entity) : std::string()));
        return m_script.canReplay;
    }

    bool ReplayValue(InputState field, const std::wstring& text, double value) override
    {
        Note("value " + std::to_string(static_cast<int>(field)) + " " +
             std::string(text.begin(), text.end()) + " " + std::to_string(static_cast<int>(value)));
        return m_script.canReplay;
    }

private:
    ActionScript& m_script;
};

/// Records the calls made to it.
class RecordingView final : public test::IdleView
{
public:
    using IdleView::IdleView;

    void SetViewText(const std::wstring& text) override { m_text = text; }
    void Activate() override { ++m_activationCount; }
    void Redraw() override { ++m_redrawCount; }

    const std::wstring& GetText() const { return m_text; }
    int GetActivationCount() const { return m_activationCount; }
    int GetRedrawCount() const { return m_redrawCount; }

private:
    std::wstring m_text;
    int m_activationCount = 0;
    int m_redrawCount = 0;
};

/// Counts posted events.
class CountingApplication final : public test::IdleApplication
{
public:
    void PostEvent(OwnerPtr<IApplicationEvent> /*opEvent*/) override { ++m_postCount; }

    int GetPostCount() const { return m_postCount; }

private:
    int m_postCount = 0;
};

}
