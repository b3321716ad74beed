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
    void echoSendsNoEventAndNoSignal();
    void changedIconFileIsShown();
    void iconFileThatAppearsIsShown();
    void restoresWhatItsActionWasGivenByHand();
    void fallsIntoStepWithItsAction_data();
    void fallsIntoStepWithItsAction();
    void sharesTheIconOfAFile();
    void emptyIconPathRemovesTheIcon();
    void adoptsWhatAToolButtonWouldAdopt_data();
    void adoptsWhatAToolButtonWouldAdopt();
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
    f.pDefinition->SetCaption(L"another");
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
    const QTemporaryDir folder;
    ButtonFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opButton.Get());
    f.pDefinition->SetIconPath(WriteIcon(folder, "red.png", Qt::red).toStdWString());
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

/// Counts the events that any object gets.
class EventCount final : public QObject
{
public:
    EventCount() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent*) override
    {
        ++count;
        return false;
    }

    int count = 0;
};

void QtButtonChangeTest::echoSendsNoEventAndNoSignal()
{
    const QTemporaryDir folder;
    ButtonFixture f;
    f.pDefinition->SetIconPath(WriteIcon(folder, "red.png", Qt::red).toStdWString());
    f.pDefinition->SetCaption(L"&Open...");
    f.pDefinition->SetChecked(true);
    f.pDefinition->SetEnabled(false);
    f.opButton->UpdateStatus();
    const QSignalSpy changes(&f.Action(), &QAction::changed);
    const EventCount events;

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    QCOMPARE(changes.count(), 0);
    QCOMPARE(events.count, 0);
}

void QtButtonChangeTest::changedIconFileIsShown()
{
    const QTemporaryDir folder;
    ButtonFixture f;
    const QString path = WriteIcon(folder, "icon.png", Qt::red);
    f.pDefinition->SetIconPath(path.toStdWString());
    QCOMPARE(ColorOf(f.Action().icon()), QColor(Qt::red));

    QVERIFY(QPixmap(24, 24).save(path));
    QPixmap blue(24, 24);
    blue.fill(Qt::blue);
    QVERIFY(blue.save(path));

    ChangeArgs args;
    QTRY_VERIFY((f.opButton->On(&args), ColorOf(f.Action().icon()) == QColor(Qt::blue)));
    QCOMPARE(f.opButton->icon().cacheKey(), f.Action().icon().cacheKey());
}

void QtButtonChangeTest::iconFileThatAppearsIsShown()
{
    const QTemporaryDir folder;
    ButtonFixture f;
    f.pDefinition->SetIconPath(folder.filePath("icon.png").toStdWString());
    WriteIcon(folder, "icon.png", Qt::red);

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    QCOMPARE(ColorOf(f.Action().icon()), QColor(Qt::red));
}

void QtButtonChangeTest::restoresWhatItsActionWasGivenByHand()
{
    const QTemporaryDir folder;
    ButtonFixture f;
    f.pDefinition->SetIconPath(WriteIcon(folder, "red.png", Qt::red).toStdWString());
    f.Action().setIcon(QIcon(WriteIcon(folder, "blue.png", Qt::blue)));
    f.Action().setText("by hand");
    f.Action().setChecked(true);

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    QCOMPARE(ColorOf(f.Action().icon()), QColor(Qt::red));
    QCOMPARE(f.Action().text(), QString("caption"));
    QVERIFY(!f.Action().isChecked());
    QVERIFY(!f.opButton->isChecked());
}

void QtButtonChangeTest::fallsIntoStepWithItsAction_data()
{
    QTest::addColumn<bool>("isActionEnabled");
    QTest::addColumn<bool>("isButtonChecked");
    QTest::newRow("checked by hand") << true << true;
    QTest::newRow("enabled by hand") << false << false;
}

void QtButtonChangeTest::fallsIntoStepWithItsAction()
{
    QFETCH(bool, isActionEnabled);
    QFETCH(bool, isButtonChecked);
    ButtonFixture f;
    f.Action().setEnabled(isActionEnabled);
    f.opButton->setEnabled(true);
    f.opButton->setChecked(isButtonChecked);

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    QCOMPARE(f.opButton->isEnabled(), isActionEnabled);
    QVERIFY(!f.opButton->isChecked());
}

void QtButtonChangeTest::sharesTheIconOfAFile()
{
    const QTemporaryDir folder;
    const std::wstring path = WriteIcon(folder, "red.png", Qt::red).toStdWString();
    ButtonFixture f;
    f.pDefinition->SetIconPath(path);

    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Other", L"Other");
    opDefinition->SetIconPath(path);
    const QtButton other(std::move(opDefinition), nullptr);

    QCOMPARE(other.defaultAction()->icon().cacheKey(), f.Action().icon().cacheKey());
}

void QtButtonChangeTest::actionMayGoWhileItIsWritten()
{
    ButtonFixture f;
    connect(&f.Action(), &QAction::changed, this, [&] { delete f.opButton->defaultAction(); });

    f.pDefinition->SetCaption(L"another");

    QVERIFY(f.opButton->defaultAction() == nullptr);
}

void QtButtonChangeTest::emptyIconPathRemovesTheIcon()
{
    const QTemporaryDir folder;
    ButtonFixture f;
    f.pDefinition->SetIconPath(WriteIcon(folder, "red.png", Qt::red).toStdWString());

    f.pDefinition->SetIconPath(L"");

    QVERIFY(f.Action().icon().isNull());
    QVERIFY(f.opButton->icon().isNull());
}

void QtButtonChangeTest::adoptsWhatAToolButtonWouldAdopt_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("tip");
    for (const char* caption : {"plain", "", "&Open...", "this && that", "this & that", " spaced "})
        for (const char* tip : {"tip", ""})
            QTest::addRow("'%s' with tip '%s'", caption, tip) << caption << tip;
}

void QtButtonChangeTest::adoptsWhatAToolButtonWouldAdopt()
{
    QFETCH(QString, caption);
    QFETCH(QString, tip);
    ButtonFixture f;
    f.Action().setToolTip(tip);
    QToolButton plain;
    plain.setDefaultAction(&f.Action());

    f.pDefinition->SetCaption(caption.toStdWString());
    QCOMPARE(f.opButton->text(), plain.text());
    QCOMPARE(f.opButton->toolTip(), plain.toolTip());

    f.pDefinition->SetChecked(true);
    QCOMPARE(f.opButton->isChecked(), plain.isChecked());
    QCOMPARE(f.opButton->isEnabled(), plain.isEnabled());
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
