#include "RibbonFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalSpy>

using namespace Qtitan;

namespace
{

/// A ribbon with controls of every kind, named in their visual order.
struct ControlsFixture : RibbonFixture
{
    ControlsFixture()
        : pChecks(new QWidget), pRadios(new QWidget), pBox(new QComboBox),
          pButton(createButton("B"))
    {
        pButton->setObjectName("button");
        pGroup->addButton(pButton);
        pBox->setObjectName("box");
        pBox->addItems({"1", "2"});
        pGroup->addWidget("W(&W)", pBox);
        pGroup->addWidget(new QProgressBar);
        new QVBoxLayout(pChecks);
        for (const char* name : {"check1", "check2", "check3", "check4"})
            addTo<QCheckBox>(pChecks, name);
        pGroup->addWidget(pChecks);
        auto* pGrid = new QGridLayout(pRadios);
        for (int i = 0; i < 4; ++i)
            pGrid->addWidget(named<QRadioButton>("radio" + QString::number(i)), i / 2, i % 2);
        radio(1)->setChecked(true);
        pPage->addGroup("Unit")->addWidget(pRadios);
        pView->setObjectName("view");
    }

    template <class T>
    static T* named(const QString& name)
    {
        auto* pWidget = new T(name);
        pWidget->setObjectName(name);
        return pWidget;
    }

    template <class T>
    static void addTo(const QWidget* pParent, const QString& name)
    {
        pParent->layout()->addWidget(named<T>(name));
    }

    QRadioButton* radio(int index) const
    {
        return pRadios->findChild<QRadioButton*>("radio" + QString::number(index));
    }

    QWidget* pChecks;
    QWidget* pRadios;
    QComboBox* pBox;
    QToolButton* pButton;
};

/// The names of the focus widgets after each of a number of Tabs.
QStringList tabThrough(const RibbonFixture& f, int count,
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
    {
        f.type(modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        names << QApplication::focusWidget()->objectName();
    }
    return names;
}

const QStringList s_order{"button", "box", "check1", "check2", "check3", "check4", "radio0"};

} // namespace

/// Every control in a ribbon with the keyboard alone.
class RibbonTabOrderTest final : public QObject
{
    Q_OBJECT

private slots:
    void tabGoesFromLeftToRightAndDownwards()
    {
        ControlsFixture f;
        f.show(1200);
        f.pButton->setFocus(Qt::TabFocusReason);

        QCOMPARE(tabThrough(f, 6), s_order.mid(1));
    }

    void tabGoesDownTheSmallButtons()
    {
        RibbonFixture f;
        f.pView->setObjectName("view");
        for (const char* name : {"A", "B", "C", "D"})
        {
            QToolButton* pButton = createButton(name);
            pButton->setObjectName(name);
            f.pGroup->addSmallButton(pButton);
        }
        QToolButton* pLarge = f.addButton("E");
        pLarge->setObjectName("E");
        f.show();
        f.pBar->findChild<QToolButton*>("A")->setFocus(Qt::TabFocusReason);

        QCOMPARE(tabThrough(f, 5), (QStringList{"B", "C", "D", "E", "view"}));
    }

    void backtabGoesTheOtherWayFromTheView()
    {
        ControlsFixture f;
        f.show(1200);

        const QStringList names = tabThrough(f, 7, Qt::ShiftModifier);

        QCOMPARE(names,
                 (QStringList{"radio3", "check4", "check3", "check2", "check1", "box", "button"}));
    }

    void controlThatComesLaterTakesItsPlace_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::newRow("before the ribbon is shown") << false;
        QTest::newRow("in a shown ribbon") << true;
    }

    void controlThatComesLaterTakesItsPlace()
    {
        QFETCH(bool, isShown);
        ControlsFixture f;
        if (isShown)
            f.show(1200);
        auto* pFirst = ControlsFixture::named<QCheckBox>("check0");
        auto* pLayout = qobject_cast<QVBoxLayout*>(f.pChecks->layout());
        delete pLayout->itemAt(3)->widget();
        pLayout->insertWidget(0, pFirst);
        f.show(1200);
        QCoreApplication::processEvents();
        f.pBox->setFocus(Qt::TabFocusReason);

        const QStringList names = tabThrough(f, 4);

        QCOMPARE(names, (QStringList{"check0", "check1", "check2", "check3"}));
    }

    void tabLeavesAHiddenOrDisabledControlOut()
    {
        ControlsFixture f;
        f.show(1200);
        f.pChecks->findChild<QWidget*>("check2")->hide();
        f.pChecks->findChild<QWidget*>("check3")->setEnabled(false);
        f.pBox->setFocus(Qt::TabFocusReason);

        QCOMPARE(tabThrough(f, 3), (QStringList{"check1", "check4", "radio0"}));
    }

    void tabInANarrowRibbonBringsEveryControlIntoView()
    {
        ControlsFixture f;
        f.show(250);
        f.pButton->setFocus(Qt::TabFocusReason);

        QCOMPARE(tabThrough(f, 6), s_order.mid(1));

        QTRY_COMPARE(f.radio(0)->visibleRegion().boundingRect(), f.radio(0)->rect());
    }

    void spaceTogglesABox()
    {
        ControlsFixture f;
        f.show(1200);
        auto* pCheck = f.pChecks->findChild<QCheckBox*>("check2");
        pCheck->setFocus(Qt::TabFocusReason);

        f.type(Qt::Key_Space);

        QVERIFY(pCheck->isChecked());
    }

    void arrowsChooseARadioButton()
    {
        ControlsFixture f;
        f.show(1200);
        f.radio(1)->setFocus(Qt::TabFocusReason);

        f.type(Qt::Key_Down);

        QVERIFY(f.radio(3)->isChecked());
        QCOMPARE(QApplication::focusWidget(), f.radio(3));
    }

    void arrowsChooseAnItemOfAComboBox()
    {
        ControlsFixture f;
        f.show(1200);
        f.pBox->setFocus(Qt::TabFocusReason);

        f.type(Qt::Key_Down);

        QCOMPARE(f.pBox->currentIndex(), 1);
    }

    void keyTipsFollowTheSameOrder()
    {
        ControlsFixture f;
        auto* pLayout = qobject_cast<QVBoxLayout*>(f.pChecks->layout());
        auto* pFirst = ControlsFixture::named<QCheckBox>("check0");
        pLayout->insertWidget(0, pFirst);
        f.show(1200);
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);
        QCOMPARE(f.tips(), (QStringList{"1", "W", "2", "3", "4", "5", "6", "7", "8", "9", "A"}));

        f.type(Qt::Key_2);

        QVERIFY(pFirst->isChecked());
    }

    void keyTipOfARadioButtonChoosesIt()
    {
        ControlsFixture f;
        f.show(1200);
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_8);

        QVERIFY(f.radio(2)->isChecked());
    }

    void keyTipOfAComboBoxGivesItTheFocus()
    {
        ControlsFixture f;
        f.show(1200);
        f.type(Qt::Key_Alt);
        f.type(Qt::Key_1);

        f.type(Qt::Key_W);

        QCOMPARE(QApplication::focusWidget(), f.pBox);
        QCOMPARE(f.pBox->currentIndex(), 0);
    }
};

VESK_TESTS(RibbonTabOrderTest);
#include "RibbonTabOrderTest.moc"
