#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"

namespace vesk
{

/// Shows the width and the height of a rectangle while it is drawn, and accepts either as a typed
/// value.
class RectangleTemporaryDimensionHandler final : public TemporaryDimensionHandler
{
    Q_OBJECT

public:
    using TemporaryDimensionHandler::TemporaryDimensionHandler;

    OwnerPtr<IGraphicsNodeGroup>
    GenerateGraphics(const ITemporaryDimensionContext* pContext) override;
    bool OnKeyDown(int virtualKey, bool isCtrl, bool isAlt, bool isShift) override;
    void ShowInputWidget(InputState state, bool editorReady, bool useGivenText,
                         std::wstring text) override;

    bool event(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

public slots:
    void OnEditorReturnPressed() override;
    void OnEditorTabPressed();
};

}
