#include "Control/QtButton.h"

#include "Control/ChangeArgs.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/OtherEventTypes.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QAction>
#include <QTemporaryDir>

namespace vesk::test
{

struct ButtonFixture
{
    ButtonFixture()
    {
        auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Button.Id", L"Test.Command");
        pDefinition = opDefinition.Get();
        pDefinition->SetCaption(L"caption");
        pDefinition->SetTooltip(L"tip");
        opButton = MakeOwner<QtButton>(std::move(opDefinition), &parent);
        parent.show();
    }

    QAction& Action() const { return *opButton->defaultAction(); }

    HostFixture host;
    QWidget parent;
    CommandButtonDefinition* pDefinition;
    OwnerPtr<QtButton> opButton;
};

/// Writes an icon that is nothing but one colour, and returns its path.
QString WriteIcon(const QTemporaryDir& folder, const QString& name, const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    const QString path = folder.filePath(name);
    pixmap.save(path);
    return path;
}

QColor ColorOf(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage().pixelColor(8, 8);
}

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
    void statusUpdateAppliesVisibilityEnabledAndItsOwnCheckedState();
    void followsStyleCaptionIconAndCheckedState();
    void followsAStyleWithoutAnAction();
    void keepsItsToolTipWhenTheDefinitionChanges();
    void eventsLeaveVisibilityAndEnabledStateAlone();
    void staysDisabledWhenTheDefinitionChanges();
    void ignoresOtherEvents_data();
    void ignoresOtherEvents();
    void reportsMissingArguments();
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

void QtButtonTest::followsStyleCaptionIconAndCheckedState()
{
    const QTemporaryDir folder;
    ButtonFixture f;

    f.pDefinition->SetCaption(L"another");
    f.pDefinition->SetIconPath(WriteIcon(folder, "blue.png", Qt::blue).toStdWString());
    f.pDefinition->SetButtonStyle(2);
    f.pDefinition->SetChecked(true);

    QCOMPARE(f.Action().text(), QString("another"));
    QCOMPARE(f.opButton->text(), QString("another"));
    QCOMPARE(ColorOf(f.Action().icon()), QColor(Qt::blue));
    QCOMPARE(f.opButton->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QVERIFY(f.Action().isChecked());
    QVERIFY(f.opButton->isChecked());
}

void QtButtonTest::followsAStyleWithoutAnAction()
{
    ButtonFixture f;
    delete f.opButton->defaultAction();

    f.pDefinition->SetButtonStyle(1);

    QVERIFY(f.opButton->defaultAction() == nullptr);
    QCOMPARE(f.opButton->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void QtButtonTest::keepsItsToolTipWhenTheDefinitionChanges()
{
    ButtonFixture f;

    f.pDefinition->SetTooltip(L"another tip");

    QCOMPARE(f.opButton->toolTip(), QString("tip"));
    QCOMPARE(f.Action().toolTip(), QString("tip"));
}

void QtButtonTest::eventsLeaveVisibilityAndEnabledStateAlone()
{
    ButtonFixture f;

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(f.opButton->isVisible());
    QVERIFY(f.opButton->isEnabled());
}

void QtButtonTest::staysDisabledWhenTheDefinitionChanges()
{
    ButtonFixture f;
    f.pDefinition->SetEnabled(false);
    f.opButton->UpdateStatus();

    f.pDefinition->SetCaption(L"another");
    QVERIFY(!f.opButton->isEnabled());

    f.pDefinition->SetEnabled(true);
    f.opButton->UpdateStatus();
    f.pDefinition->SetCaption(L"a third");
    QVERIFY(f.opButton->isEnabled());
}

void QtButtonTest::ignoresOtherEvents_data()
{
    AddOtherEventTypes();
}

void QtButtonTest::ignoresOtherEvents()
{
    QFETCH(int, type);
    ButtonFixture f;
    f.Action().setText("by hand");
    f.opButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    ChangeArgs args(type);

    f.opButton->On(&args);

    QCOMPARE(f.Action().text(), QString("by hand"));
    QCOMPARE(f.opButton->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void QtButtonTest::reportsMissingArguments()
{
    ButtonFixture f;
    f.Action().setText("by hand");

    f.opButton->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtButton::On");
    QCOMPARE(f.Action().text(), QString("by hand"));
}

}

QTEST_MAIN(vesk::test::QtButtonTest)
#include "QtButtonTest.moc"
