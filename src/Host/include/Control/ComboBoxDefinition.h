#pragma once

#include "Control/ControlDefinition.h"
#include "Control/IComboBoxDefinition.h"

#include <deque>
#include <string>
#include <vector>

namespace vesk
{

/// A combo box. The current index follows its item, as in every combo box: the first item added to
/// an empty list becomes current, items inserted or deleted before the current one shift the index,
/// and when the current item is deleted, the item that moves up to its index, or else the last one,
/// becomes current.
///
/// An invalid index is reported and changes nothing. An index written by a control that has yet to
/// receive earlier item changes changes nothing either.
class VESK_HOST_API ComboBoxDefinition : public ControlDefinition<IComboBoxDefinition>
{
public:
    /// `id` never changes; it is the object name of the widget.
    explicit ComboBoxDefinition(std::wstring id);

    std::vector<std::wstring> GetItems() const override;

    /// -1 for none.
    void SetCurrentIndex(int index) override;
    int GetCurrentIndex() const override;

    /// Appends an item.
    void AddItem(const std::wstring& text);

    /// Inserts an item before the one at `index`; at the end it is appended.
    void InsertItem(int index, const std::wstring& text);

    /// Removes an item; see above for what is current then.
    void DeleteItem(int index);

    /// Removes all items; none is current then.
    void ClearItems();

private:
    int GetCount() const { return static_cast<int>(m_items.size()); }

    /// Both ends are near: many programs add the newest item first.
    std::deque<std::wstring> m_items;
    int m_currentIndex = -1;
};

}
