#pragma once

#include "HostUi/HostUiExport.h"

#include <QObject>

class QWidget;

namespace vesk
{

class DimensionInputController;
class DrawingView;

/// Keeps the keyboard focus in the drawing while an action runs, whatever is clicked in a ribbon.
///
/// A control clicked there works without the focus. When the click is done, including any list or
/// menu it opened, an open editor gets the focus back, else the view; likewise after a list or menu
/// that was opened with the keyboard. A control that accepts text keeps the focus.
class VESK_HOST_UI_API RibbonFocus final : public QObject
{
public:
    /// The arguments are not owned and outlive this.
    RibbonFocus(const QWidget& ribbon, DrawingView& view, const DimensionInputController& input);
    ~RibbonFocus() override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool IsOfRibbon(const QWidget& widget) const;
    void OnPress(const QWidget& pressed);
    void OnPopupShown(const QWidget& popup);
    void OnSomethingDone();
    void GiveBack();

    const QWidget& m_ribbon;
    DrawingView& m_view;
    const DimensionInputController& m_input;

    /// Whether something in the ribbon is being clicked or chosen after which the focus is
    /// returned.
    bool m_isUnderWay = false;
};

}
