#include "Control/ButtonFixture.h"
#include "Control/ChangeArgs.h"
#include "Control/OtherEventTypes.h"

#include "Support/TestValues.h"

namespace vesk::test
{

/// How a button follows changes of its definition.
class QtButtonChangeTest : public QObject
{
    Q_OBJECT

private slots:
    void followsStyleCaptionIconAndCheckedState();
    void followsAStyleWithoutAnAction();
    void keepsItsToolTipWhenTheDefinitionChanges();
    void eventsLeaveVisibilityAndEnabledStateAlone();
    void staysDisabledWhenTheDefinitionChanges();
    void staysDisabledBelowADisabledParent();
    void isEnabledAgainWithItsParent();
    void seemsDisabledToWhoeverHearsOfItsAction();
    void mayBeEnabledByWhoeverHearsOfItsAction();
    void valuesAreReadWhenTheirTurnComes();
    void styleIconCaptionAndCheckedStateAreWrittenInThisOrder();
    void writesItsActionWithoutComparing();
    void actionMayGoWhileItIsWritten();
    void captionIsWrittenToTheActionOnly();
    void ignoresOtherEvents_data();
    void ignoresOtherEvents();
    void reportsMissingArguments();
};

void QtButtonChangeTest::followsStyleCaptionIconAndCheckedState()
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

void QtButtonChangeTest::followsAStyleWithoutAnAction()
{
    ButtonFixture f;
    delete f.opButton->defaultAction();

    f.pDefinition->SetButtonStyle(1);

    QVERIFY(f.opButton->defaultAction() == nullptr);
    QCOMPARE(f.opButton->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

void QtButtonChangeTest::keepsItsToolTipWhenTheDefinitionChanges()
{
    ButtonFixture f;

    f.pDefinition->SetTooltip(L"another tip");

    QCOMPARE(f.opButton->toolTip(), QString("tip"));
    QCOMPARE(f.Action().toolTip(), QString("tip"));
}

void QtButtonChangeTest::eventsLeaveVisibilityAndEnabledStateAlone()
{
    ButtonFixture f;

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(f.opButton->isVisible());
    QVERIFY(f.opButton->isEnabled());
}

void QtButtonChangeTest::staysDisabledWhenTheDefinitionChanges()
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

void QtButtonChangeTest::staysDisabledBelowADisabledParent()
{
    ButtonFixture f;
    f.parent.setEnabled(false);
    f.pDefinition->SetEnabled(false);
    f.opButton->UpdateStatus();

    f.pDefinition->SetCaption(L"another");
    f.parent.setEnabled(true);

    QVERIFY(!f.opButton->isEnabled());
}

void QtButtonChangeTest::isEnabledAgainWithItsParent()
{
    ButtonFixture f;
    f.parent.setEnabled(false);

    f.pDefinition->SetCaption(L"another");
    f.parent.setEnabled(true);

    QVERIFY(f.opButton->isEnabled());
}

void QtButtonChangeTest::seemsDisabledToWhoeverHearsOfItsAction()
{
    ButtonFixture f;
    f.pDefinition->SetEnabled(false);
    f.opButton->UpdateStatus();
    QList<bool> states;
    connect(&f.Action(), &QAction::changed, this, [&] { states += f.opButton->isEnabled(); });

    f.pDefinition->SetCaption(L"another");

    QVERIFY(!states.isEmpty());
    QVERIFY(!states.contains(true));
}

void QtButtonChangeTest::mayBeEnabledByWhoeverHearsOfItsAction()
{
    ButtonFixture f;
    f.pDefinition->SetEnabled(false);
    f.opButton->UpdateStatus();
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opButton.Get());
    ChangeArgs args;
    connect(&f.Action(), &QAction::changed, this, [&] {
        f.pDefinition->SetEnabled(true);
        f.opButton->UpdateStatus();
    });

    f.opButton->On(&args);

    QVERIFY(f.opButton->isEnabled());
}

void QtButtonChangeTest::valuesAreReadWhenTheirTurnComes()
{
    ButtonFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opButton.Get());
    ChangeArgs args;
    connect(&f.Action(), &QAction::changed, this, [&] {
        f.pDefinition->SetChecked(f.Action().text() == "another");
        f.pDefinition->SetCaption(L"another");
    });

    f.opButton->On(&args);

    QCOMPARE(f.Action().text(), QString("another"));
    QVERIFY(f.Action().isChecked());
}

void QtButtonChangeTest::styleIconCaptionAndCheckedStateAreWrittenInThisOrder()
{
    const QTemporaryDir folder;
    ButtonFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opButton.Get());
    f.pDefinition->SetButtonStyle(1);
    f.pDefinition->SetIconPath(WriteIcon(folder, "red.png", Qt::red).toStdWString());
    f.pDefinition->SetCaption(L"another");
    f.pDefinition->SetChecked(true);
    ChangeArgs args;
    QStringList steps;
    connect(&f.Action(), &QAction::changed, this, [&] {
        steps += QString("%1 %2 %3 %4")
                     .arg(int(f.opButton->toolButtonStyle()))
                     .arg(ColorOf(f.Action().icon()) == QColor(Qt::red))
                     .arg(f.Action().text())
                     .arg(f.Action().isChecked());
    });

    f.opButton->On(&args);

    QCOMPARE(steps, QStringList({"1 1 caption 0", "1 1 another 0", "1 1 another 1"}));
}

void QtButtonChangeTest::writesItsActionWithoutComparing()
{
    ButtonFixture f;
    const QSignalSpy changes(&f.Action(), &QAction::changed);

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    // Setting an icon counts as a change even if it is the same.
    QCOMPARE(changes.count(), 1);
}

void QtButtonChangeTest::actionMayGoWhileItIsWritten()
{
    ButtonFixture f;
    connect(&f.Action(), &QAction::changed, this, [&] { delete f.opButton->defaultAction(); });

    f.pDefinition->SetCaption(L"another");

    QVERIFY(f.opButton->defaultAction() == nullptr);
}

void QtButtonChangeTest::captionIsWrittenToTheActionOnly()
{
    ButtonFixture f;

    f.pDefinition->SetCaption(L"&Open...");

    // What Qt itself derives from the text of the action.
    QCOMPARE(f.Action().text(), QString("&Open..."));
    QCOMPARE(f.opButton->text(), QString("Open"));
}

void QtButtonChangeTest::ignoresOtherEvents_data()
{
    AddOtherEventTypes();
}

void QtButtonChangeTest::ignoresOtherEvents()
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

void QtButtonChangeTest::reportsMissingArguments()
{
    ButtonFixture f;
    f.Action().setText("by hand");

    f.opButton->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtButton::On");
    QCOMPARE(f.Action().text(), QString("by hand"));
}

}

VESK_TESTS(vesk::test::QtButtonChangeTest);
#include "QtButtonChangeTest.moc"
