#include "VeskUiQtImpl/Control/QtProgressBar.h"
#include "Control/ChangeArgs.h"
#include "Control/OtherEventTypes.h"
#include "Control/ProgressBarDefinition.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <vector>

namespace vesk::test
{

/// A bar that the host has placed.
struct ProgressBarFixture
{
    ProgressBarFixture()
    {
        auto opDefinition = MakeOwner<ProgressBarDefinition>(L"Bar.Id");
        pDefinition = opDefinition.Get();
        pDefinition->SetTooltip(L"tip");
        pDefinition->SetValue(42);
        pDefinition->SetTextVisible(false);
        pDefinition->SetWidth(123);
        opBar = MakeOwner<QtProgressBar>(std::move(opDefinition), &notItsParent);
    }

    void Show()
    {
        opBar->setParent(&parent);
        parent.show();
        opBar->show();
    }

    HostFixture host;
    QWidget notItsParent;
    QWidget parent;
    ProgressBarDefinition* pDefinition;
    OwnerPtr<QtProgressBar> opBar;
};

struct BareProgressBarFixture
{
    HostFixture host;
    OwnerPtr<QtProgressBar> opBar = MakeOwner<QtProgressBar>(nullptr, nullptr);
};

class QtProgressBarTest : public QObject
{
    Q_OBJECT

private slots:
    void showsValueTextAndWidthUnderTheIdOfItsDefinition();
    void isEighteenPixelsHigh();
    void hasItsOwnStyleSheetToTheLetter();
    void looksAsAnyBarWithThatSheet_data();
    void looksAsAnyBarWithThatSheet();
    void followsTheSheetOfItsParent();
    void hasNoParent();
    void answersItsDefinition();
    void hasTheMetaObjectOfAPlainBar();
    void isBuiltNeitherShownNorHiddenNorDisabled();
    void followsValueTextAndWidth();
    void followsVisibilityAndEnabledState();
    void writesStateWithoutComparing();
    void valuesAreReadWhenTheirTurnComes();
    void textIsShownBeforeTheValueChanges();
    void keepsItsToolTipWhenTheDefinitionChanges();
    void keepsItsHeightWhenTheDefinitionChanges();
    void valueBeyondTheRangeIsQtsToIgnore_data();
    void valueBeyondTheRangeIsQtsToIgnore();
    void ignoresOtherEvents_data() { AddOtherEventTypes(); }
    void ignoresOtherEvents();
    void reportsMissingArguments();
    void statusUpdateAppliesVisibilityAndEnabledStateOnly();
    void withoutDefinitionItIsBareAndReportsIt();
    void withoutDefinitionItNeverChanges();
};

void QtProgressBarTest::showsValueTextAndWidthUnderTheIdOfItsDefinition()
{
    ProgressBarFixture f;

    QCOMPARE(f.opBar->value(), 42);
    QVERIFY(!f.opBar->isTextVisible());
    QCOMPARE(f.opBar->minimumWidth(), 123);
    QCOMPARE(f.opBar->maximumWidth(), 123);
    QCOMPARE(f.opBar->toolTip(), QString("tip"));
    QCOMPARE(f.opBar->objectName(), QString("Bar.Id"));
    QCOMPARE(f.opBar->property("IsDefinition"), QVariant(true));
    QCOMPARE(f.opBar->minimum(), 0);
    QCOMPARE(f.opBar->maximum(), 100);
}

void QtProgressBarTest::isEighteenPixelsHigh()
{
    ProgressBarFixture f;

    QCOMPARE(f.opBar->minimumHeight(), 18);
    QCOMPARE(f.opBar->maximumHeight(), 18);
}

void QtProgressBarTest::hasItsOwnStyleSheetToTheLetter()
{
    ProgressBarFixture f;

    QCOMPARE(f.opBar->styleSheet(),
             QString("QProgressBar \n{\nborder: 1px solid #adcdf2;   \ntext-align: center;\n}\n"
                     "QProgressBar::chunk \n{\nbackground-color: #6babf5;   \n"
                     "margin - top: 2px;\nmargin - bottom: 2px;\n}\n"));
}

void QtProgressBarTest::looksAsAnyBarWithThatSheet_data()
{
    QTest::addColumn<int>("olderBars");
    QTest::addColumn<bool>("areTheyGone");
    QTest::newRow("the first bar") << 0 << false;
    QTest::newRow("one of several") << 2 << false;
    QTest::newRow("the only one that is left") << 2 << true;
}

void QtProgressBarTest::looksAsAnyBarWithThatSheet()
{
    QFETCH(int, olderBars);
    QFETCH(bool, areTheyGone);
    const HostFixture host;
    const auto makeBar = [] {
        auto opDefinition = MakeOwner<ProgressBarDefinition>(L"id");
        opDefinition->SetValue(42);
        opDefinition->SetWidth(123);
        return MakeOwner<QtProgressBar>(std::move(opDefinition), nullptr);
    };
    std::vector<OwnerPtr<QtProgressBar>> older;
    for (int i = 0; i < olderBars; ++i)
        older.push_back(makeBar());
    const OwnerPtr<QtProgressBar> opBar = makeBar();
    if (areTheyGone)
        older.clear();
    QProgressBar plain;
    plain.setValue(42);
    plain.setFixedSize(123, 18);
    plain.setStyleSheet(opBar->styleSheet());

    QCOMPARE(opBar->grab().toImage(), plain.grab().toImage());
    QCOMPARE(opBar->sizeHint(), plain.sizeHint());
    QCOMPARE(opBar->testAttribute(Qt::WA_SetStyle), plain.testAttribute(Qt::WA_SetStyle));
}

void QtProgressBarTest::followsTheSheetOfItsParent()
{
    const ProgressBarFixture older;
    ProgressBarFixture f;
    QWidget otherParent;
    QProgressBar plain(&otherParent);
    plain.setValue(42);
    plain.setTextVisible(false);
    plain.setFixedSize(123, 18);
    plain.setStyleSheet(f.opBar->styleSheet());

    f.parent.setStyleSheet("QProgressBar::chunk { background-color: red; margin: 4px; }");
    otherParent.setStyleSheet(f.parent.styleSheet());
    f.Show();

    QCOMPARE(f.opBar->grab().toImage(), plain.grab().toImage());
}

void QtProgressBarTest::hasNoParent()
{
    ProgressBarFixture f;

    QVERIFY(f.opBar->parent() == nullptr);
    QVERIFY(f.notItsParent.children().isEmpty());
}

void QtProgressBarTest::answersItsDefinition()
{
    ProgressBarFixture f;

    QCOMPARE(f.opBar->GetControlDefinition(), static_cast<IControlDefinition*>(f.pDefinition));
}

void QtProgressBarTest::hasTheMetaObjectOfAPlainBar()
{
    ProgressBarFixture f;

    QCOMPARE(f.opBar->metaObject(), &QProgressBar::staticMetaObject);
}

void QtProgressBarTest::isBuiltNeitherShownNorHiddenNorDisabled()
{
    HostFixture host;
    auto opDefinition = MakeOwner<ProgressBarDefinition>(L"id");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);

