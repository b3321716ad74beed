#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"

namespace vesk
{

/// Shows the angle of a rotation about a centre while the user rotates, and accepts a typed angle.
class RotationTemporaryDimensionHandler final : public TemporaryDimensionHandler
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
};

}
