#include "RibbonFixture.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qtitan;

class RibbonGroupTest final : public QObject
{
    Q_OBJECT

private:
    static QLabel* labelOf(const RibbonFixture& f, const QWidget* pWidget)
    {
        const auto labels = f.pGroup->findChildren<QLabel*>();
        const auto it = std::find_if(labels.begin(), labels.end(), [pWidget](const QLabel* pLabel) {
            return pLabel->buddy() == pWidget;
        });
        return it == labels.end() ? nullptr : *it;
    }

    static int leftOf(const RibbonFixture& f, const QWidget* pWidget)
    {
        return pWidget->mapTo(f.pGroup, QPoint()).x();
    }

    static int topOf(const RibbonFixture& f, const QWidget* pWidget)
    {
        return pWidget->mapTo(f.pGroup, QPoint()).y();
    }

private slots:
    void threeWidgetsStackAndTheFourthStandsBeside()
    {
        RibbonFixture f;
        const QList<QLineEdit*> edits{new QLineEdit, new QLineEdit, new QLineEdit, new QLineEdit};

        f.pGroup->addWidget("长度", edits[0]);
        f.pGroup->addWidget("角度", edits[1]);
        f.pGroup->addWidget("半径", edits[2]);
        f.pGroup->addWidget("高度", edits[3]);
        f.show();

        const QPoint top = edits[0]->mapTo(f.pGroup, QPoint());
        QCOMPARE(edits[2]->mapTo(f.pGroup, QPoint()).x(), top.x());
        QVERIFY(edits[2]->mapTo(f.pGroup, QPoint()).y() > edits[1]->mapTo(f.pGroup, QPoint()).y());
        QCOMPARE(edits[3]->mapTo(f.pGroup, QPoint()).y(), top.y());
        QVERIFY(edits[3]->mapTo(f.pGroup, QPoint()).x() >= top.x() + edits[0]->width());
    }

    void widgetThatStacksOthersFillsAColumnAlone_data()
    {
        QTest::addColumn<bool>("isGrid");
        QTest::newRow("vertical") << false;
        QTest::newRow("grid") << true;
    }

    void widgetThatStacksOthersFillsAColumnAlone()
    {
        QFETCH(bool, isGrid);
        RibbonFixture f;
        auto* pBefore = new QLineEdit;
        auto* pBoxes = new QWidget;
        auto* pAfter = new QLineEdit;
        QLayout* pLayout = isGrid ? static_cast<QLayout*>(new QGridLayout) : new QVBoxLayout;
        pBoxes->setLayout(pLayout);
        for (const char* caption : {"A", "B", "C", "D"})
            pLayout->addWidget(new QCheckBox(caption));

        f.pGroup->addWidget(pBefore);
        f.pGroup->addWidget(pBoxes);
        f.pGroup->addWidget(pAfter);
        f.show();

        QVERIFY(leftOf(f, pBoxes) >= leftOf(f, pBefore) + pBefore->width());
        QVERIFY(leftOf(f, pAfter) >= leftOf(f, pBoxes) + pBoxes->width());
        QVERIFY(topOf(f, pBoxes) <= topOf(f, pBefore));
        QCOMPARE(topOf(f, pAfter), topOf(f, pBefore));
    }

    void boxesInAColumnStandCloseTogether()
    {
        RibbonFixture f;
        auto* pBoxes = new QWidget;
        auto* pLayout = new QVBoxLayout(pBoxes);
        auto* pFirst = new QCheckBox("A");
        auto* pSecond = new QCheckBox("B");
        pLayout->addWidget(pFirst);
        pLayout->addWidget(pSecond);

        f.pGroup->addWidget(pBoxes);
        f.show();

        QCOMPARE(topOf(f, pFirst), topOf(f, pBoxes));
        QCOMPARE(topOf(f, pSecond), topOf(f, pFirst) + pFirst->height());
        QCOMPARE(pFirst->height(), pFirst->sizeHint().height());
    }

