#include "RibbonKeyTips.h"

#include "ClickWatcher.h"
#include "KeyTipBadge.h"
#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonPage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

namespace Qtitan
{

namespace
{

Qt::KeyboardModifiers plainModifiers(const QKeyEvent& event)
{
    return event.modifiers() & ~Qt::KeypadModifier;
}

bool isModifierKey(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Meta ||
           key == Qt::Key_CapsLock || key == Qt::Key_NumLock;
}

/// The letter or digit of a key, in upper case; empty for other keys and with Ctrl, Alt or Meta.
QString tipKeyOf(const QKeyEvent& event)
{
    const int key = event.key();
    const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
    const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
    if (!isLetter && !isDigit)
        return QString();
    const bool isPlain = (plainModifiers(event) & ~Qt::ShiftModifier) == Qt::NoModifier;
    return isPlain ? QString(QChar(key)) : QString();
}

} // namespace

RibbonKeyTips::RibbonKeyTips(RibbonBar& bar)
    : QObject(&bar), m_bar(bar), m_pClicks(new ClickWatcher(this))
{
    bar.installEventFilter(this);
    connect(&bar, &RibbonBar::currentPageChanged, this, &RibbonKeyTips::end);
    connect(m_pClicks, &ClickWatcher::clicked, this, &RibbonKeyTips::end);
}

RibbonKeyTips::~RibbonKeyTips() = default;

bool RibbonKeyTips::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == m_pWindow)
        return onWindowEvent(*pEvent);
    if (pWatched == &m_bar && pEvent->type() == QEvent::Show)
        attach();
    if (pWatched == &m_bar && pEvent->type() == QEvent::Hide)
        end();
    return false;
}

bool RibbonKeyTips::isOn() const
{
    return m_state == State::Tabs || m_state == State::Controls;
}

void RibbonKeyTips::attach()
{
    QWindow* pWindow = m_bar.window()->windowHandle();
    if (pWindow == m_pWindow)
        return;
    if (m_pWindow != nullptr)
        m_pWindow->removeEventFilter(this);
    m_pWindow = pWindow;
    if (m_pWindow != nullptr)
        m_pWindow->installEventFilter(this);
}

