#pragma once

#include "Support/TestValues.h"

#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonButtonControl.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QPalette>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <memory>

/// A view that accepts the focus and every key, and records the keys.
class KeyRecorder final : public QWidget
{
public:
    explicit KeyRecorder(QWidget* pParent) : QWidget(pParent) { setFocusPolicy(Qt::StrongFocus); }

    QList<int> pressedKeys;
    QList<int> releasedKeys;

protected:
    void keyPressEvent(QKeyEvent* pEvent) override { pressedKeys.append(pEvent->key()); }
    void keyReleaseEvent(QKeyEvent* pEvent) override { releasedKeys.append(pEvent->key()); }
};

/// Text and icon belong to an action, as in the buttons that the host creates.
inline QToolButton* createButton(const QString& caption)
{
    auto* pButton = new QToolButton;
    pButton->setDefaultAction(new QAction(caption, pButton));
    pButton->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    pButton->setAutoRaise(true);
    return pButton;
}

/// Colours by which window, text and highlight can be told apart in a picture.
inline QPalette paletteOf(const QColor& window, const QColor& text)
{
    QPalette palette(window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, Qt::blue);
    return palette;
}

/// A window with a ribbon of one page and one group above a view that has the focus.
struct RibbonFixture
{
    RibbonFixture()
        : window(std::make_unique<QWidget>()), pBar(new Qtitan::RibbonBar(window.get())),
          pPage(pBar->addPage(QStringLiteral("草图"))),
          pGroup(pPage->addGroup(QStringLiteral("绘制"))), pView(new KeyRecorder(window.get()))
    {
        auto* pLayout = new QVBoxLayout(window.get());
        pLayout->setContentsMargins(0, 0, 0, 0);
        pLayout->setSpacing(0);
        pLayout->addWidget(pBar);
        pLayout->addWidget(pView, 1);
    }

    void show(int width = 900)
    {
        window->resize(width, 400);
        window->show();
        pView->setFocus();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get(), vesk::test::PatienceMs));
        QCOMPARE(QApplication::focusWidget(), pView);
    }

    QToolButton* addButton(const QString& caption)
    {
        QToolButton* pButton = createButton(caption);
        pGroup->addButton(pButton);
        return pButton;
    }

    /// Sends a key as the window system does, so that shortcuts and event filters see it.
    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(window->windowHandle(), key, modifiers);
    }

    /// The texts of the visible key tips, in the order of their controls.
    QStringList tips() const
    {
        QStringList texts;
        const auto labels = window->findChildren<QLabel*>(QStringLiteral("qtitan_keyTip"));
        for (const QLabel* pLabel : labels)
            texts.append(pLabel->text());
        return texts;
    }

    std::unique_ptr<QWidget> window;
    Qtitan::RibbonBar* pBar;
    Qtitan::RibbonPage* pPage;
    Qtitan::RibbonGroup* pGroup;
    KeyRecorder* pView;
};
