#pragma once

#include "Qtitan/QtitanExport.h"

#include <QWidget>

class QHBoxLayout;

namespace Qtitan
{

class RibbonGroup;
class RibbonScrollButton;

/// One page of a ribbon: groups from left to right. Where they do not fit, the page scrolls with
/// the wheel, with a button at each edge that has more behind it, and along with the focus.
/// Tab goes through the controls from left to right and in a column downwards, whatever the order
/// in which they were made.
class QTITAN_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT

public:
    /// Pages are made by RibbonBar::addPage.
    explicit RibbonPage(const QString& title, QWidget* pParent = nullptr);
    ~RibbonPage() override;

    /// The title as it was given, with its '&'.
    QString title() const;

    /// Adds a group at the right end and returns it; the page owns it.
    RibbonGroup* addGroup(const QString& title);

    /// Scrolls by the least that shows a widget of this page whole, or its left end when it is
    /// wider than the page.
    void ensureVisible(const QWidget& widget);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* pEvent) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;

private:
    void OnFocusChanged(QWidget* pOld, QWidget* pNow);
    void arrange();
    void scrollTo(int offset);
    int maximumOffset() const;

    QString m_title;
    QWidget* m_pContent;
    QHBoxLayout* m_pGroups;
    RibbonScrollButton* m_pLeft;
    RibbonScrollButton* m_pRight;
    int m_offset = 0;
};

} // namespace Qtitan
