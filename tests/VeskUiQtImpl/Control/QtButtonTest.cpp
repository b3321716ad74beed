#include "VeskUiQtImpl/Control/QtButton.h"

#include "Control/ButtonFixture.h"
#include "Control/ChangeArgs.h"
#include "Control/ReportingControls.h"

#include "Support/TestValues.h"

namespace vesk::test
{

class QtButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void looksAsItsDefinitionSays();
    void isMarkedAsADefinitionTogetherWithItsAction();
    void ownsItsAction();
    void hasAMetaObjectWithoutSignalsSlotsAndInvokables();
    void mapsTheStyle_data();
    void mapsTheStyle();
    void startsCheckedWhenTheDefinitionIs();
    void isBuiltNeitherShownNorHiddenNorDisabled();
    void withoutDefinitionItIsBlankAndReportsIt();
    void withoutDefinitionItDoesNothing();
    void withoutAnActionTheRestIsMade();
    void statusUpdateAppliesVisibilityEnabledAndItsOwnCheckedState();
    void statusUpdateLeavesTheLookAlone();
    void statusUpdateLeavesTheStatesOfTheActionAlone();
    void statusUpdateEnablesBeforeItChecks();
};

void QtButtonTest::looksAsItsDefinitionSays()
{
    const QTemporaryDir folder;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Button.Id", L"Test.Command");
    opDefinition->SetCaption(L"直线");
    opDefinition->SetTooltip(L"tip");
    opDefinition->SetIconPath(WriteIcon(folder, "red.png", Qt::red).toStdWString());
    HostFixture host;

    const QtButton button(std::move(opDefinition), nullptr);

    QCOMPARE(button.defaultAction()->text(), QString::fromUtf8("直线"));
    QCOMPARE(button.defaultAction()->toolTip(), QString("tip"));
    QCOMPARE(button.toolTip(), QString("tip"));
    QCOMPARE(ColorOf(button.defaultAction()->icon()), QColor(Qt::red));
    QVERIFY(button.defaultAction()->isCheckable());
    QVERIFY(!button.defaultAction()->isChecked());
    QVERIFY(button.isCheckable());
    QVERIFY(button.autoRaise());
    QCOMPARE(button.objectName(), QString("Button.Id"));
    QVERIFY(button.parent() == nullptr);
}

void QtButtonTest::isMarkedAsADefinitionTogetherWithItsAction()
{
    ButtonFixture f;

    QCOMPARE(f.opButton->property("IsDefinition"), QVariant(true));
    QCOMPARE(f.Action().property("IsDefinition"), QVariant(true));
    QCOMPARE(f.opButton->GetControlDefinition(), static_cast<IControlDefinition*>(f.pDefinition));
    QCOMPARE(f.opButton->parentWidget(), &f.parent);
}

void QtButtonTest::ownsItsAction()
{
    ButtonFixture f;
    const QPointer<QAction> pAction(&f.Action());
    QCOMPARE(pAction->parent(), f.opButton.Get());

    f.opButton.Reset();

    QVERIFY(pAction == nullptr);
}

void QtButtonTest::hasAMetaObjectWithoutSignalsSlotsAndInvokables()
{
    const QMetaObject& meta = QtButton::staticMetaObject;

    QCOMPARE(QByteArray(meta.className()), QByteArray("vesk::QtButton"));
    QCOMPARE(meta.superClass(), &QToolButton::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void QtButtonTest::mapsTheStyle_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<Qt::ToolButtonStyle>("qtStyle");
    QTest::newRow("icon only") << 0 << Qt::ToolButtonIconOnly;
    QTest::newRow("text only") << 1 << Qt::ToolButtonTextOnly;
    QTest::newRow("text beside icon") << 2 << Qt::ToolButtonTextBesideIcon;
    QTest::newRow("text under icon") << 3 << Qt::ToolButtonTextUnderIcon;
    QTest::newRow("as the style says") << 4 << Qt::ToolButtonFollowStyle;
    QTest::newRow("5") << 5 << Qt::ToolButtonTextUnderIcon;
    QTest::newRow("7") << 7 << Qt::ToolButtonTextUnderIcon;
    QTest::newRow("-1") << -1 << Qt::ToolButtonTextUnderIcon;
}

void QtButtonTest::mapsTheStyle()
{
    QFETCH(int, style);
    QFETCH(Qt::ToolButtonStyle, qtStyle);
    ButtonFixture f;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"command");
    opDefinition->SetButtonStyle(style);

    const QtButton built(std::move(opDefinition), nullptr);
    f.pDefinition->SetButtonStyle(style);

    QCOMPARE(built.toolButtonStyle(), qtStyle);
    QCOMPARE(f.opButton->toolButtonStyle(), qtStyle);
}

