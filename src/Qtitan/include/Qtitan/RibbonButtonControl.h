#pragma once

#include "Qtitan/QtitanExport.h"

#include <QPointer>
#include <QToolButton>
#include <QWidget>

namespace Qtitan
{

/// The form of a button in a ribbon.
enum class RibbonButtonForm
{
    /// As high as its group, with an icon of 32 pixels, arranged by the button's own style.
    Large,
    /// One row high, with an icon of 16 pixels at the left and the caption to its right, whatever
    /// the button's own style.
    Small
};

/// The slot of one tool button in a ribbon. It is shown exactly while it holds a button that is not
/// hidden, and gives the button all of its space. A checked button looks checked, unless it is a
/// split button (`MenuButtonPopup`).
class QTITAN_EXPORT RibbonButtonControl : public QWidget
{
    Q_OBJECT

public:
    /// An empty slot, which is hidden.
    explicit RibbonButtonControl(QWidget* pParent = nullptr,
                                 RibbonButtonForm form = RibbonButtonForm::Large);
    ~RibbonButtonControl() override;

    /// The form that the control was created with; it never changes.
    RibbonButtonForm form() const;

    /// The button in the slot; null if there is none, or if it was deleted or given another parent.
    QToolButton* widget() const;

    /// Puts a button into the slot: becomes its parent, draws it and sets the icon size of the
    /// form; its other properties stay unchanged. A previous button is hidden and left without a
    /// parent; the caller owns it again. Null empties the slot.
    void setWidget(QToolButton* pButton);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void childEvent(QChildEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

private:
    void followButton();

    const RibbonButtonForm m_form;
    /// A plain QWidget because it is no longer a QToolButton while it is being destroyed.
    QPointer<QWidget> m_pButton;
};

} // namespace Qtitan
