#include "VeskUiQtImpl/Control/QtComboBox.h"

#include "Control/ChangeArgs.h"
#include "Control/ComboBoxDefinitions.h"
#include "Control/OtherEventTypes.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;

/// A shown combo box with the items a, b and c; b is current.
struct ComboBoxFixture
{
    ComboBoxFixture()
    {
        auto opDefinition = MakeOwner<LooseComboBoxDefinition>();
        pDefinition = opDefinition.Get();
        pDefinition->items = {L"a", L"b", L"c"};
        pDefinition->currentIndex = 1;
        pDefinition->SetTooltip(L"tip");
        opBox = MakeOwner<QtComboBox>(std::move(opDefinition), &parent);
        parent.show();
    }

    QStringList GetItems() const
    {
        QStringList items;
        for (int i = 0; i < opBox->count(); ++i)
            items += opBox->itemText(i);
        return items;
    }

    HostFixture host;
    QWidget parent;
    LooseComboBoxDefinition* pDefinition;
    OwnerPtr<QtComboBox> opBox;
};

struct BareComboBoxFixture
{
    HostFixture host;
    OwnerPtr<QtComboBox> opBox = MakeOwner<QtComboBox>(nullptr, nullptr);
};

class QtComboBoxTest : public QObject
{
    Q_OBJECT

private slots:
    void showsItemsAndCurrentIndexUnderTheIdOfItsDefinition();
    void itemsHaveNeitherIconNorData();
    void showsNoToolTip();
    void answersItsDefinition();
    void hasAMetaObjectWithoutMethodsOfItsOwn();
    void isBuiltNeitherShownNorHiddenNorDisabled();
    void buildingWritesNothingBack();
    void appendsAnItemWhateverItsIndex();
    void insertsAnItemAtItsIndex();
    void removesTheItemAtItsIndex();
    void clearsAllItems();
    void newItemsHaveNeitherIconNorData();
    void followsTheCurrentIndex();
    void statesAreReadAfterTheIndex();
    void followsVisibilityAndEnabledState();
    void comparesWithWhatIsSeen();
    void ignoresOtherEvents_data() { AddUnknownEventTypes(); }
    void ignoresOtherEvents();
    void itemsStayWhenAPropertyChanges();
    void reportsMissingArguments();
    void statusUpdateAppliesVisibilityAndEnabledState();
    void statusUpdateWritesWithoutComparing();
    void withoutDefinitionItIsBareAndReportsIt();
    void withoutDefinitionItNeverChanges();
};

void QtComboBoxTest::showsItemsAndCurrentIndexUnderTheIdOfItsDefinition()
{
    ComboBoxFixture f;

    QCOMPARE(f.GetItems(), QStringList({"a", "b", "c"}));
    QCOMPARE(f.opBox->currentIndex(), 1);
    QCOMPARE(f.opBox->objectName(), QString("Box.Id"));
    QCOMPARE(f.opBox->property("IsDefinition"), QVariant(true));
    QCOMPARE(f.opBox->parentWidget(), &f.parent);
}

void QtComboBoxTest::itemsHaveNeitherIconNorData()
{
    ComboBoxFixture f;

    QVERIFY(f.opBox->itemIcon(0).isNull());
    QVERIFY(!f.opBox->itemData(0).isValid());
}

void QtComboBoxTest::showsNoToolTip()
{
    ComboBoxFixture f;

    f.pDefinition->SetTooltip(L"another tip");
    f.opBox->UpdateStatus();

    QCOMPARE(f.opBox->toolTip(), QString());
}

void QtComboBoxTest::answersItsDefinition()
{
    ComboBoxFixture f;

    QCOMPARE(f.opBox->GetControlDefinition(), static_cast<IControlDefinition*>(f.pDefinition));
}

void QtComboBoxTest::hasAMetaObjectWithoutMethodsOfItsOwn()
{
    ComboBoxFixture f;

    QCOMPARE(f.opBox->metaObject()->className(), "vesk::QtComboBox");
    QCOMPARE(f.opBox->metaObject()->superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(f.opBox->metaObject()->methodCount(), QComboBox::staticMetaObject.methodCount());
}

void QtComboBoxTest::isBuiltNeitherShownNorHiddenNorDisabled()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<LooseComboBoxDefinition>();
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);

    const QtComboBox box(std::move(opDefinition), &parent);

    QVERIFY(!box.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(box.isEnabled());
}

void QtComboBoxTest::buildingWritesNothingBack()
{
    HostFixture host;
    auto opDefinition = MakeOwner<LooseComboBoxDefinition>();
    LooseComboBoxDefinition* pDefinition = opDefinition.Get();
    pDefinition->items = {L"a", L"b"};
    pDefinition->currentIndex = 99;

    const QtComboBox box(std::move(opDefinition), nullptr);

    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(pDefinition->writes.empty());
    QCOMPARE(pDefinition->currentIndex, 99);
}

void QtComboBoxTest::appendsAnItemWhateverItsIndex()
{
    ComboBoxFixture f;

    f.pDefinition->Raise(EventType::Add, 0, L"d");
    f.pDefinition->Raise(EventType::Add, 0, L"");

    QCOMPARE(f.GetItems(), QStringList({"a", "b", "c", "d", ""}));
}

void QtComboBoxTest::insertsAnItemAtItsIndex()
{
    ComboBoxFixture f;

    f.pDefinition->Raise(EventType::Insert, 2, L"角");

    QCOMPARE(f.GetItems(), QStringList({"a", "b", QString::fromUtf8("角"), "c"}));
}

