#pragma once

#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/Event.h"

namespace vesk::test
{

/// Passes the changes of a definition on, but not those that the user made.
class ChangeByUserFilter final
    : public IControlDefinitionChangeEventHandler,
      public Event<IControlDefinition, IControlDefinitionChangeEvent,
                   IControlDefinitionChangeEventHandler, IControlDefinitionChangeEventArgs>
{
public:
    explicit ChangeByUserFilter(IControlDefinitionChangeEvent* pSource);
    ~ChangeByUserFilter() override;

    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    IControlDefinitionChangeEvent* m_pSource;
};

/// A definition of the host that does not echo: what the user does is told to nobody.
template <class Definition>
class Silent final : public Definition
{
public:
    using Definition::Definition;

    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_filter;
    }

private:
    mutable ChangeByUserFilter m_filter{Definition::GetControlDefinitionChangeEvent()};
};

}
