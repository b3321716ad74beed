#pragma once

#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/ItemDefinitionList.h"
#include "Control/LabelDefinition.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/WarningRecorder.h"

#include <memory>

namespace vesk
{

inline constexpr char InsertFunction[] = "vesk::Some::Insert";
inline constexpr char DeleteFunction[] = "vesk::Some::Delete";

/// Reports its destruction.
class ListedItem final : public LabelDefinition
{
public:
    ListedItem(const std::wstring& id, int& aliveCount)
        : LabelDefinition(id), m_aliveCount(aliveCount)
    {
        SetCaption(L"caption of " + id);
        ++m_aliveCount;
    }
    ~ListedItem() override { --m_aliveCount; }

private:
    int& m_aliveCount;
};

/// A list of the items "a", "b" and "c", and a record of its changes.
struct ItemListFixture
{
    ItemListFixture()
    {
        for (const wchar_t* id : {L"a", L"b", L"c"})
            Insert(pList->GetCount(), id);
        pRecorder = std::make_unique<ChangeRecorder>(*pEvent);
    }

    ListedItem* Insert(int index, const std::wstring& id)
    {
        auto opItem = MakeOwner<ListedItem>(id, aliveCount);
        ListedItem* pItem = opItem.Get();
        pList->Insert(index, std::move(opItem), InsertFunction);
        return pItem;
    }

    std::wstring GetIds() const
    {
        std::wstring ids;
        for (const IControlDefinition* pItem : pList->GetAll())
            ids += pItem->GetId();
        return ids;
    }

    void Destroy()
    {
        pList.reset();
        pEvent.reset();
    }

    int aliveCount = 0;
    std::unique_ptr<ControlDefinitionChangeEvent> pEvent =
        std::make_unique<ControlDefinitionChangeEvent>(L"owner");
    std::unique_ptr<ItemDefinitionList<LabelDefinition>> pList =
        std::make_unique<ItemDefinitionList<LabelDefinition>>(*pEvent);
    std::unique_ptr<ChangeRecorder> pRecorder;
    test::WarningRecorder warnings;
};

}
