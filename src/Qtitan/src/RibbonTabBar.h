#pragma once

#include <QTabBar>

namespace Qtitan
{

/// The tabs of a ribbon, drawn flat with the current one joined to the page below.
class RibbonTabBar final : public QTabBar
{
    Q_OBJECT

public:
    explicit RibbonTabBar(QWidget* pParent = nullptr);

    /// Sets whether the page of the current tab is shown below it.
    void setJoinedToPage(bool isJoined);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent* pEvent) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    void paintTab(QPainter& painter, int index) const;

    bool m_isJoinedToPage = true;
};

} // namespace Qtitan
