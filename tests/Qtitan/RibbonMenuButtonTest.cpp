#include "RibbonFixture.h"

#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

using namespace Qtitan;

namespace
{

/// A ribbon with one button that has an action and a menu.
struct MenuFixture : RibbonFixture
{
    explicit MenuFixture(bool isLarge = true)
        : pButton(createButton("Circle(&C)")), pMenu(new QMenu(window.get())),
          pEntry(pMenu->addAction("&Three points")),
          mainSpy(pButton->defaultAction(), &QAction::triggered),
          entrySpy(pEntry, &QAction::triggered)
    {
        QPixmap icon(32, 32);
        icon.fill(Qt::green);
        pButton->defaultAction()->setIcon(icon);
        pButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
        pButton->setPopupMode(QToolButton::MenuButtonPopup);
        pButton->setMenu(pMenu);
        if (isLarge)
            pGroup->addButton(pButton);
        else
            pGroup->addWidget(pButton);
        show();
    }

    QPoint arrowPlace() const { return {pButton->width() - 5, pButton->height() / 2}; }
    QPoint mainPlace() const { return {5, pButton->height() / 2}; }

    void pointAt(const QPoint& place) const
    {
        QCursor::setPos(pButton->mapToGlobal(place));
        QCoreApplication::processEvents();
    }

    void click(const QPoint& place) const
    {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          pButton->mapTo(window.get(), place));
    }

    QImage drawn() const
    {
        return pBar->grab(QRect(pButton->mapTo(pBar, QPoint()), pButton->size())).toImage();
    }

    /// Does something once the menu is open, and closes it if that has not.
    template <class Action>
    void whenOpen(Action action)
    {
        QObject::connect(pMenu, &QMenu::aboutToShow, pMenu, [this, action] {
            wasOpen = true;
            QTimer::singleShot(0, pMenu, [this, action] {
                action();
                pMenu->close();
            });
        });
    }

    QToolButton* pButton;
    QMenu* pMenu;
    QAction* pEntry;
    QSignalSpy mainSpy;
    QSignalSpy entrySpy;
    bool wasOpen = false;
};

QPalette paletteOf(const QColor& window, const QColor& text)
{
    QPalette palette(window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Highlight, Qt::blue);
    return palette;
}

} // namespace

class RibbonMenuButtonTest final : public QObject
{
    Q_OBJECT

private slots:
    void arrowStandsOutAtTheRightEdge_data()
    {
        QTest::addColumn<bool>("isLarge");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::newRow("large, light") << true << QColor(240, 240, 240) << QColor(Qt::black);
        QTest::newRow("large, dark") << true << QColor(40, 40, 40) << QColor(Qt::white);
        QTest::newRow("small, light") << false << QColor(240, 240, 240) << QColor(Qt::black);
        QTest::newRow("small, dark") << false << QColor(40, 40, 40) << QColor(Qt::white);
    }

    void arrowStandsOutAtTheRightEdge()
    {
        QFETCH(bool, isLarge);
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        const MenuFixture f(isLarge);
        f.window->setPalette(paletteOf(window, text));

        const QImage image = f.drawn();

        const int page = image.pixelColor(2, 2).lightness();
        int contrast = 0;
        for (int x = image.width() - 14; x < image.width() - 1; ++x)
            contrast =
                qMax(contrast, qAbs(image.pixelColor(x, image.height() / 2).lightness() - page));
        QVERIFY2(contrast > 60, qPrintable(QString::number(contrast)));
    }

    void buttonWithoutTextShowsTheIconOnly()
    {
        const MenuFixture f;
        const QImage before = f.drawn();

        f.pButton->defaultAction()->setText("Quite another text");

        QCOMPARE(f.drawn(), before);
        QCOMPARE(f.pButton->toolButtonStyle(), Qt::ToolButtonIconOnly);
    }

    void partUnderThePointerStandsOut_data()
    {
        QTest::addColumn<bool>("isOnArrow");
        QTest::newRow("main part") << false;
        QTest::newRow("arrow") << true;
    }

    void partUnderThePointerStandsOut()
    {
        QFETCH(bool, isOnArrow);
        const MenuFixture f;
        f.window->setPalette(paletteOf(QColor(240, 240, 240), Qt::black));
        const QColor page = f.drawn().pixelColor(4, 4);

        f.pointAt(isOnArrow ? f.arrowPlace() : f.mainPlace());

        const QImage image = f.drawn();
        const int main = image.pixelColor(4, 4).lightness();
        const int arrow = image.pixelColor(image.width() - 5, 4).lightness();
        QVERIFY(qMax(main, arrow) < page.lightness());
        QCOMPARE(arrow < main, isOnArrow);
        QVERIFY(arrow != main);
    }

    void arrowIsPressedWhileTheMenuIsOpen_data()
    {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("by key") << true;
        QTest::newRow("by click") << false;
    }

