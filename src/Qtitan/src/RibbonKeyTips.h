#pragma once

#include "KeyTipList.h"

#include <QObject>

class QAbstractButton;
class QKeyEvent;
class QWindow;

namespace Qtitan
{

class ClickWatcher;
class KeyTipBadge;

/// Keyboard access to a ribbon, as documented at RibbonBar. Watches the bar's window from the first
/// time the bar is shown there; consumes only the keys that it acts on.
class RibbonKeyTips final : public QObject
{
    Q_OBJECT

public:
    /// The bar becomes the parent.
    explicit RibbonKeyTips(RibbonBar& bar);
    ~RibbonKeyTips() override;

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    /// Tips are shown exactly in Tabs and Controls; AltHeld lasts while nothing but Alt is used.
    enum class State
    {
        Off,
        AltHeld,
        Tabs,
        Controls
    };

    bool isOn() const;
    void attach();
    bool onWindowEvent(QEvent& event);
    bool onShortcutOverride(QKeyEvent& event);
    bool onKeyPress(const QKeyEvent& event);
    bool onKeyPressWhileOff(const QKeyEvent& event);
    bool onKeyPressWhileOn(const QKeyEvent& event);
    bool onKeyRelease(const QKeyEvent& event);

    void showTabs();
    void showControls();
    void showTips(State state, KeyTipList tips);
    void goBack();
    void end();
    bool isHeld(const QKeyEvent& event) const;
    bool isTipKey(const QString& key) const;
    void type(const QString& key);
    void activate(const KeyTip& tip);
    void activateButton(QAbstractButton& button);

    RibbonBar& m_bar;
    QPointer<QWindow> m_pWindow;
    State m_state = State::Off;
    KeyTipList m_tips;
    std::vector<QPointer<KeyTipBadge>> m_badges;
    QString m_typed;
    /// The held key whose press was consumed: its auto-repeats and release are consumed too.
    int m_heldKey = 0;
    ClickWatcher* m_pClicks;
};

} // namespace Qtitan