void QtButtonTest::startsCheckedWhenTheDefinitionIs()
{
    HostFixture host;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"command");
    opDefinition->SetChecked(true);

    const QtButton button(std::move(opDefinition), nullptr);

    QVERIFY(button.defaultAction()->isChecked());
    QVERIFY(button.isChecked());
}

void QtButtonTest::isBuiltNeitherShownNorHiddenNorDisabled()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"command");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);

    const QtButton button(std::move(opDefinition), &parent);

    QVERIFY(!button.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(button.isEnabled());
}

void QtButtonTest::withoutDefinitionItIsBlankAndReportsIt()
{
    HostFixture host;

    const QtButton button(nullptr, nullptr);

    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtButton::QtButton");
    QVERIFY(button.GetControlDefinition() == nullptr);
    QVERIFY(button.defaultAction() == nullptr);
    QCOMPARE(button.text(), QString());
    QCOMPARE(button.objectName(), QString());
    QVERIFY(!button.property("IsDefinition").isValid());
    QVERIFY(!button.isCheckable());
    QVERIFY(!button.autoRaise());
}

void QtButtonTest::withoutDefinitionItDoesNothing()
{
    HostFixture host;
    QtButton button(nullptr, nullptr);
    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtButton::QtButton");
    ChangeArgs args;

    button.click();
    button.On(&args);
    button.UpdateStatus();

    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtButton::UpdateStatus");
    QVERIFY(host.journal.GetCommands().empty());
    QVERIFY(!button.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void QtButtonTest::withoutAnActionTheRestIsMade()
{
    HostFixture host;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Button.Id", L"Test.Command");
    CommandButtonDefinition& definition = *opDefinition;
    ChildThief thief(false);

    const QtButton button(std::move(opDefinition), nullptr);

    EXPECT_WARNING(host.warnings, L"parent cannot be null", "vesk::CreateAction");
    QVERIFY(button.defaultAction() == nullptr);
    QVERIFY(button.isCheckable());
    QVERIFY(button.autoRaise());
    QCOMPARE(button.objectName(), QString("Button.Id"));
    definition.SetButtonStyle(1);
    QCOMPARE(button.toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void QtButtonTest::statusUpdateAppliesVisibilityEnabledAndItsOwnCheckedState()
{
    ButtonFixture f;
    f.opButton.Reset();
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"command");
    CommandButtonDefinition* pDefinition = opDefinition.Get();
    QtButton button(std::move(opDefinition), &f.parent);
    {
        const QSignalBlocker noAction(button.defaultAction());
        pDefinition->GetControlDefinitionChangeEvent()->Delete(&button);
        pDefinition->SetVisible(false);
        pDefinition->SetEnabled(false);
        pDefinition->SetChecked(true);
    }

    button.UpdateStatus();

    QVERIFY(button.isHidden());
    QVERIFY(!button.isEnabled());
    QVERIFY(button.isChecked());
    QVERIFY(!button.defaultAction()->isChecked());
}

void QtButtonTest::statusUpdateLeavesTheLookAlone()
{
    ButtonFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opButton.Get());
    f.pDefinition->SetCaption(L"another");
    f.pDefinition->SetTooltip(L"another tip");
    f.pDefinition->SetIconPath(L"/an/icon.png");
    f.pDefinition->SetButtonStyle(1);

    f.opButton->UpdateStatus();

    QCOMPARE(f.Action().text(), QString("caption"));
    QCOMPARE(f.opButton->toolTip(), QString("tip"));
    QVERIFY(f.Action().icon().isNull());
    QCOMPARE(f.opButton->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

void QtButtonTest::statusUpdateLeavesTheStatesOfTheActionAlone()
{
    ButtonFixture f;
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    f.opButton->UpdateStatus();

    QVERIFY(!f.opButton->isEnabled());
    QVERIFY(f.Action().isVisible());
    QVERIFY(f.Action().isEnabled());
}

void QtButtonTest::statusUpdateEnablesBeforeItChecks()
{
    ButtonFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opButton.Get());
    f.pDefinition->SetEnabled(false);
    f.pDefinition->SetChecked(true);
    bool wasEnabled = true;
    connect(f.opButton.Get(), &QAbstractButton::toggled, this,
            [&] { wasEnabled = f.opButton->isEnabled(); });

    f.opButton->UpdateStatus();

    QVERIFY(f.opButton->isChecked());
    QVERIFY(!wasEnabled);
}

}

VESK_TESTS(vesk::test::QtButtonTest);
#include "QtButtonTest.moc"
