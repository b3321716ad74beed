#include "Graphics/IGraphicsNode.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "View/IUiView.h"
#include "View/UiViewUtility.h"

namespace vesk
{

OwnerPtr<IGraphicsNodeGroup> TemporaryDimensionHandler::CreateGroup()
{
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->SetPickable(false);
    return opGroup;
}

TemporaryDimensionHandler::Drawing
TemporaryDimensionHandler::BeginDrawing(const ITemporaryDimensionContext* pContext,
                                        bool isOwnContext, const char* function,
                                        const wchar_t* wrongContext) const
{
    if (!Check(pContext != nullptr, VESK_SITE(function, L"pCtx为空")))
        return {};
    Drawing drawing{CreateGroup(), {}};
    if (!Check(isOwnContext, VESK_SITE(function, wrongContext)))
        return drawing;
    const IUiView* pView = FindDrawableView(function);
    if (pView != nullptr)
        drawing.pixel = UiViewUtility::ComputeWorldWidthFromPixel(pView, 1);
    return drawing;
}

/// The view if it can be drawn in; otherwise null, with a warning in the name of `function`.
IUiView* TemporaryDimensionHandler::FindDrawableView(const char* function) const
{
    IUiView* pView = FindView();
    if (!Check(pView != nullptr, VESK_SITE(function, L"pUIView为空！")))
        return nullptr;
    if (!Check(pView->GetModelView() != nullptr, VESK_SITE(function, L"pModelView为空！")))
        return nullptr;
    return pView;
}

}
