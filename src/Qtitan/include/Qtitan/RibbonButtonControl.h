#pragma once

#include "Qtitan/QtitanExport.h"

#include <QPointer>
#include <QToolButton>
#include <QWidget>

namespace Qtitan
{

/// How a button stands in a ribbon.
enum class RibbonButtonForm
{
    /// As high as its group, with an icon of 32 pixels, arranged as the button's own style says.
    Large,
    /// One row high, with an icon of 16 pixels at the left and the caption at its right, whatever
    /// the button's own style says.
    Small
};

/// The place of one tool button in a ribbon. It is shown exactly while it holds a button that is
/// not hidden, and gives the button all of its room. A button looks checked while it is, but for a
/// split one (`MenuButtonPopup`).
class QTITAN_EXPORT RibbonButtonControl : public QWidget
{
    Q_OBJECT

public:
    explicit RibbonButtonControl(QWidget* pParent = nullptr,
                                 RibbonButtonForm form = RibbonButtonForm::Large);
    ~RibbonButtonControl() override;

    /// The form that the control was made in; it keeps it for good.
    RibbonButtonForm form() const;

    /// The placed button itself; null when there is none, or when it was deleted or has been
    /// given another parent.
    QToolButton* widget() const;

    /// Places a button, becomes its parent, draws it and gives it the icon size of the form; its
    /// other properties stay. A button placed before is hidden and left without a parent: it is the
    /// caller's again. Null empties the control.
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
    /// A tool button, but no longer one while it is being destroyed: then it must not be looked at
    /// as one.
    QPointer<QWidget> m_pButton;
};

} // namespace Qtitan
