#include "KeyTipList.h"

#include "Caption.h"
#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonButtonControl.h"
#include "Qtitan/RibbonPage.h"
#include "RibbonControls.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QSet>
#include <QToolButton>

namespace Qtitan
{

namespace
{

/// The keys in the order in which they are assigned: 1 to 9, A to Z, then both again after a 0. No
/// key is a prefix of another.
QStringList allKeys()
{
    QStringList keys;
    for (char c = '1'; c <= '9'; ++c)
        keys.append(QString(QLatin1Char(c)));
    for (char c = 'A'; c <= 'Z'; ++c)
        keys.append(QString(QLatin1Char(c)));
    const QStringList singles = keys;
    for (const QString& single : singles)
        keys.append(QLatin1Char('0') + single);
    return keys;
}

/// Whether a free key was taken for a tip.
bool take(KeyTip& tip, const QString& key, QStringList& free)
{
    if (key.isEmpty() || !free.removeOne(key))
        return false;
    tip.keys = key;
    return true;
}

/// Grants fixed keys first, then wishes, each to the first tip that has it, then assigns the free
/// keys in order. A fixed key is nobody else's, even while its control cannot be used.
/// Tips left over when the keys run out get none.
void assignKeys(KeyTipList& tips, const QStringList& reserved)
{
    QStringList free = allKeys();
    for (KeyTip& tip : tips)
        take(tip, tip.fixed, free);
    for (const QString& key : reserved)
        free.removeOne(key);
    for (KeyTip& tip : tips)
    {
        if (tip.keys.isEmpty() && !tip.wish.isNull())
            take(tip, QString(tip.wish), free);
    }
    for (KeyTip& tip : tips)
    {
        if (tip.keys.isEmpty() && !free.isEmpty())
            tip.keys = free.takeFirst();
    }
}

QString captionOf(const QWidget& widget, const QList<QLabel*>& labels)
{
    for (const QLabel* pLabel : labels)
    {
        if (pLabel->buddy() == &widget)
            return pLabel->text();
    }
    // A tool button doubles the '&' of its action's text.
    if (const auto* pTool = qobject_cast<const QToolButton*>(&widget);
        pTool && pTool->defaultAction())
        return pTool->defaultAction()->text();
    const auto* pButton = qobject_cast<const QAbstractButton*>(&widget);
    return pButton != nullptr ? pButton->text() : QString();
}

bool isLargeButton(const QWidget& widget)
{
    const auto* pControl = qobject_cast<const RibbonButtonControl*>(widget.parentWidget());
    return pControl != nullptr && pControl->form() == RibbonButtonForm::Large;
}

/// At the bottom of a large button, the left end of a widget in a row, the centre of an arrow.
QPoint badgeCentre(const QWidget& target, const RibbonBar& bar)
{
    const bool isArrow = qobject_cast<const RibbonPage*>(target.parentWidget()) != nullptr;
    const QRect rect = target.rect();
    if (isArrow)
        return target.mapTo(const_cast<RibbonBar*>(&bar), rect.center());
    const QPoint centre = isLargeButton(target) ? QPoint(rect.center().x(), rect.bottom() - 4)
                                                : QPoint(rect.left() + 2, rect.center().y());
    return target.mapTo(const_cast<RibbonBar*>(&bar), centre);
}

} // namespace

KeyTipList keyTipsOfTabs(const RibbonBar& bar)
{
    KeyTipList tips;
    for (int i = 0; i < bar.pageCount(); ++i)
    {
        KeyTip tip;
        tip.tab = i;
        tip.wish = mnemonicOf(bar.page(i)->title());
        tip.centre = QPoint(bar.tabRect(i).center().x(), bar.tabRect(i).bottom() + 3);
        tips.push_back(tip);
    }
    assignKeys(tips, {});
    return tips;
}

KeyTipList keyTipsOfPage(const RibbonBar& bar, const RibbonPage& page)
{
    const QList<QLabel*> labels = page.findChildren<QLabel*>();
    const QRect shown(page.mapTo(const_cast<RibbonBar*>(&bar), QPoint()), page.size());
    KeyTipList tips;
    const QList<QWidget*> controls = controlsInOrder(page);
    QStringList reserved;
    for (QWidget* pTarget : controls)
    {
        const QString fixed = pTarget->property(KeyTipProperty).toString();
        if (!fixed.isEmpty())
            reserved.append(fixed);
        if (!pTarget->isVisible() || !pTarget->isEnabled())
            continue;
        KeyTip tip;
        tip.pTarget = pTarget;
        tip.fixed = fixed;
        tip.wish = mnemonicOf(captionOf(*pTarget, labels));
        tip.centre = badgeCentre(*pTarget, bar);
        if (shown.contains(tip.centre))
            tips.push_back(tip);
    }
    assignKeys(tips, reserved);
    return tips;
}

} // namespace Qtitan