    void rowOfBoxesIsOneRowAmongOthers()
    {
        RibbonFixture f;
        auto* pEdit = new QLineEdit;
        auto* pBoxes = new QWidget;
        auto* pLayout = new QHBoxLayout(pBoxes);
        pLayout->addWidget(new QCheckBox("A"));
        pLayout->addWidget(new QCheckBox("B"));

        f.pGroup->addWidget(pEdit);
        f.pGroup->addWidget(pBoxes);
        f.show();

        QCOMPARE(leftOf(f, pBoxes), leftOf(f, pEdit));
        QVERIFY(topOf(f, pBoxes) >= topOf(f, pEdit) + pEdit->height());
    }

    void threeSmallButtonsStackAndTheFourthStandsBeside()
    {
        RibbonFixture f;
        const QList<QToolButton*> buttons{createButton("A"), createButton("B"), createButton("C"),
                                          createButton("D")};

        f.pGroup->addSmallButton(buttons[0]);
        f.pGroup->addSmallButton(buttons[1]);
        f.pGroup->addSmallButton(buttons[2]);
        f.pGroup->addSmallButton(buttons[3]);
        f.show();

        QCOMPARE(leftOf(f, buttons[2]), leftOf(f, buttons[0]));
        QVERIFY(topOf(f, buttons[1]) >= topOf(f, buttons[0]) + buttons[0]->height());
        QVERIFY(topOf(f, buttons[2]) >= topOf(f, buttons[1]) + buttons[1]->height());
        QCOMPARE(topOf(f, buttons[3]), topOf(f, buttons[0]));
        QVERIFY(leftOf(f, buttons[3]) >= leftOf(f, buttons[0]) + buttons[0]->width());
    }

    void largeButtonPartsTheColumnsOfSmallOnes()
    {
        RibbonFixture f;
        QToolButton* pBefore = createButton("A");
        QToolButton* pAfter = createButton("C");

        f.pGroup->addSmallButton(pBefore);
        const QToolButton* pLarge = f.addButton("B");
        f.pGroup->addSmallButton(pAfter);
        f.show();

        QVERIFY(leftOf(f, pLarge) >= leftOf(f, pBefore) + pBefore->width());
        QVERIFY(leftOf(f, pAfter) >= leftOf(f, pLarge) + pLarge->width());
        QCOMPARE(topOf(f, pAfter), topOf(f, pBefore));
    }

    void smallButtonsAndWidgetsShareAColumn()
    {
        RibbonFixture f;
        auto* pFirst = new QLineEdit;
        QToolButton* pSecond = createButton("B");
        auto* pThird = new QLineEdit;

        f.pGroup->addWidget(pFirst);
        f.pGroup->addSmallButton(pSecond);
        f.pGroup->addWidget(pThird);
        f.show();

        QCOMPARE(leftOf(f, pSecond), leftOf(f, pFirst));
        QCOMPARE(leftOf(f, pThird), leftOf(f, pFirst));
        QVERIFY(topOf(f, pSecond) >= topOf(f, pFirst) + pFirst->height());
        QVERIFY(topOf(f, pThird) >= topOf(f, pSecond) + pSecond->height());
    }

    void smallButtonsLeaveTheGroupAsHighAsALargeOne()
    {
        RibbonFixture f;
        RibbonGroup* pSmall = f.pPage->addGroup("B");
        f.addButton("A");
        for (const char* caption : {"A", "B", "C"})
            pSmall->addSmallButton(createButton(caption));

        QCOMPARE(pSmall->sizeHint().height(), f.pGroup->sizeHint().height());
    }

