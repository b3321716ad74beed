#pragma once

#include "Control/ControlDefinition.h"
#include "Control/IComboBoxDefinition.h"

namespace vesk
{

/// A combo box. The current index stays with its item, as in every combo box: the first item of an
/// empty list becomes current, items that come or go before the current one move the index, and
/// when the current one goes, the item that takes its place, or else the last one, is current.
///
/// A bad index is reported and changes nothing. An index that a control writes while it still hears
/// of earlier changes of the items changes nothing either.
class VESK_HOST_API ComboBoxDefinition : public ControlDefinition<IComboBoxDefinition>
{
public:
    explicit ComboBoxDefinition(std::wstring id);

    std::vector<std::wstring> GetItems() const override;

    /// -1 for none.
    void SetCurrentIndex(int index) override;
    int GetCurrentIndex() const override;

    void AddItem(const std::wstring& text);

    /// Puts an item before the one at `index`; at the end it is an appended one.
    void InsertItem(int index, const std::wstring& text);
    void DeleteItem(int index);
    void ClearItems();

private:
    int GetCount() const { return static_cast<int>(m_items.size()); }

    std::vector<std::wstring> m_items;
    int m_currentIndex = -1;
};

}
