#pragma once

#include "HostUi/HostUiExport.h"

#include <QObject>

class QWidget;

namespace vesk
{

class DimensionInputController;
class DrawingView;

/// Keeps the keyboard with the drawing while an action runs, whatever is clicked in a ribbon.
///
/// What is clicked there works without the focus, and when the click is done, with the list or the
/// menu that it opened, an open editor has the keyboard again, else the view. So it does after a
/// list or menu that was opened with the keys. A control that takes text keeps the focus.
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

    /// Whether something in the ribbon is being clicked or chosen for which the keyboard is to come
    /// back.
    bool m_isUnderWay = false;
};

}
