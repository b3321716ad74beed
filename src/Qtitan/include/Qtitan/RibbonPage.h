#pragma once

#include "Qtitan/QtitanExport.h"

#include <QWidget>

class QHBoxLayout;

namespace Qtitan
{

class RibbonGroup;
class RibbonScrollButton;

/// One page of a ribbon: groups from left to right. If they do not fit, the page scrolls with the
/// wheel, with a button at each edge that hides something, and to the focused control. Tab visits
/// the controls from left to right, and top to bottom within a column, in whatever order they were
/// created.
class QTITAN_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT

public:
    /// Use RibbonBar::addPage to create pages.
    explicit RibbonPage(const QString& title, QWidget* pParent = nullptr);
    ~RibbonPage() override;

    /// The title as given, with its '&'.
    QString title() const;

    /// Adds a group at the right end and returns it; the page owns it.
    RibbonGroup* addGroup(const QString& title);

    /// Scrolls just far enough to show a widget of this page completely, or its left end if it is
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
