#pragma once

#include "Model/Workspace.h"

#include "Command/IAction.h"
#include "Dimension/ActionViewInput.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/InputField.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"
#include "Support/TestValues.h"
#include "Support/TestView.h"

#include <QString>

#include <cmath>
#include <string>
#include <vector>

/// An action running in a drawing, with a view of one unit per pixel. Collects its records.
template <class Action>
class ActionFixture final : public vesk::IJournalObserver
{
public:
    ActionFixture() { vesk::JournalManager::GetInstance().AddObserver(this); }
    ~ActionFixture() override { vesk::JournalManager::GetInstance().RemoveObserver(this); }
    ActionFixture(const ActionFixture&) = delete;
    ActionFixture& operator=(const ActionFixture&) = delete;

    void OnRecord(const vesk::JournalRecord& record) override
    {
        // As it will be when read back.
        vesk::JournalRecord read;
        std::string error;
        QVERIFY(vesk::JournalFormat::FromLine(vesk::JournalFormat::ToLine(record), read, error));
        records.push_back(read);
    }
    void OnUiObject(const vesk::IJournalUiObject&, int) override {}

    void Begin() { action.OnBegin(&view); }
    void MoveTo(double x, double y) { action.OnMouseMove({x, y, 0}); }
    void ClickAt(double x, double y) { action.OnClick({x, y, 0}); }

    /// Draws 50 shapes with two or three clicks each, at points that no short number tells.
    void DrawFiftyCrookedShapes(int clickCount)
    {
        workspace.snapper.SetOn(Snapper::End, false);
        Begin();
        for (int i = 1; i <= 50; ++i)
        {
            ClickAt(i / 3.0, -i * 1.7);
            ClickAt(i * 7.1, std::sqrt(i));
            if (clickCount == 3)
                ClickAt(-i, i * i / 7.0);
        }
    }

    /// Types a number, or confirms the one shown.
    void Type(vesk::ActionViewInput::Kind kind, double value, bool isUnchanged = false)
    {
        const vesk::InputMeaning meaning = vesk::FindInputMeaning(kind);
        const bool isLength = vesk::QuantityOf(meaning.field) == vesk::Quantity::Length;
        const double modelValue = isLength ? vesk::LengthUnit::GetCurrent().ToModel(value) : value;
        action.OnViewInput(
            {kind, value, {}, {}},
            {meaning.field, modelValue, std::to_wstring(value), isUnchanged, meaning.isCommitted});
    }

    /// Types a text with a value in model units.
    void TypeText(vesk::ActionViewInput::Kind kind, const std::wstring& text, double value,
                  double modelValue)
    {
        const vesk::InputMeaning meaning = vesk::FindInputMeaning(kind);
        action.OnViewInput({kind, value, {}, {}},
                           {meaning.field, modelValue, text, false, meaning.isCommitted});
    }

    /// The dimensions offered now; null if there are none or others.
    template <class Context>
    vesk::OwnerPtr<Context> Offered() const
    {
        vesk::OwnerPtr<vesk::ITemporaryDimensionContext> opContext =
            action.CreateDimensionContext();
        auto* pContext = dynamic_cast<Context*>(opContext.Get());
        if (pContext != nullptr)
            opContext.Release();
        return vesk::OwnerPtr<Context>(pContext);
    }

    /// The only entity's shape; the test fails if it is of another kind.
    template <class Kind>
    Kind Drawn() const
    {
        const auto& entities = workspace.sketch.GetEntities();
        const Kind* pShape = entities.empty() ? nullptr : std::get_if<Kind>(&entities.back().shape);
        if (pShape == nullptr)
            QTest::qFail("no such shape was drawn", __FILE__, __LINE__);
        return pShape != nullptr ? *pShape : Kind{};
    }

    std::size_t Count() const { return workspace.sketch.GetEntities().size(); }

    /// Replays the records on another drawing, first set up by `prepare`. True if the result is the
    /// same bit for bit and the same records are made. No more records are collected afterwards.
    template <class Prepare>
    bool IsRepeated(const Prepare& prepare)
    {
        vesk::JournalManager::GetInstance().RemoveObserver(this);
        ActionFixture again;
        prepare(again.workspace);
        again.records.clear();
        again.action.OnBegin(nullptr);
        for (const vesk::JournalRecord& record : records)
        {
            if (!again.Repeat(record))
                return false;
        }
        return again.GetShapes() == GetShapes() && again.GetLines() == GetLines();
    }

    bool IsRepeated()
    {
        return IsRepeated([](Workspace&) {});
    }

    Workspace workspace;
    vesk::test::TestView view{1, nullptr};
    Action action{workspace};
    std::vector<vesk::JournalRecord> records;

private:
    bool Repeat(const vesk::JournalRecord& record)
    {
        if (const auto* pPoint = std::get_if<vesk::PointRecord>(&record.what))
            return action.ReplayPoint(pPoint->point, pPoint->entity);
        if (const auto* pValue = std::get_if<vesk::ValueRecord>(&record.what))
            return action.ReplayValue(pValue->field, pValue->text, pValue->value);
        if (const auto* pSelection = std::get_if<vesk::SelectionRecord>(&record.what))
            return workspace.selection.Select(pSelection->entities);
        return false;
    }

    std::vector<Shape> GetShapes() const
    {
        std::vector<Shape> shapes;
        for (const Entity& entity : workspace.sketch.GetEntities())
            shapes.push_back(entity.shape);
        return shapes;
    }

    std::vector<std::string> GetLines() const
    {
        std::vector<std::string> lines;
        for (const vesk::JournalRecord& record : records)
        {
            const std::string line = vesk::JournalFormat::ToLine(record);
            lines.push_back(line.substr(line.find(',')));
        }
        return lines;
    }
};
