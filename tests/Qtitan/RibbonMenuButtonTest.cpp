#include "RibbonFixture.h"

#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

using namespace Qtitan;

namespace
{

/// How a button is added to the ribbon.
enum class Placing
{
    Large,
    Small,
    Stacked
};

/// A ribbon with one button that has an action and a menu.
struct MenuFixture : RibbonFixture
{
    explicit MenuFixture(Placing placing = Placing::Large,
                         QToolButton::ToolButtonPopupMode popupMode = QToolButton::MenuButtonPopup)
        : pButton(createButton("Circle(&C)")), pMenu(new QMenu(window.get())),
          pEntry(pMenu->addAction("&Three points")),
          mainSpy(pButton->defaultAction(), &QAction::triggered),
          entrySpy(pEntry, &QAction::triggered)
    {
        QPixmap icon(32, 32);
        icon.fill(Qt::green);
        pButton->defaultAction()->setIcon(icon);
        pButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
        pButton->setPopupMode(popupMode);
        pButton->setMenu(pMenu);
        place(placing);
        show();
    }

    void place(Placing placing) const
    {
        if (placing == Placing::Large)
            pGroup->addButton(pButton);
        else if (placing == Placing::Small)
            pGroup->addSmallButton(pButton);
        else
            pGroup->addWidget(pButton);
    }

    QPoint arrowPlace() const { return {pButton->width() - 5, pButton->height() / 2}; }
    QPoint mainPlace() const { return {5, pButton->height() / 2}; }

    /// Returns true once the window system has notified the button, which may take a while.
    bool pointAt(const QPoint& place) const
    {
        QCursor::setPos(pButton->mapToGlobal(place));
        return QTest::qWaitFor(
            [&] {
                return pButton->underMouse() && pButton->mapFromGlobal(QCursor::pos()) == place;
            },
            vesk::test::PatienceMs);
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

    /// Does something once the menu is open, and closes the menu if it is still open.
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

} // namespace

Q_DECLARE_METATYPE(Placing)

class RibbonMenuButtonTest final : public QObject
{
    Q_OBJECT

private:
    static void addForms()
    {
        QTest::addColumn<Placing>("placing");
        QTest::newRow("large") << Placing::Large;
        QTest::newRow("small") << Placing::Small;
    }

private slots:
    /// Moves the pointer away from the buttons, where an earlier test may have left it.
    void init() { QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); }

    void arrowStandsOutAtTheRightEdge_data()
    {
        QTest::addColumn<Placing>("placing");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<QColor>("text");
        QTest::newRow("large, light")
            << Placing::Large << QColor(240, 240, 240) << QColor(Qt::black);
        QTest::newRow("large, dark") << Placing::Large << QColor(40, 40, 40) << QColor(Qt::white);
        QTest::newRow("small, light")
            << Placing::Small << QColor(240, 240, 240) << QColor(Qt::black);
        QTest::newRow("small, dark") << Placing::Small << QColor(40, 40, 40) << QColor(Qt::white);
        QTest::newRow("stacked, light")
            << Placing::Stacked << QColor(240, 240, 240) << QColor(Qt::black);
        QTest::newRow("stacked, dark")
            << Placing::Stacked << QColor(40, 40, 40) << QColor(Qt::white);
    }