void QtComboBoxTest::removesTheItemAtItsIndex()
{
    ComboBoxFixture f;

    f.pDefinition->Raise(EventType::Delete, 2);

    QCOMPARE(f.GetItems(), QStringList({"a", "b"}));
}

void QtComboBoxTest::clearsAllItems()
{
    ComboBoxFixture f;

    f.pDefinition->Raise(EventType::Clear);

    QCOMPARE(f.opBox->count(), 0);
}

void QtComboBoxTest::newItemsHaveNeitherIconNorData()
{
    ComboBoxFixture f;

    f.pDefinition->Raise(EventType::Insert, 0, L"first");
    f.pDefinition->Raise(EventType::Add, 4, L"last");

    QVERIFY(f.opBox->itemIcon(0).isNull());
    QVERIFY(!f.opBox->itemData(0).isValid());
    QVERIFY(f.opBox->itemIcon(4).isNull());
    QVERIFY(!f.opBox->itemData(4).isValid());
}

void QtComboBoxTest::followsTheCurrentIndex()
{
    ComboBoxFixture f;

    f.pDefinition->currentIndex = 2;
    f.pDefinition->Raise(EventType::PropertyChanged);

    QCOMPARE(f.opBox->currentIndex(), 2);
    QVERIFY(f.pDefinition->writes.empty());
}

void QtComboBoxTest::statesAreReadAfterTheIndex()
{
    ComboBoxFixture f;
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opBox.Get());
    f.pDefinition->currentIndex = 2;
    connect(f.opBox.Get(), QOverload<int>::of(&QComboBox::currentIndexChanged), this, [&f] {
        f.pDefinition->SetVisible(false);
        f.pDefinition->SetEnabled(false);
    });

    f.opBox->On(&args);

    QCOMPARE(f.opBox->currentIndex(), 2);
    QVERIFY(f.opBox->isHidden());
    QVERIFY(!f.opBox->isEnabled());
}

void QtComboBoxTest::followsVisibilityAndEnabledState()
{
    ComboBoxFixture f;

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    QVERIFY(f.opBox->isHidden());
    QVERIFY(!f.opBox->isEnabled());

    f.pDefinition->SetVisible(true);
    f.pDefinition->SetEnabled(true);
    QVERIFY(f.opBox->isVisible());
    QVERIFY(f.opBox->isEnabled());
}

void QtComboBoxTest::comparesWithWhatIsSeen()
{
    ComboBoxFixture f;
    f.parent.hide();
    f.parent.setEnabled(false);

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(!f.opBox->isHidden());
    QVERIFY(!f.opBox->testAttribute(Qt::WA_ForceDisabled));
}

void QtComboBoxTest::ignoresOtherEvents()
{
    QFETCH(int, type);
    ComboBoxFixture f;
    f.pDefinition->currentIndex = 2;

    f.pDefinition->Raise(type, 0, L"item");

    QCOMPARE(f.GetItems(), QStringList({"a", "b", "c"}));
    QCOMPARE(f.opBox->currentIndex(), 1);
}

void QtComboBoxTest::itemsStayWhenAPropertyChanges()
{
    ComboBoxFixture f;
    f.pDefinition->items = {L"another"};

    f.pDefinition->Raise(EventType::PropertyChanged);

    QCOMPARE(f.GetItems(), QStringList({"a", "b", "c"}));
}

void QtComboBoxTest::reportsMissingArguments()
{
    ComboBoxFixture f;

    f.opBox->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtComboBox::On");
    QCOMPARE(f.GetItems(), QStringList({"a", "b", "c"}));
}

void QtComboBoxTest::statusUpdateAppliesVisibilityAndEnabledState()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<LooseComboBoxDefinition>();
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);
    QtComboBox box(std::move(opDefinition), &parent);

    box.UpdateStatus();

    QVERIFY(box.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(box.isHidden());
    QVERIFY(!box.isEnabled());
}

void QtComboBoxTest::statusUpdateWritesWithoutComparing()
{
    ComboBoxFixture f;
    f.parent.hide();
    f.parent.setEnabled(false);
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    f.pDefinition->currentIndex = 2;

    f.opBox->UpdateStatus();

    QVERIFY(f.opBox->isHidden());
    QVERIFY(f.opBox->testAttribute(Qt::WA_ForceDisabled));
    QCOMPARE(f.opBox->currentIndex(), 1);
}

void QtComboBoxTest::withoutDefinitionItIsBareAndReportsIt()
{
    BareComboBoxFixture f;

    EXPECT_WARNING(f.host.warnings, L"m_pControlDefinition为空", "vesk::QtComboBox::QtComboBox");
    QVERIFY(f.opBox->GetControlDefinition() == nullptr);
    QVERIFY(!f.opBox->property("IsDefinition").isValid());
}

void QtComboBoxTest::withoutDefinitionItNeverChanges()
{
    BareComboBoxFixture f;
    EXPECT_WARNING(f.host.warnings, L"m_pControlDefinition为空", "vesk::QtComboBox::QtComboBox");
    ChangeArgs args(EventType::Add);

    f.opBox->On(nullptr);
    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtComboBox::On");
    f.opBox->On(&args);
    EXPECT_WARNING(f.host.warnings, L"m_pControlDefinition为空", "vesk::QtComboBox::On");
    f.opBox->UpdateStatus();
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空", "vesk::QtComboBox::UpdateStatus");
    f.opBox->addItem("by hand");

    QCOMPARE(f.opBox->count(), 1);
    QVERIFY(!f.opBox->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

}

VESK_TESTS(vesk::test::QtComboBoxTest);
#include "QtComboBoxTest.moc"
