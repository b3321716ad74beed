#pragma once

#include "Qtitan/QtitanExport.h"

#include <QWidget>

class QHBoxLayout;
class QToolButton;

namespace Qtitan
{

class RibbonButtonControl;
class RibbonColumn;

/// A titled part of a page. Large buttons stand side by side; small buttons and other widgets stack
/// in columns of three beside them, in the order in which they are added: what follows a large
/// button begins a new column. A group whose controls are all hidden hides until one of them is
/// shown.
class QTITAN_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT

public:
    /// Groups are made by RibbonPage::addGroup.
    explicit RibbonGroup(const QString& title, QWidget* pParent = nullptr);
    ~RibbonGroup() override;

    /// The title as it is shown, without '&'.
    QString title() const;

    /// Places a button as a large one and returns its control, which the group owns and which
    /// becomes the button's parent. The button may be hidden, disabled or deleted at any time.
    RibbonButtonControl* addButton(QToolButton* pButton);

    /// Stacks a button as a small one and returns its control, which the group owns and which
    /// becomes the button's parent. The button may be hidden, disabled or deleted at any time. It
    /// gives its place up while it is hidden or gone; the row stays the control's.
    RibbonButtonControl* addSmallButton(QToolButton* pButton);

    /// Stacks a widget; the ribbon becomes its parent. It may be hidden or deleted at any time,
    /// and gives its place up while it is. Null is ignored. A widget with a vertical or a grid
    /// layout, such as a column of boxes, fills a column alone; its layout loses margins and
    /// spacing.
    void addWidget(QWidget* pWidget);

    /// The same with a text before the widget, which names it and shares its visibility. An '&'
    /// in the label marks the letter of the widget's key tip.
    void addWidget(const QString& label, QWidget* pWidget);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    void append(QWidget* pItem);
    void applyMetrics();
    void followItems();
    QSize grownToTitle(const QSize& size) const;

    QString m_title;
    QHBoxLayout* m_pItems;
    RibbonColumn* m_pColumn = nullptr;
    bool m_hiddenWhileEmpty = false;
};

} // namespace Qtitan
