#pragma once

#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/PropertyName.h"
#include "VeskUiQtImpl/CreateChild.h"

#include "HostUi/QtText.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vesk
{

/// Creates the button that shows an item as a child of `pParent`, with caption, name and tool tip.
/// Returns null, with a warning in the name of `function`, if it cannot be created.
template <class Button>
Button* CreateItemButton(QWidget* pParent, const IControlDefinition* pDefinition,
                         const char* function)
{
    if (!Check(pParent != nullptr, VESK_SITE(function, L"m_pParent为空")))
        return nullptr;
    if (!Check(pDefinition != nullptr, VESK_SITE(function, L"pDefinition为空")))
        return nullptr;

    auto* pButton = CreateChild<Button>(pParent, function);
    if (pButton == nullptr)
        return nullptr;
    pButton->setText(ToQString(pDefinition->GetCaption()));
    pButton->setProperty(PropertyName::IsDefinition, true);
    pButton->setObjectName(ToQString(pDefinition->GetId()));
    pButton->setToolTip(ToQString(pDefinition->GetTooltip()));
    return pButton;
}

/// Operations on the buttons of a group: they keep its list, the button group and the layout of the
/// parent in step with the items of a definition.
///
/// Created for one operation; it refers to the group's own members. Ids follow Qt's automatic
/// numbering, one less than the smallest present, but are passed to Qt explicitly as long as the
/// group holds no other buttons: otherwise Qt would search all ids for each button. Failures are
/// reported in the name of `function`, the operation of the group. A report may run an event loop,
/// and so may a handler of a button's change: code that continues afterwards first checks whether
/// the group is still alive.
template <class Button>
class ButtonGroupItems
{
public:
    ButtonGroupItems(QButtonGroup& group, QWidget* pParent, std::vector<Button*>& buttons)
        : m_group(group), m_pParent(pParent), m_buttons(buttons)
    {}

    /// Appends a button to list and group and returns it; null if that destroyed the button or the
    /// group.
    Button* Append(Button* pButton)
    {
        const QPointer<QButtonGroup> pGroup(&m_group);
        const QPointer<Button> pAppended(pButton);
        // The last button has the smallest id, unless the group holds others: then Qt searches.
        const bool isOfItems = !m_buttons.empty() && CountGrouped() == m_buttons.size();
        m_group.addButton(pButton, isOfItems ? m_group.id(m_buttons.back()) - 1 : Automatic);
        if (pGroup == nullptr || pAppended == nullptr)
            return nullptr;
        m_buttons.push_back(pButton);
        return pButton;
    }

    /// An item was appended: `append` creates its button, which is then placed after the last one.
    template <class Item, class AppendItem>
    void OnAdd(const IControlDefinitionChangeEventArgs* pArgs, AppendItem append,
               const char* function)
    {
        if (!Check(pArgs != nullptr, VESK_SITE(function, L"pArgs为空")))
            return;
        if (!Check(m_pParent != nullptr, VESK_SITE(function, L"m_pParent为空")))
            return;
        const QPointer<QLayout> pLayout(m_pParent->layout());
        if (!Check(pLayout != nullptr, VESK_SITE(function, L"pLayout为空")))
            return;

        // For a null widget, a layout would return the position of a spacer.
        const int lastPlace = m_buttons.empty() ? -1 : FindPlace(*pLayout, m_buttons.back());
        const auto* pItem = dynamic_cast<const Item*>(pArgs->GetItemDefinition());
        if (!Check(pItem != nullptr, VESK_SITE(function, L"pCheckBoxDefine为空")))
            return;
        const QPointer<QButtonGroup> pGroup(&m_group);
        Button* pButton = append(pItem);
        if (pGroup == nullptr || !Check(pButton != nullptr, VESK_SITE(function, L"pControl为空")))
            return;
        Place(pLayout, lastPlace + 1, pButton, function);
    }

    /// An item was inserted before another: `create` creates its button, and `noButton` is reported
    /// if it does not. All buttons are regrouped so that their ids stay in order; a failure leaves
    /// them ungrouped.
    template <class Item, class CreateButton>
    void OnInsert(const IControlDefinitionChangeEventArgs* pArgs, CreateButton create,
                  const wchar_t* noButton, const char* function)
    {
        if (!Check(pArgs != nullptr, VESK_SITE(function, L"pArgs为空")))
            return;
        const QPointer<QButtonGroup> pGroup(&m_group);
        Ungroup(function);
        if (pGroup == nullptr)
            return;
        const auto* pItem = dynamic_cast<const Item*>(pArgs->GetItemDefinition());
        if (!Check(pItem != nullptr, VESK_SITE(function, L"pDefinition为空")))
            return;
        Button* pButton = create(pItem);
        if (pGroup == nullptr || !Check(pButton != nullptr, VESK_SITE(function, noButton)))
            return;
        const int index = pArgs->GetIndex();
        if (!Check(Has(index), VESK_SITE(function, L"insertControlDefinitionIndex有误")))
            return;
        QLayout* pLayout = m_pParent->layout();
        if (!Check(pLayout != nullptr, VESK_SITE(function, L"pLayout为空")))
            return;

        const auto next = m_buttons.begin() + index;
        if (!Place(pLayout, pLayout->indexOf(*next), pButton, function))
            return;
        m_buttons.insert(next, pButton);
        Group(function);
    }

    /// The item at `index` was removed: its button leaves list and group now and is deleted later.
    void OnDelete(int index, const char* function)
    {
        if (!Check(Has(index), VESK_SITE(function, L"deleteControlDefinitionIndex有误")))
            return;
        const auto place = m_buttons.begin() + index;
        if (*place == nullptr)
            return;
        m_group.removeButton(*place);
        (*place)->deleteLater();
        m_buttons.erase(place);
    }

    /// All items were removed.
    void OnClear(const char* function)
    {
        const auto remove = [this](Button* pButton) {
            m_group.removeButton(pButton);
            pButton->deleteLater();
        };
        if (ForEachButton(remove, function))
            m_buttons.clear();
    }

    /// Calls `apply(button, item, isAlive)` for each button and its item, in order, except for
    /// those where `isEqual(button, item)` tells that it would change nothing; `noPair` is reported
    /// where either is missing. `getItems()` returns the list of the items.
    ///
    /// Handlers of a change may do anything: `isAlive()` tells whether the group still exists and
    /// the button is still at its position in it; the loop ends at the first button for which it is
    /// not. Comparing runs no handler, so that nothing has to be copied or looked after meanwhile.
    template <class GetItems, class IsEqual, class Apply>
    void ForEach(GetItems getItems, IsEqual isEqual, Apply apply, const wchar_t* noPair,
                 const char* function)
    {
        if (!Check(m_buttons.size() == getItems().size(), VESK_SITE(function, L"数据有误")))
            return;

        const QPointer<QButtonGroup> pGroup(&m_group);
        for (std::size_t i = 0; SkipEqual(i, getItems(), isEqual); ++i)
        {
            Button* pButton = m_buttons[i];
            const auto* pItem = getItems()[i];
            const auto isAlive = [&] {
                return pGroup != nullptr && i < m_buttons.size() && m_buttons[i] == pButton;
            };
            if (Check(pButton != nullptr && pItem != nullptr, VESK_SITE(function, noPair)))
                apply(*pButton, *pItem, isAlive);
            if (!isAlive())
                return;
        }
    }

private:
    /// Lets Qt assign the id.
    static constexpr int Automatic = -1;

    std::size_t CountGrouped() const { return std::size_t(m_group.buttons().size()); }

    bool Has(int index) const
    {
        return index >= 0 && static_cast<std::size_t>(index) < m_buttons.size();
    }

    /// Advances `i` to the next pair that is incomplete or not equal; false if there is none.
    template <class Item, class IsEqual>
    bool SkipEqual(std::size_t& i, const std::vector<const Item*>& items, IsEqual isEqual) const
    {
        const std::size_t count = std::min(m_buttons.size(), items.size());
        Button* const* pButtons = m_buttons.data();
        const Item* const* pItems = items.data();
        std::size_t next = i;
        while (next < count && pButtons[next] != nullptr && pItems[next] != nullptr &&
               isEqual(*pButtons[next], *pItems[next]))
            ++next;
        i = next;
        return i < count;
    }

    /// The position of a button in the layout, -1 if it is not there. It is searched from the end:
    /// a widget is in a layout at most once, and those of a group mostly come last.
    static int FindPlace(const QLayout& layout, const Button* pButton)
    {
        int place = layout.count() - 1;
        while (place >= 0 && layout.itemAt(place)->widget() != pButton)
            --place;
        return place;
    }

    void Ungroup(const char* function)
    {
        ForEachButton([this](Button* pButton) { m_group.removeButton(pButton); }, function);
    }

    void Group(const char* function)
    {
        const bool isOfItems = CountGrouped() == 0;
        int id = Automatic;
        const auto add = [&](Button* pButton) {
            m_group.addButton(pButton, isOfItems ? --id : Automatic);
        };
        ForEachButton(add, function);
    }

    /// Applies an operation to each button; false if the group was destroyed meanwhile.
    template <class Operation>
    bool ForEachButton(Operation operation, const char* function)
    {
        const QPointer<QButtonGroup> pGroup(&m_group);
        // By index: while a missing button is reported, others may be added or removed.
        for (std::size_t i = 0; pGroup != nullptr && i < m_buttons.size(); ++i)
        {
            if (Check(m_buttons[i] != nullptr, VESK_SITE(function, L"iter为空")))
                operation(m_buttons[i]);
        }
        return pGroup != nullptr;
    }

    static bool Place(QLayout* pLayout, int position, Button* pButton, const char* function)
    {
        auto* pBoxLayout = qobject_cast<QBoxLayout*>(pLayout);
        if (!Check(pBoxLayout != nullptr, VESK_SITE(function, L"pQBoxLayout为空")))
            return false;
        pBoxLayout->insertWidget(position, pButton);
        return true;
    }

    QButtonGroup& m_group;
    QWidget* m_pParent;
    std::vector<Button*>& m_buttons;
};

}
