#include "Dimension/TemporaryDimensionMgr.h"
#include "VeskUiQtImpl/Control/VeskControlFactory.h"
#include "VeskUiQtImpl/NqUiQtImplFactory.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

namespace vesk
{
namespace
{

/// Unregisters the user-interface factory, which registered itself, before it is destroyed.
struct UiFactoryWithdrawal
{
    ~UiFactoryWithdrawal() { NqUiInterfaceFactory::m_pFactory = nullptr; }
};

/// Keeps a control factory registered while it lives.
class ControlFactoryRegistration
{
public:
    explicit ControlFactoryRegistration(VeskControlFactory* pFactory) { Access::Set(pFactory); }
    ~ControlFactoryRegistration() { Access::Set(nullptr); }
    ControlFactoryRegistration(const ControlFactoryRegistration&) = delete;
    ControlFactoryRegistration& operator=(const ControlFactoryRegistration&) = delete;

private:
    /// Only factories may register.
    struct Access : VeskIControlFactory
    {
        using VeskIControlFactory::Set;
    };
};

/// Keeps a handler factory registered while it lives.
class HandlerFactoryRegistration
{
public:
    explicit HandlerFactoryRegistration(TemporaryDimensionHandlerFactory* pFactory)
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(pFactory);
    }
    ~HandlerFactoryRegistration()
    {
        TemporaryDimensionMgr::GetInstance()->SetHandlerFactory(nullptr);
    }
    HandlerFactoryRegistration(const HandlerFactoryRegistration&) = delete;
    HandlerFactoryRegistration& operator=(const HandlerFactoryRegistration&) = delete;
};

// What the library registers when it is loaded, in this order. Each factory precedes its
// registration, and all are in one file: only that guarantees that unloading unregisters each one
// before it is destroyed, and all in reverse order.
NqUiQtImplFactory s_uiFactory;
UiFactoryWithdrawal s_uiFactoryWithdrawal;

VeskControlFactory s_controlFactory;
ControlFactoryRegistration s_controlFactoryRegistration(&s_controlFactory);

TemporaryDimensionHandlerFactory s_handlerFactory;
HandlerFactoryRegistration s_handlerFactoryRegistration(&s_handlerFactory);

}

/// Defined here because the instance is.
TemporaryDimensionHandlerFactory* TemporaryDimensionHandlerFactory::GetInstance()
{
    return &s_handlerFactory;
}

}
