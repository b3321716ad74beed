#pragma once

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"

namespace vesk
{

/// Shows the length and the angle of a segment while it is drawn, and accepts either as a typed
/// value.
class LinearTemporaryDimensionHandler final : public TemporaryDimensionHandler
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
    void OnEditorTabPressed();

private:
    DimensionKind GetKind() const;

    bool m_isLengthEnabled = false;
    bool m_isAngleEnabled = false;
};

}
