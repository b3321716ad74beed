#pragma once

#include "Control/IControlDefinition.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/Event.h"

namespace vesk::test
{

/// Forwards the changes of a definition, except those made by the user.
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

/// A definition of the host that does not echo: changes by the user are not reported to any
/// handler.
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