bool RibbonKeyTips::onWindowEvent(QEvent& event)
{
    switch (event.type())
    {
    case QEvent::ShortcutOverride:
        return onShortcutOverride(static_cast<QKeyEvent&>(event));
    case QEvent::KeyPress:
        return onKeyPress(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
        return onKeyRelease(static_cast<QKeyEvent&>(event));
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::FocusOut:
    case QEvent::Resize:
    case QEvent::Move:
        end();
        return false;
    default:
        return false;
    }
}

bool RibbonKeyTips::onShortcutOverride(QKeyEvent& event)
{
    if (event.key() == Qt::Key_Alt || isModifierKey(event.key()))
        return false;
    if (isOn() && (event.key() == Qt::Key_Escape || isTipKey(tipKeyOf(event))))
    {
        event.accept();
        return true;
    }
    // The key may be a shortcut; then no key press follows.
    if (event.key() != Qt::Key_F10)
        end();
    return false;
}

bool RibbonKeyTips::onKeyPress(const QKeyEvent& event)
{
    if (event.isAutoRepeat() && isHeld(event))
        return true;
    m_heldKey = 0;
    // An open menu or combo box list gets its keys through this same window.
    if (QApplication::activePopupWidget() != nullptr || !m_bar.isVisible())
        return false;
    return isOn() ? onKeyPressWhileOn(event) : onKeyPressWhileOff(event);
}

bool RibbonKeyTips::onKeyPressWhileOff(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = plainModifiers(event);
    if (event.key() == Qt::Key_Alt)
    {
        const bool isAlone = (modifiers & ~Qt::AltModifier) == Qt::NoModifier;
        if (!event.isAutoRepeat())
            m_state = isAlone ? State::AltHeld : State::Off;
        return false;
    }
    m_state = State::Off;
    if (event.key() == Qt::Key_F10 && modifiers == Qt::NoModifier && m_bar.pageCount() > 0)
    {
        m_heldKey = event.key();
        showTabs();
        return true;
    }
    const int page = event.key() - Qt::Key_1;
    if (event.modifiers() != Qt::AltModifier || page < 0 || page > 8 || page >= m_bar.pageCount())
        return false;
    m_heldKey = event.key();
    m_bar.openPage();
    m_bar.setCurrentPageIndex(page);
    return true;
}

bool RibbonKeyTips::onKeyPressWhileOn(const QKeyEvent& event)
{
    if (isModifierKey(event.key()))
        return false;
    const QString key = tipKeyOf(event);
    const bool isTip = isTipKey(key);
    if (!isTip && event.key() != Qt::Key_Escape && event.key() != Qt::Key_F10)
    {
        end();
        return false;
    }
    // Recorded first: typing a tip may run an event loop or destroy this ribbon.
    m_heldKey = event.key();
    if (isTip)
        type(key);
    else if (event.key() == Qt::Key_Escape)
        goBack();
    else
        end();
    return true;
}

bool RibbonKeyTips::onKeyRelease(const QKeyEvent& event)
{
    if (isHeld(event))
    {
        m_heldKey = event.isAutoRepeat() ? m_heldKey : 0;
        return true;
    }
    if (event.key() != Qt::Key_Alt || event.isAutoRepeat() || m_state != State::AltHeld)
        return false;
    m_state = State::Off;
    const bool isDragging = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (m_bar.isVisible() && m_bar.pageCount() > 0 && !isDragging)
        showTabs();
    return false;
}

void RibbonKeyTips::showTabs()
{
    showTips(State::Tabs, keyTipsOfTabs(m_bar));
}

void RibbonKeyTips::showControls()
{
    // The page may have just been shown; the badges need its layout now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const RibbonPage* pPage = m_bar.page(m_bar.currentPageIndex());
    if (pPage != nullptr)
        showTips(State::Controls, keyTipsOfPage(m_bar, *pPage));
}

void RibbonKeyTips::showTips(State state, KeyTipList tips)
{
    end();
    m_state = state;
    m_tips = std::move(tips);
    for (const KeyTip& tip : m_tips)
    {
        if (!tip.keys.isEmpty())
            m_badges.emplace_back(new KeyTipBadge(tip.keys, tip.centre, &m_bar));
    }
    m_pClicks->setActive(true);
}

void RibbonKeyTips::goBack()
{
    if (m_state == State::Controls)
        showTabs();
    else
        end();
}

void RibbonKeyTips::end()
{
    m_state = State::Off;
    m_typed.clear();
    m_tips.clear();
    for (const QPointer<KeyTipBadge>& pBadge : m_badges)
        delete pBadge;
    m_badges.clear();
    m_pClicks->setActive(false);
}

bool RibbonKeyTips::isHeld(const QKeyEvent& event) const
{
    return m_heldKey != 0 && event.key() == m_heldKey;
}

bool RibbonKeyTips::isTipKey(const QString& key) const
{
    if (key.isEmpty())
        return false;
    return std::any_of(m_tips.begin(), m_tips.end(),
                       [&](const KeyTip& tip) { return tip.keys.startsWith(m_typed + key); });
}

void RibbonKeyTips::type(const QString& key)
{
    m_typed += key;
    const auto it = std::find_if(m_tips.begin(), m_tips.end(),
                                 [this](const KeyTip& tip) { return tip.keys == m_typed; });
    if (it != m_tips.end())
        activate(KeyTip(*it));
}

void RibbonKeyTips::activate(const KeyTip& tip)
{
    end();
    if (tip.tab >= 0)
    {
        const QPointer<RibbonKeyTips> pSelf(this);
        m_bar.openPage();
        m_bar.setCurrentPageIndex(tip.tab);
        if (pSelf != nullptr)
            showControls();
        return;
    }
    QWidget* pTarget = tip.pTarget;
    if (pTarget == nullptr || !pTarget->isVisible() || !pTarget->isEnabled())
        return;
    if (auto* pButton = qobject_cast<QAbstractButton*>(pTarget))
        activateButton(*pButton);
    else
        pTarget->setFocus(Qt::ShortcutFocusReason);
}

void RibbonKeyTips::activateButton(QAbstractButton& button)
{
    auto* pTool = qobject_cast<QToolButton*>(&button);
    if (pTool != nullptr && pTool->menu() && pTool->popupMode() == QToolButton::InstantPopup)
    {
        // click() would also trigger its action once the menu has closed.
        pTool->showMenu();
        return;
    }
    // A page's own buttons scroll it; any other may run a command that destroys everything here.
    const bool isScrollButton = qobject_cast<RibbonPage*>(button.parentWidget()) != nullptr;
    if (!isScrollButton)
        QMetaObject::invokeMethod(&m_bar, &RibbonBar::closePage, Qt::QueuedConnection);
    button.click();
    if (isScrollButton)
        showControls();
}

} // namespace Qtitan