    void hiddenWidgetTakesItsLabelAlongAndTheRowsCloseUp()
    {
        RibbonFixture f;
        auto* pFirst = new QLineEdit;
        auto* pSecond = new QLineEdit;
        f.pGroup->addWidget("长度", pFirst);
        f.pGroup->addWidget("角度", pSecond);
        f.show();
        const int top = pFirst->mapTo(f.pGroup, QPoint()).y();

        pFirst->hide();

        QVERIFY(!labelOf(f, pFirst)->isVisible());
        QTRY_COMPARE(pSecond->mapTo(f.pGroup, QPoint()).y(), top);
    }

    void rowOfADeletedWidgetIsUsedAgain()
    {
        RibbonFixture f;
        auto* pGone = new QLineEdit;
        auto* pNew = new QLineEdit;
        f.pGroup->addWidget(pGone);
        f.pGroup->addWidget(new QLineEdit);
        f.pGroup->addWidget(new QLineEdit);
        f.show();
        const QPoint place = pGone->mapTo(f.pGroup, QPoint());

        delete pGone;
        f.pGroup->addWidget(pNew);

        QTRY_COMPARE(pNew->mapTo(f.pGroup, QPoint()), place);
    }

    void widgetThatWentToAnotherParentGivesItsRowUp()
    {
        RibbonFixture f;
        auto* pGone = new QLineEdit;
        auto* pNext = new QLineEdit;
        f.pGroup->addWidget("长度", pGone);
        f.pGroup->addWidget("角度", pNext);
        f.show();
        const int top = pGone->mapTo(f.pGroup, QPoint()).y();

        pGone->setParent(f.pView);

        QVERIFY(!labelOf(f, pGone)->isVisible());
        QTRY_COMPARE(pNext->mapTo(f.pGroup, QPoint()).y(), top);
    }

    void labelNamesItsWidget()
    {
        RibbonFixture f;
        auto* pEdit = new QLineEdit;

        f.pGroup->addWidget("长度(&E)", pEdit);

        QCOMPARE(pEdit->accessibleName(), QString("长度(E)"));
        QVERIFY(labelOf(f, pEdit) != nullptr);
    }

    void titleNamesTheGroupAndFits()
    {
        RibbonFixture f;

        RibbonGroup* pGroup = f.pPage->addGroup("A title that is &longer than its content");
        pGroup->addButton(createButton("L"));
        f.show();

        QCOMPARE(pGroup->accessibleName(), QString("A title that is longer than its content"));
        QVERIFY(pGroup->width() > pGroup->fontMetrics().horizontalAdvance(pGroup->title()));
    }

    void groupHidesWhileAllItsControlsAreHidden()
    {
        RibbonFixture f;
        QToolButton* pButton = f.addButton("直线");
        auto* pEdit = new QLineEdit;
        f.pGroup->addWidget("长度", pEdit);
        f.show();

        pButton->hide();
        QVERIFY(f.pGroup->isVisible());
        pEdit->hide();
        QVERIFY(!f.pGroup->isVisible());
        pButton->show();

        QVERIFY(f.pGroup->isVisible());
    }

    void groupAddedToAShownPageWaitsForAControl()
    {
        RibbonFixture f;
        f.addButton("直线");
        f.show();
        QToolButton* pButton = createButton("浏览器");
        pButton->hide();

        RibbonGroup* pGroup = f.pPage->addGroup("窗格");
        pGroup->addButton(pButton);
        QCoreApplication::processEvents();
        QVERIFY(!pGroup->isVisible());
        pButton->show();

        QVERIFY(pGroup->isVisible());
    }

    void groupHiddenByItsOwnerStaysHidden()
    {
        RibbonFixture f;
        QToolButton* pButton = f.addButton("直线");
        f.show();
        f.pGroup->hide();

        pButton->hide();
        pButton->show();

        QVERIFY(!f.pGroup->isVisible());
    }

    void nullWidgetIsIgnored()
    {
        RibbonFixture f;

        f.pGroup->addWidget(nullptr);

        QVERIFY(f.pGroup->findChildren<QWidget*>().isEmpty());
    }
};

VESK_TESTS(RibbonGroupTest);
#include "RibbonGroupTest.moc"
