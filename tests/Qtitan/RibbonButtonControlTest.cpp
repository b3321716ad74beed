#include "RibbonFixture.h"

using namespace Qtitan;

class RibbonButtonControlTest final : public QObject
{
    Q_OBJECT

private slots:
    void widgetReturnsThePlacedButton()
    {
        RibbonFixture f;
        QToolButton* pButton = createButton("直线");

        const RibbonButtonControl* pControl = f.pGroup->addButton(pButton);

        QCOMPARE(pControl->widget(), pButton);
        QCOMPARE(pButton->parentWidget(), pControl);
    }

    void controlIsFoundByItsClass()
    {
        RibbonFixture f;
        const QToolButton* pButton = f.addButton("直线");

        const auto* pControl = qobject_cast<RibbonButtonControl*>(pButton->parentWidget());

        QVERIFY(pControl != nullptr);
        QCOMPARE(pControl->widget(), pButton);
    }

    void deletedButtonIsNull()
    {
        RibbonFixture f;
        QToolButton* pButton = createButton("直线");
        const RibbonButtonControl* pControl = f.pGroup->addButton(pButton);

        delete pButton;

        QCOMPARE(pControl->widget(), nullptr);
    }

    void buttonThatWentToAnotherParentIsNull()
    {
        RibbonFixture f;
        QToolButton* pButton = createButton("直线");
        const RibbonButtonControl* pControl = f.pGroup->addButton(pButton);

        pButton->setParent(f.pView);

        QCOMPARE(pControl->widget(), nullptr);
        QVERIFY(pControl->isHidden());
    }

    void replacedButtonBelongsToTheCallerAgain()
    {
        RibbonFixture f;
        const std::unique_ptr<QToolButton> pOld(createButton("直线"));
        QToolButton* pNew = createButton("圆弧");
        RibbonButtonControl* pControl = f.pGroup->addButton(pOld.get());
        f.show();

        pControl->setWidget(pNew);

        QCOMPARE(pControl->widget(), pNew);
        QVERIFY(pNew->isVisible());
        QCOMPARE(pOld->parentWidget(), nullptr);
        QVERIFY(!pOld->isVisible());
    }

    void placingKeepsTheButtonsOwnProperties()
    {
        RibbonFixture f;
        QToolButton* pButton = createButton("直线");
        pButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        pButton->setObjectName("Sketch.Line");
        pButton->setCheckable(true);
        const QSizePolicy policy = pButton->sizePolicy();

        f.pGroup->addButton(pButton);
        f.show();

        QCOMPARE(pButton->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QVERIFY(pButton->autoRaise());
        QVERIFY(pButton->isCheckable());
        QCOMPARE(pButton->objectName(), QString("Sketch.Line"));
        QCOMPARE(pButton->focusPolicy(), Qt::TabFocus);
        QCOMPARE(pButton->sizePolicy(), policy);
        QVERIFY(pButton->styleSheet().isEmpty());
        QCOMPARE(pButton->iconSize(), QSize(32, 32));
    }

    void goneButtonLeavesNoHole_data()
    {
        QTest::addColumn<bool>("isDeleted");
        QTest::newRow("hidden") << false;
        QTest::newRow("deleted") << true;
    }

    void goneButtonLeavesNoHole()
    {
        QFETCH(bool, isDeleted);
        RibbonFixture f;
        const QToolButton* pFirst = f.addButton("直线");
        QToolButton* pGone = f.addButton("圆弧");
        const QToolButton* pLast = f.addButton("矩形");
        f.show();
        const int gap = pGone->mapTo(f.pGroup, QPoint()).x() -
                        pFirst->mapTo(f.pGroup, QPoint(pFirst->width(), 0)).x();

        if (isDeleted)
            delete pGone;
        else
            pGone->hide();

        const int end = pFirst->mapTo(f.pGroup, QPoint(pFirst->width(), 0)).x();
        QTRY_COMPARE(pLast->mapTo(f.pGroup, QPoint()).x(), end + gap);
    }

    void buttonShownAgainTakesItsPlaceBack()
    {
        RibbonFixture f;
        f.addButton("直线");
        QToolButton* pButton = f.addButton("圆弧");
        f.show();
        const int width = f.pGroup->width();
        pButton->hide();
        QTRY_VERIFY(f.pGroup->width() < width);

        pButton->show();

        QTRY_COMPARE(f.pGroup->width(), width);
        QVERIFY(pButton->isVisible());
    }

    void buttonHandedOverHiddenStaysHidden()
    {
        RibbonFixture f;
        f.addButton("直线");
        QToolButton* pButton = createButton("圆弧");
        pButton->hide();

        const RibbonButtonControl* pControl = f.pGroup->addButton(pButton);
        f.show();

        QVERIFY(!pButton->isVisible());
        QVERIFY(!pControl->isVisible());
    }

    void buttonAddedToAShownRibbonIsShown()
    {
        RibbonFixture f;
        f.show();

        const QToolButton* pButton = f.addButton("直线");

        QTRY_VERIFY(pButton->isVisible());
        QTRY_VERIFY(f.pGroup->rect().contains(pButton->mapTo(f.pGroup, pButton->rect().center())));
    }

    void captionThatGrowsOnAHiddenPageFitsWhenShown()
    {
        RibbonFixture f;
        QToolButton* pButton = f.addButton("L");
        f.pBar->addPage("View");
        f.show();
        f.pBar->setCurrentPageIndex(1);

        pButton->defaultAction()->setText("A caption that is much longer");
        f.pBar->setCurrentPageIndex(0);

        QTRY_COMPARE(pButton->width(), pButton->sizeHint().width());
    }
};

VESK_TESTS(RibbonButtonControlTest);
#include "RibbonButtonControlTest.moc"
