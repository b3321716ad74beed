#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandlerFactory.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/CentralAngleTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/LinearTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RadiusTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RectangleTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/RotationTemporaryDimensionHandler.h"
#include "VeskUiQtImpl/ViewLookup.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <typeindex>

namespace vesk
{
namespace
{

/// Which handler serves which context.
struct HandlerKind
{
    std::type_index context;
    std::type_index handler;
    OwnerPtr<ITemporaryDimensionHandler> (*pCreate)(IUiView* pView);
};

template <class Handler>
OwnerPtr<ITemporaryDimensionHandler> CreateHandler(IUiView* pView)
{
    return MakeOwner<Handler>(pView);
}

template <class Context, class Handler>
HandlerKind KindOf()
{
    return {typeid(Context), typeid(Handler), &CreateHandler<Handler>};
}

/// The kind for exactly this class of context; null if there is none.
const HandlerKind* FindKind(const ITemporaryDimensionContext& context)
{
    static const std::array s_kinds{
        KindOf<LinearTemporaryDimensionContext, LinearTemporaryDimensionHandler>(),
        KindOf<RadiusTemporaryDimensionContext, RadiusTemporaryDimensionHandler>(),
        KindOf<CentralAngleTemporaryDimensionContext, CentralAngleTemporaryDimensionHandler>(),
        KindOf<RotationTemporaryDimensionContext, RotationTemporaryDimensionHandler>(),
        KindOf<RectangleTemporaryDimensionContext, RectangleTemporaryDimensionHandler>(),
    };
    const std::type_index type = typeid(context);
    const auto found =
        std::find_if(s_kinds.begin(), s_kinds.end(),
                     [&type](const HandlerKind& kind) { return kind.context == type; });
    return found != s_kinds.end() ? &*found : nullptr;
}

/// The name as the compiler gives it: it contains the class name and is plain ASCII.
std::wstring TypeName(const ITemporaryDimensionContext& context)
{
    const char* name = typeid(context).name();
    return std::wstring(name, name + std::strlen(name));
}

}

OwnerPtr<ITemporaryDimensionHandler>
TemporaryDimensionHandlerFactory::UpdateOrCreateHandler(const ITemporaryDimensionContext* pContext,
                                                        ITemporaryDimensionHandler* pCurrent)
{
    constexpr char Function[] = "vesk::TemporaryDimensionHandlerFactory::UpdateOrCreateHandler";
    if (!Check(pContext != nullptr, VESK_SITE(Function, L"pCtx为空!")))
        return nullptr;
    IUiView* pCurrentView = FindCurrentView();
    if (!Check(pCurrentView != nullptr, VESK_SITE(Function, L"pCurrentView为空")))
        return nullptr;

    const HandlerKind* pKind = FindKind(*pContext);
    const std::wstring noMatch = L"没有匹配的Handler：" + TypeName(*pContext);
    if (!Check(pKind != nullptr, VESK_SITE(Function, noMatch.c_str())))
        return nullptr;
    if (pCurrent != nullptr && pKind->handler == typeid(*pCurrent))
    {
        pCurrent->UpdateConfig(pContext);
        return nullptr;
    }
    OwnerPtr<ITemporaryDimensionHandler> opHandler = pKind->pCreate(pCurrentView);
    opHandler->UpdateConfig(pContext);
    return opHandler;
}

}
