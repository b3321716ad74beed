#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

namespace Qtitan
{

class RibbonBar;

/// Watches a minimised ribbon whose page is open, and tells when to close it: a button has been
/// clicked or something chosen from a list, Escape was pressed, or the user has clicked or moved
/// the keyboard elsewhere. A click elsewhere in the window does nothing but that.
class RibbonOpening final : public QObject
{
    Q_OBJECT

public:
    explicit RibbonOpening(RibbonBar& bar);

    /// Begins or stops to watch.
    void setActive(bool isActive);
    bool isActive() const { return m_isActive; }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

signals:
    void ended();

private:
    bool isOfRibbon(const QWidget& widget) const;
    bool isOfWindow(const QWidget& widget) const;
    bool isDone(const QWidget& widget, const QEvent& event) const;
    bool onPress(const QWidget& widget);
    void onFocusChanged(QWidget* pOld, QWidget* pNow);
    void onDone();

    RibbonBar& m_bar;
    QTimer m_done;
    bool m_isActive = false;
    bool m_isClickElsewhere = false;
};

} // namespace Qtitan
