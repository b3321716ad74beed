#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/HandlerDrawing.h"

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/ViewLookup.h"
#include "View/IUiView.h"
#include "View/UiViewUtility.h"

namespace vesk
{
namespace
{

/// The view if it can be drawn in; otherwise null, with a warning in the name of `function`.
const IUiView* FindDrawableView(std::uint32_t viewId, const char* function)
{
    const IUiView* pView = FindViewById(viewId);
    if (!Check(pView != nullptr, VESK_SITE(function, L"pUIView为空！")))
        return nullptr;
    if (!Check(pView->GetModelView() != nullptr, VESK_SITE(function, L"pModelView为空！")))
        return nullptr;
    return pView;
}

}

OwnerPtr<IGraphicsNodeGroup> HandlerDrawing::CreateGroup()
{
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->SetPickable(false);
    return opGroup;
}

HandlerDrawing HandlerDrawing::Begin(std::uint32_t viewId,
                                     const ITemporaryDimensionContext* pContext, bool isOwnContext,
                                     const char* function, const wchar_t* wrongContext)
{
    if (!Check(pContext != nullptr, VESK_SITE(function, L"pCtx为空")))
        return {};
    HandlerDrawing drawing{CreateGroup(), {}};
    if (!Check(isOwnContext, VESK_SITE(function, wrongContext)))
        return drawing;
    const IUiView* pView = FindDrawableView(viewId, function);
    if (pView != nullptr)
        drawing.pixel = UiViewUtility::ComputeWorldWidthFromPixel(pView, 1);
    return drawing;
}

}
