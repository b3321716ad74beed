#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"

namespace vesk
{

class RadiusTemporaryDimensionContext;
struct HandlerDrawing;

/// Shows the radius of an arc through three points while it is drawn, and accepts a typed radius.
class RadiusTemporaryDimensionHandler final : public TemporaryDimensionHandler
{
    Q_OBJECT

public:
    using TemporaryDimensionHandler::TemporaryDimensionHandler;

    OwnerPtr<IGraphicsNodeGroup>
    GenerateGraphics(const ITemporaryDimensionContext* pContext) override;
    bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift) override;
    bool UpdateConfig(const ITemporaryDimensionContext* pContext) override;
    void ShowInputWidget(InputState state, bool editorReady, bool useGivenText,
                         std::wstring text) override;

    bool event(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

public slots:
    void OnEditorReturnPressed() override;

private:
    DimensionKind GetKind() const;
    void DrawCentralAngle(const RadiusTemporaryDimensionContext& context, HandlerDrawing& drawing);

    bool m_isCentralAngleShown = false;
};

}