    const QtProgressBar bar(std::move(opDefinition), nullptr);

    QVERIFY(!bar.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(bar.isEnabled());
}

void QtProgressBarTest::followsValueTextAndWidth()
{
    ProgressBarFixture f;
    f.Show();

    f.pDefinition->SetValue(7);
    QCOMPARE(f.opBar->value(), 7);
    f.pDefinition->SetTextVisible(true);
    QVERIFY(f.opBar->isTextVisible());
    f.pDefinition->SetWidth(222);
    QCOMPARE(f.opBar->minimumWidth(), 222);
    QCOMPARE(f.opBar->maximumWidth(), 222);
}

void QtProgressBarTest::followsVisibilityAndEnabledState()
{
    ProgressBarFixture f;
    f.Show();

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    QVERIFY(f.opBar->isHidden());
    QVERIFY(!f.opBar->isEnabled());

    f.pDefinition->SetVisible(true);
    f.pDefinition->SetEnabled(true);
    QVERIFY(f.opBar->isVisible());
    QVERIFY(f.opBar->isEnabled());
}

void QtProgressBarTest::writesStateWithoutComparing()
{
    ProgressBarFixture f;
    f.Show();
    f.parent.hide();
    f.parent.setEnabled(false);

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(f.opBar->isHidden());
    QVERIFY(f.opBar->testAttribute(Qt::WA_ForceDisabled));
}

void QtProgressBarTest::valuesAreReadWhenTheirTurnComes()
{
    ProgressBarFixture f;
    f.Show();
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opBar.Get());
    f.pDefinition->SetValue(43);
    connect(f.opBar.Get(), &QProgressBar::valueChanged, this, [&f] {
        f.pDefinition->SetWidth(77);
        f.pDefinition->SetVisible(false);
        f.pDefinition->SetEnabled(false);
    });

    f.opBar->On(&args);

