#include "Control/ControlDefinitionChangeEvent.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/IControl.h"

#include <cstddef>
#include <list>
#include <utility>
#include <vector>

namespace vesk
{

namespace
{

/// Refers to the arguments of the call that raised the event, on whose stack it lives.
class ChangeEventArgs final : public IControlDefinitionChangeEventArgs
{
public:
    ChangeEventArgs(int type, int index, const std::wstring& caption,
                    const IControlDefinition* pItem, bool isByUser)
        : m_type(type), m_index(index), m_caption(caption), m_pItem(pItem), m_isByUser(isByUser)
    {}

    int GetType() const override { return m_type; }
    int GetIndex() const override { return m_index; }
    const std::wstring& GetItemCaption() const override { return m_caption; }
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

/// An item change that is being delivered, and the changes made since.
struct ControlDefinitionChangeEvent::Telling
{
    /// An item change that has yet to be delivered.
    struct WaitingChange
    {
        int type;
        int index;
        std::wstring caption;
        const IControlDefinition* pItem;
        std::shared_ptr<const void> pKept;
        bool isByUser;
        std::size_t placeCount; ///< Of the handlers that were subscribed when it happened.
    };

    Telling(ControlDefinitionChangeEvent& told, bool isByUserThen)
        : emission(told), event(told), isByUser(isByUserThen)
    {
        event.m_pTelling = this;
    }
    ~Telling() { End(); }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

    bool IsEventAlive() const { return emission.IsEventAlive(); }
    bool IsFollowed() const { return !items.empty() || !properties.empty(); }

    /// True when the handlers being notified may not know all items and properties yet.
    bool AreHandlersBehind() const { return IsFollowed() || !emission.IsOutermost(); }

    /// Adds a property change; consecutive ones with the same mark are merged.
    void AddProperty(bool isPropertyByUser)
    {
        if (properties.empty() || properties.back() != isPropertyByUser)
            properties.push_back(isPropertyByUser);
    }

    /// From now on no change has to wait.
    void End()
    {
        if (IsEventAlive() && event.m_pTelling == this)
            event.m_pTelling = nullptr;
    }

    Emission emission;
    ControlDefinitionChangeEvent& event;
    const bool isByUser;
    std::list<WaitingChange> items; ///< Kept until the end: a handler may add to them.
    std::vector<bool> properties;   ///< For each, whether it is the user's.
};

ControlDefinitionChangeEvent::ControlDefinitionChangeEvent(const std::wstring& definitionId)
    : m_definitionId(definitionId)
{}

void ControlDefinitionChangeEvent::RaisePropertyChanged()
{
    const bool isByUser = ControlDefinitionChangeByUser::IsChangeByUser(m_definitionId);
    if (m_pTelling != nullptr)
        m_pTelling->AddProperty(isByUser);
    else
        EmitProperty(isByUser);
}

void ControlDefinitionChangeEvent::RaiseItemsChanged(int type, int index,
                                                     const std::wstring& caption,
                                                     const IControlDefinition* pItem,
                                                     std::shared_ptr<const void> pKept)
{
    const bool isByUser = ControlDefinitionChangeByUser::IsChangeByUser(m_definitionId);
    if (m_pTelling != nullptr)
    {
        m_pTelling->items.push_back(
            {type, index, caption, pItem, std::move(pKept), isByUser, GetPlaceCount()});
        return;
    }

    Telling telling(*this, isByUser);
    FirstException exception;
    ChangeEventArgs args(type, index, caption, pItem, isByUser);
    exception.Catch([&] { Emit(&args); });
    if (telling.IsEventAlive())
        TellWaiting(telling, exception);
    exception.Throw();
}

/// Delivers the changes made meanwhile, until there are none left or the event is destroyed.
void ControlDefinitionChangeEvent::TellWaiting(Telling& telling, FirstException& exception)
{
    const auto& items = telling.items;
    for (auto item = items.begin(); telling.IsEventAlive() && item != items.end(); ++item)
    {
        ChangeEventArgs args(item->type, item->index, item->caption, item->pItem, item->isByUser);
        exception.Catch([&] { EmitTo(item->placeCount, &args); });
    }
    if (!telling.IsEventAlive() || !telling.AreHandlersBehind())
        return;

    if (telling.properties.empty())
        telling.AddProperty(false);
    telling.End();
    for (const bool isByUser : telling.properties)
    {
        if (telling.IsEventAlive())
            exception.Catch([&] { EmitProperty(isByUser); });
    }
}

void ControlDefinitionChangeEvent::EmitProperty(bool isByUser)
{
    static const std::wstring s_noCaption;
    ChangeEventArgs args(ControlDefinitionChangeEventType::PropertyChanged, -1, s_noCaption,
                         nullptr, isByUser);
    Emit(&args);
}

bool ControlDefinitionChangeEvent::RefuseFromBehind()
{
    if (m_pTelling == nullptr)
        return false;
    const bool isFromControl = dynamic_cast<const IControl*>(GetCalledHandler()) != nullptr;
    const bool isFromUser = ControlDefinitionChangeByUser::IsChangeByUser(m_definitionId);
    const bool isRefused =
        isFromControl ? m_pTelling->AreHandlersBehind() : isFromUser && !m_pTelling->isByUser;
    if (isRefused)
        m_pTelling->AddProperty(false);
    return isRefused;
}

}
