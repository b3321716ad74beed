#include "Control/ControlDefinitionChangeEvent.h"

#include "Control/ControlDefinitionChangeByUser.h"

namespace vesk
{

namespace
{

/// Refers to what the raiser passed: it lives on the stack of the call that emits it.
class ChangeEventArgs final : public IControlDefinitionChangeEventArgs
{
public:
    ChangeEventArgs(int type, int index, const std::wstring& caption,
                    const IControlDefinition* pItem, bool isByUser)
        : m_type(type), m_index(index), m_caption(caption), m_pItem(pItem), m_isByUser(isByUser)
    {}

    int GetType() const override { return m_type; }
    int GetIndex() const override { return m_index; }
    std::wstring GetItemCaption() const override { return m_caption; }
    const IControlDefinition* GetItemDefinition() const override { return m_pItem; }
    bool IsChangeByUser() const override { return m_isByUser; }

private:
    int m_type;
    int m_index;
    const std::wstring& m_caption;
    const IControlDefinition* m_pItem;
    bool m_isByUser;
};

}

ControlDefinitionChangeEvent::ControlDefinitionChangeEvent(const std::wstring& definitionId)
    : m_definitionId(definitionId)
{}

void ControlDefinitionChangeEvent::RaisePropertyChanged()
{
    RaiseItemsChanged(ControlDefinitionChangeEventType::PropertyChanged, -1, std::wstring(),
                      nullptr);
}

void ControlDefinitionChangeEvent::RaiseItemsChanged(int type, int index,
                                                     const std::wstring& caption,
                                                     const IControlDefinition* pItem)
{
    const bool isByUser = ControlDefinitionChangeByUser::IsChangeByUser(m_definitionId);
    ChangeEventArgs args(type, index, caption, pItem, isByUser);
    Emit(&args);
}

}