    QCOMPARE(f.opBar->width(), 77);
    QVERIFY(f.opBar->isHidden());
    QVERIFY(!f.opBar->isEnabled());
}

void QtProgressBarTest::textIsShownBeforeTheValueChanges()
{
    ProgressBarFixture f;
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opBar.Get());
    f.pDefinition->SetTextVisible(true);
    f.pDefinition->SetValue(43);
    bool wasTextVisible = false;
    connect(f.opBar.Get(), &QProgressBar::valueChanged, this,
            [&] { wasTextVisible = f.opBar->isTextVisible(); });

    f.opBar->On(&args);

    QVERIFY(wasTextVisible);
}

void QtProgressBarTest::keepsItsToolTipWhenTheDefinitionChanges()
{
    ProgressBarFixture f;
    f.Show();

    f.pDefinition->SetTooltip(L"another tip");

    QCOMPARE(f.opBar->toolTip(), QString("tip"));
}

void QtProgressBarTest::keepsItsHeightWhenTheDefinitionChanges()
{
    ProgressBarFixture f;
    f.Show();

    f.pDefinition->SetWidth(500);

    QCOMPARE(f.opBar->minimumHeight(), 18);
    QCOMPARE(f.opBar->maximumHeight(), 18);
    QVERIFY(!f.opBar->styleSheet().isEmpty());
}

void QtProgressBarTest::valueBeyondTheRangeIsQtsToIgnore_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("above") << 101;
    QTest::newRow("below") << -1;
}

void QtProgressBarTest::valueBeyondTheRangeIsQtsToIgnore()
{
    QFETCH(int, value);
    ProgressBarFixture f;
    f.Show();

    f.pDefinition->SetValue(value);

    QCOMPARE(f.opBar->value(), 42);
    QCOMPARE(f.opBar->minimum(), 0);
    QCOMPARE(f.opBar->maximum(), 100);
}

void QtProgressBarTest::ignoresOtherEvents()
{
    QFETCH(int, type);
    ProgressBarFixture f;
    f.opBar->setValue(3);
    f.opBar->setTextVisible(true);
    f.opBar->setFixedWidth(5);
    f.opBar->setEnabled(false);
    ChangeArgs args(type);

    f.opBar->On(&args);

    QCOMPARE(f.opBar->value(), 3);
    QVERIFY(f.opBar->isTextVisible());
    QCOMPARE(f.opBar->minimumWidth(), 5);
    QVERIFY(!f.opBar->isEnabled());
    QVERIFY(!f.opBar->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void QtProgressBarTest::reportsMissingArguments()
{
    ProgressBarFixture f;
    f.opBar->setValue(3);

    f.opBar->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtProgressBar::On");
    QCOMPARE(f.opBar->value(), 3);
}

void QtProgressBarTest::statusUpdateAppliesVisibilityAndEnabledStateOnly()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<ProgressBarDefinition>(L"id");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);
    QtProgressBar bar(std::move(opDefinition), nullptr);
    bar.setParent(&parent);
    bar.setValue(3);
    bar.setTextVisible(false);
    bar.setFixedWidth(5);

    bar.UpdateStatus();

    QVERIFY(bar.isHidden());
    QVERIFY(bar.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(!bar.isEnabled());
    QCOMPARE(bar.value(), 3);
    QVERIFY(!bar.isTextVisible());
    QCOMPARE(bar.minimumWidth(), 5);
}

void QtProgressBarTest::withoutDefinitionItIsBareAndReportsIt()
{
    BareProgressBarFixture f;

    EXPECT_WARNING(f.host.warnings, L"pControlDefinition是空指针",
                   "vesk::QtProgressBar::QtProgressBar");
    QVERIFY(f.opBar->GetControlDefinition() == nullptr);
    QVERIFY(!f.opBar->property("IsDefinition").isValid());
    QCOMPARE(f.opBar->styleSheet(), QString());
}

void QtProgressBarTest::withoutDefinitionItNeverChanges()
{
    BareProgressBarFixture f;
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition是空指针",
                   "vesk::QtProgressBar::QtProgressBar");
    ChangeArgs args;

    f.opBar->On(nullptr);
    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtProgressBar::On");
    f.opBar->On(&args);
    f.opBar->UpdateStatus();
    EXPECT_WARNING(f.host.warnings, L"m_pControlDefinition为空",
                   "vesk::QtProgressBar::UpdateStatus");

    QCOMPARE(f.opBar->value(), -1);
    QVERIFY(!f.opBar->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

}

VESK_TESTS(vesk::test::QtProgressBarTest);
#include "QtProgressBarTest.moc"
