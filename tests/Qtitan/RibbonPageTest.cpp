#include "RibbonFixture.h"

#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

using namespace Qtitan;

namespace
{

struct PageFixture : RibbonFixture
{
    explicit PageFixture(int width)
    {
        pFirst = addButton("Line");
        for (const char* caption : {"Arc", "Rectangle", "Circle", "Trim", "Extend", "Last"})
            pLast = addButton(caption);
        show(width);
    }

    QToolButton* arrow(Qt::ArrowType type) const
    {
        const auto arrows =
            pPage->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
        return *std::find_if(arrows.begin(), arrows.end(), [type](const QToolButton* pArrow) {
            return pArrow->arrowType() == type;
        });
    }

    bool turnWheel(int angle) const
    {
        const QPointF centre = QRectF(pPage->rect()).center();
        QWheelEvent event(centre, pPage->mapToGlobal(centre.toPoint()), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(pPage, &event);
        return event.isAccepted();
    }

    /// Sent as the window system does, so that the widget under the pointer gets it first. Qt
    /// offers only spontaneous wheel events to the parents.
    void turnWheelOver(QWidget& widget, int angle) const
    {
        const QPoint place = widget.mapTo(window.get(), widget.rect().center());
        QWheelEvent event(place, window->mapToGlobal(place), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window->windowHandle(), &event);
    }

    static bool isWhole(const QToolButton& button)
    {
        return button.visibleRegion().boundingRect() == button.rect();
    }

    bool isLastWhole() const { return isWhole(*pLast); }

    QToolButton* pFirst = nullptr;
    QToolButton* pLast = nullptr;
};

} // namespace

class RibbonPageTest final : public QObject
{
    Q_OBJECT

private slots:
    void widePageHasNoArrowsAndLeavesTheWheelToOthers()
    {
        const PageFixture f(900);

        const bool isTaken = f.turnWheel(-120);

        QVERIFY(!isTaken);
        QVERIFY(f.isLastWhole());
        QVERIFY(!f.arrow(Qt::LeftArrow)->isVisible());
        QVERIFY(!f.arrow(Qt::RightArrow)->isVisible());
    }

    void narrowPageHasAnArrowWhereThereIsMore()
    {
        const PageFixture f(250);

        QVERIFY(!f.isLastWhole());
        QVERIFY(!f.arrow(Qt::LeftArrow)->isVisible());
        QVERIFY(f.arrow(Qt::RightArrow)->isVisible());
    }

    void wheelReachesTheLastControlAndComesBack()
    {
        const PageFixture f(250);

        QVERIFY(f.turnWheel(-120 * 50));
        QTRY_VERIFY(f.isLastWhole());
        QVERIFY(f.arrow(Qt::LeftArrow)->isVisible());
        QVERIFY(!f.arrow(Qt::RightArrow)->isVisible());

        QVERIFY(f.turnWheel(120 * 50));
        QVERIFY(!f.arrow(Qt::LeftArrow)->isVisible());
    }

    void wheelOverAButtonReachesTheLastControl()
    {
        const PageFixture f(250);

        f.turnWheelOver(*f.pFirst, -120 * 50);

        QTRY_VERIFY(f.isLastWhole());
    }

    void arrowReachesTheLastControl()
    {
        const PageFixture f(250);
        QToolButton* pArrow = f.arrow(Qt::RightArrow);

        for (int clicks = 0; clicks < 10 && pArrow->isVisible(); ++clicks)
            QTest::mouseClick(pArrow, Qt::LeftButton);

        QTRY_VERIFY(f.isLastWhole());
    }

    void clickOnAnArrowLeavesTheFocusInTheView()
    {
        const PageFixture f(250);
        const QToolButton* pArrow = f.arrow(Qt::RightArrow);

        const QPoint centre = pArrow->mapTo(f.window.get(), pArrow->rect().center());
        QTest::mousePress(f.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, centre);

        QVERIFY(pArrow->isDown());
        QCOMPARE(QApplication::focusWidget(), f.pView);
    }

    void lastControlCanBeClickedInANarrowWindow()
    {
        const PageFixture f(250);
        bool isClicked = false;
        connect(f.pLast, &QToolButton::clicked, this, [&isClicked] { isClicked = true; });

        f.turnWheel(-120 * 50);
        const QPoint centre = f.pLast->mapTo(f.window.get(), f.pLast->rect().center());
        QTest::mouseClick(f.window->windowHandle(), Qt::LeftButton, Qt::NoModifier, centre);

        QVERIFY(isClicked);
    }

    void focusBringsItsControlIntoView()
    {
        const PageFixture f(250);

        f.pLast->setFocus(Qt::TabFocusReason);

        QTRY_VERIFY(f.isLastWhole());
    }

    void pageThatIsReadFromTheRightBeginsThere()
    {
        const PageFixture f(250);

        f.window->setLayoutDirection(Qt::RightToLeft);

        QTRY_VERIFY(f.arrow(Qt::LeftArrow)->isVisible());
        QVERIFY(!f.arrow(Qt::RightArrow)->isVisible());
        QTRY_VERIFY(PageFixture::isWhole(*f.pFirst));
    }

    void arrowReachesTheLastControlFromTheRight()
    {
        const PageFixture f(250);
        f.window->setLayoutDirection(Qt::RightToLeft);
        QToolButton* pArrow = f.arrow(Qt::LeftArrow);
        QTRY_VERIFY(pArrow->isVisible());

        QTest::mouseClick(pArrow, Qt::LeftButton);
        QTRY_VERIFY(f.arrow(Qt::RightArrow)->isVisible());
        for (int clicks = 0; clicks < 10 && pArrow->isVisible(); ++clicks)
            QTest::mouseClick(pArrow, Qt::LeftButton);

        QTRY_VERIFY(f.isLastWhole());
    }

    void focusBringsItsControlIntoViewFromTheRight()
    {
        const PageFixture f(250);
        f.window->setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(PageFixture::isWhole(*f.pFirst));

        f.pLast->setFocus(Qt::TabFocusReason);

        QTRY_VERIFY(f.isLastWhole());
    }

    void pageThatGrowsWideScrollsBack()
    {
        const PageFixture f(250);
        f.turnWheel(-120 * 50);

        f.window->resize(900, 400);

        QTRY_VERIFY(!f.arrow(Qt::LeftArrow)->isVisible());
        QTRY_VERIFY(!f.arrow(Qt::RightArrow)->isVisible());
    }

    void windowMayBeNarrowerThanThePage()
    {
        const PageFixture f(250);

        QCOMPARE(f.window->width(), 250);
        QCOMPARE(f.pBar->width(), 250);
    }
};

VESK_TESTS(RibbonPageTest);
#include "RibbonPageTest.moc"