    void arrowStandsOutAtTheRightEdge()
    {
        QFETCH(Placing, placing);
        QFETCH(QColor, window);
        QFETCH(QColor, text);
        const MenuFixture f(placing);
        f.window->setPalette(paletteOf(window, text));

        const QImage image = f.drawn();

        const int page = image.pixelColor(2, 2).lightness();
        // The height of the arrow in its rectangle is up to the style.
        const QRect arrow(image.width() - 14, image.height() / 2 - 3, 13, 7);
        int contrast = 0;
        for (int i = 0; i < arrow.width() * arrow.height(); ++i)
        {
            const QPoint place(i % arrow.width(), i / arrow.width());
            const int lightness = image.pixelColor(arrow.topLeft() + place).lightness();
            contrast = qMax(contrast, qAbs(lightness - page));
        }
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

    void arrowOfASmallButtonStandsClearOfItsCaption_data()
    {
        QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
        QTest::newRow("split") << QToolButton::MenuButtonPopup;
        QTest::newRow("whole") << QToolButton::InstantPopup;
    }

    void arrowOfASmallButtonStandsClearOfItsCaption()
    {
        QFETCH(QToolButton::ToolButtonPopupMode, mode);
        const MenuFixture f(Placing::Small, mode);
        const int captionEnd =
            24 + f.pButton->fontMetrics().size(Qt::TextShowMnemonic, f.pButton->text()).width();
        const QImage withArrow = f.drawn();

        f.pButton->setMenu(nullptr);
        f.pButton->setPopupMode(QToolButton::DelayedPopup);
        const QImage plain = f.drawn().copy(0, 0, withArrow.width(), withArrow.height());

        const QRect head(0, 0, captionEnd, withArrow.height());
        QCOMPARE(withArrow.copy(head), plain.copy(head));
        QVERIFY(withArrow != plain);
    }

    void onlyAButtonThatIsWholeLooksChecked_data()
    {
        QTest::addColumn<Placing>("placing");
        QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");
        QTest::addColumn<bool>("looksChecked");
        QTest::newRow("split, large") << Placing::Large << QToolButton::MenuButtonPopup << false;
        QTest::newRow("split, small") << Placing::Small << QToolButton::MenuButtonPopup << false;
        QTest::newRow("whole, large") << Placing::Large << QToolButton::InstantPopup << true;
        QTest::newRow("whole, small") << Placing::Small << QToolButton::InstantPopup << true;
    }

    void onlyAButtonThatIsWholeLooksChecked()
    {
        QFETCH(Placing, placing);
        QFETCH(QToolButton::ToolButtonPopupMode, mode);
        QFETCH(bool, looksChecked);
        const MenuFixture f(placing, mode);
        f.pButton->defaultAction()->setCheckable(true);
        const QImage unchecked = f.drawn();

        f.pButton->defaultAction()->setChecked(true);

        QVERIFY(f.pButton->isChecked());
        QCOMPARE(f.drawn() != unchecked, looksChecked);
    }

    void partUnderThePointerStandsOut_data()
    {
        QTest::addColumn<Placing>("placing");
        QTest::addColumn<bool>("isOnArrow");
        QTest::newRow("main part, large") << Placing::Large << false;
        QTest::newRow("main part, small") << Placing::Small << false;
        QTest::newRow("arrow, large") << Placing::Large << true;
        QTest::newRow("arrow, small") << Placing::Small << true;
    }

    void partUnderThePointerStandsOut()
    {
        QFETCH(Placing, placing);
        QFETCH(bool, isOnArrow);
        const MenuFixture f(placing);
        f.window->setPalette(paletteOf(QColor(240, 240, 240), Qt::black));
        const QColor page = f.drawn().pixelColor(2, 4);

        QVERIFY(f.pointAt(isOnArrow ? f.arrowPlace() : f.mainPlace()));

        const QImage image = f.drawn();
        const int main = image.pixelColor(2, 4).lightness();
        const int arrow = image.pixelColor(image.width() - 5, 4).lightness();
        QVERIFY(qMax(main, arrow) < page.lightness());
        QCOMPARE(arrow < main, isOnArrow);
        QVERIFY(arrow != main);
    }

    void arrowIsPressedWhileTheMenuIsOpen_data()
    {
        QTest::addColumn<Placing>("placing");
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("by key, large") << Placing::Large << true;
        QTest::newRow("by key, small") << Placing::Small << true;
        QTest::newRow("by click, large") << Placing::Large << false;
        QTest::newRow("by click, small") << Placing::Small << false;
    }

    void arrowIsPressedWhileTheMenuIsOpen()
    {
        QFETCH(Placing, placing);
        QFETCH(bool, isByKey);
        MenuFixture f(placing);
        f.window->setPalette(paletteOf(QColor(240, 240, 240), Qt::black));
        f.pButton->setFocus(Qt::TabFocusReason);
        QImage image;
        f.whenOpen([&] { image = f.drawn(); });

        if (isByKey)
            f.type(Qt::Key_Down);
        else
            f.click(f.arrowPlace());

        QVERIFY(image.pixelColor(image.width() - 5, 4).lightness() <
                image.pixelColor(2, 4).lightness() - 20);
    }

    void clickOnTheMainPartTriggersTheActionOnly_data() { addForms(); }

    void clickOnTheMainPartTriggersTheActionOnly()
    {
        QFETCH(Placing, placing);
        MenuFixture f(placing);
        f.whenOpen([] {});

        f.click(f.mainPlace());
        QCoreApplication::processEvents();

        QCOMPARE(f.mainSpy.count(), 1);
        QVERIFY(!f.wasOpen);
    }

    void clickOnTheArrowOpensTheMenuOnly_data() { addForms(); }

    void clickOnTheArrowOpensTheMenuOnly()
    {
        QFETCH(Placing, placing);
        MenuFixture f(placing);
        f.whenOpen([] {});

        f.click(f.arrowPlace());

        QVERIFY(f.wasOpen);
        QCOMPARE(f.mainSpy.count(), 0);
    }

    void keyOpensTheMenuOfTheFocusedButton_data()
    {
        QTest::addColumn<Placing>("placing");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const Qt::KeyboardModifiers none;
        const Qt::KeyboardModifiers alt(Qt::AltModifier);
        QTest::newRow("Down, large") << Placing::Large << Qt::Key_Down << none;
        QTest::newRow("Alt+Down, large") << Placing::Large << Qt::Key_Down << alt;
        QTest::newRow("F4, large") << Placing::Large << Qt::Key_F4 << none;
        QTest::newRow("Down, small") << Placing::Small << Qt::Key_Down << none;
        QTest::newRow("Alt+Down, small") << Placing::Small << Qt::Key_Down << alt;
        QTest::newRow("F4, small") << Placing::Small << Qt::Key_F4 << none;
        QTest::newRow("Down, stacked") << Placing::Stacked << Qt::Key_Down << none;
        QTest::newRow("Alt+Down, stacked") << Placing::Stacked << Qt::Key_Down << alt;
        QTest::newRow("F4, stacked") << Placing::Stacked << Qt::Key_F4 << none;
    }

    void keyOpensTheMenuOfTheFocusedButton()
    {
        QFETCH(Placing, placing);
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        MenuFixture f(placing);
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

VESK_TESTS(RibbonMenuButtonTest);
#include "RibbonMenuButtonTest.moc"