    void arrowIsPressedWhileTheMenuIsOpen()
    {
        QFETCH(bool, isByKey);
        MenuFixture f;
        f.window->setPalette(paletteOf(QColor(240, 240, 240), Qt::black));
        f.pButton->setFocus(Qt::TabFocusReason);
        QImage image;
        f.whenOpen([&] { image = f.drawn(); });

        if (isByKey)
            f.type(Qt::Key_Down);
        else
            f.click(f.arrowPlace());

        QVERIFY(image.pixelColor(image.width() - 5, 4).lightness() <
                image.pixelColor(4, 4).lightness() - 20);
    }

    void clickOnTheMainPartTriggersTheActionOnly()
    {
        MenuFixture f;
        f.whenOpen([] {});

        f.click(f.mainPlace());
        QCoreApplication::processEvents();

        QCOMPARE(f.mainSpy.count(), 1);
        QVERIFY(!f.wasOpen);
    }

    void clickOnTheArrowOpensTheMenuOnly()
    {
        MenuFixture f;
        f.whenOpen([] {});

        f.click(f.arrowPlace());

        QVERIFY(f.wasOpen);
        QCOMPARE(f.mainSpy.count(), 0);
    }

    void keyOpensTheMenuOfTheFocusedButton_data()
    {
        QTest::addColumn<bool>("isLarge");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const Qt::KeyboardModifiers none;
        const Qt::KeyboardModifiers alt(Qt::AltModifier);
        QTest::newRow("Down, large") << true << Qt::Key_Down << none;
        QTest::newRow("Alt+Down, large") << true << Qt::Key_Down << alt;
        QTest::newRow("F4, large") << true << Qt::Key_F4 << none;
        QTest::newRow("Down, small") << false << Qt::Key_Down << none;
        QTest::newRow("Alt+Down, small") << false << Qt::Key_Down << alt;
        QTest::newRow("F4, small") << false << Qt::Key_F4 << none;
    }

    void keyOpensTheMenuOfTheFocusedButton()
    {
        QFETCH(bool, isLarge);
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        MenuFixture f(isLarge);
        f.pButton->setFocus(Qt::TabFocusReason);
        f.whenOpen([&f] { QTest::keyClick(f.pMenu, Qt::Key_T); });

        f.type(key, modifiers);

        QVERIFY(f.wasOpen);
        QCOMPARE(f.entrySpy.count(), 1);
        QCOMPARE(f.mainSpy.count(), 0);
        QCOMPARE(f.window->focusWidget(), f.pButton);
    }

    void keyThatOpensNoMenuGoesItsWay_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Ctrl+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Alt+F4") << Qt::Key_F4 << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Up") << Qt::Key_Up << Qt::KeyboardModifiers();
    }

    void keyThatOpensNoMenuGoesItsWay()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        MenuFixture f;
        f.pButton->setFocus(Qt::TabFocusReason);
        f.whenOpen([] {});

        f.type(key, modifiers);
        QCoreApplication::processEvents();

        QVERIFY(!f.wasOpen);
    }

    void spaceTriggersTheMainPart()
    {
        const MenuFixture f;
        f.pButton->setFocus(Qt::TabFocusReason);

        f.type(Qt::Key_Space);

        QCOMPARE(f.mainSpy.count(), 1);
    }

    void keyTipTriggersTheMainPart()
    {
        MenuFixture f;
        f.whenOpen([] {});
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_C);

        QCOMPARE(f.mainSpy.count(), 1);
        QVERIFY(!f.wasOpen);
    }

    void keyTipOpensAMenuThatIsTheWholeButtons()
    {
        MenuFixture f;
        f.pButton->setPopupMode(QToolButton::InstantPopup);
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);
        f.whenOpen([&f] { QTest::keyClick(f.pMenu, Qt::Key_T); });

        f.type(Qt::Key_C);

        QVERIFY(f.wasOpen);
        QCOMPARE(f.entrySpy.count(), 1);
        QCOMPARE(f.mainSpy.count(), 0);
    }

    void menuThatIsOpenMayOutliveItsButton()
    {
        MenuFixture f;
        const QPointer<QToolButton> pButton(f.pButton);
        connect(f.pEntry, &QAction::triggered, this, [&f] { delete f.pButton; });
        f.pButton->setFocus(Qt::TabFocusReason);
        connect(f.pMenu, &QMenu::aboutToShow, f.pMenu, [&f] {
            QTimer::singleShot(0, f.pMenu, [&f] { QTest::keyClick(f.pMenu, Qt::Key_T); });
        });

        f.type(Qt::Key_Down);

        QVERIFY(pButton == nullptr);
    }
};

QTEST_MAIN(RibbonMenuButtonTest)
#include "RibbonMenuButtonTest.moc"
