#pragma once

#include "Qtitan/QtitanExport.h"

#include <QWidget>

class QHBoxLayout;
class QToolButton;

namespace Qtitan
{

class RibbonButtonControl;
class RibbonColumn;

/// A titled part of a page. Large buttons are placed side by side; small buttons and other widgets
/// are stacked beside them in columns of three, in the order in which they are added. After a large
/// button a new column begins. A group whose controls are all hidden hides until one of them is
/// shown.
class QTITAN_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT

public:
    /// Use RibbonPage::addGroup to create groups.
    explicit RibbonGroup(const QString& title, QWidget* pParent = nullptr);
    ~RibbonGroup() override;

    /// The title as shown, without '&'.
    QString title() const;

    /// Adds a large button and returns its control, which the group owns and which becomes the
    /// button's parent. The button may be hidden, disabled or deleted at any time.
    RibbonButtonControl* addButton(QToolButton* pButton);

    /// Adds a small button to the stack and returns its control, which the group owns and which
    /// becomes the button's parent. The button may be hidden, disabled or deleted at any time; the
    /// space closes up then, but the row still belongs to the control.
    RibbonButtonControl* addSmallButton(QToolButton* pButton);

    /// Adds a widget to the stack; the ribbon becomes its parent. It may be hidden or deleted at
    /// any time; the space closes up then. Null is ignored. A widget with a vertical or grid
    /// layout, such as a column of check boxes, gets a column of its own; its layout loses margins
    /// and spacing.
    void addWidget(QWidget* pWidget);

    /// The same with a label before the widget, which names it and shares its visibility. An '&' in
    /// the label marks the letter of the widget's key tip.
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
