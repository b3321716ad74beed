#include "VeskUiQtImpl/Control/QtLabel.h"

#include "Control/ChangeArgs.h"
#include "Control/LabelDefinition.h"
#include "Control/OtherEventTypes.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

namespace vesk::test
{

struct LabelFixture
{
    LabelFixture()
    {
        auto opDefinition = MakeOwner<LabelDefinition>(L"Label.Id");
        pDefinition = opDefinition.Get();
        pDefinition->SetCaption(L"caption");
        pDefinition->SetTooltip(L"tip");
        opLabel = MakeOwner<QtLabel>(std::move(opDefinition), &parent);
        parent.show();
    }

    HostFixture host;
    QWidget parent;
    LabelDefinition* pDefinition;
    OwnerPtr<QtLabel> opLabel;
};

struct BareLabelFixture
{
    HostFixture host;
    OwnerPtr<QtLabel> opLabel = MakeOwner<QtLabel>(nullptr, nullptr);
};

class QtLabelTest : public QObject
{
    Q_OBJECT

private slots:
    void showsCaptionAndToolTipUnderTheIdOfItsDefinition();
    void answersItsDefinition();
    void hasTheMetaObjectOfAPlainLabel();
    void isBuiltNeitherShownNorHiddenNorDisabled();
    void followsACaption();
    void showsTextBeyondTheBasicPlane();
    void keepsItsToolTipWhenTheDefinitionChanges();
    void followsVisibilityAndEnabledState();
    void writesStateWithoutComparing();
    void echoSendsNoEvent();
    void restoresItsCaption_data();
    void restoresItsCaption();
    void ignoresOtherEvents_data();
    void ignoresOtherEvents();
    void reportsMissingArguments();
    void statusUpdateAppliesVisibilityAndEnabledState();
    void statusUpdateLeavesTheTextAlone();
    void captionIsWrittenBeforeVisibilityAndEnabledState();
    void withoutDefinitionItIsBareAndReportsIt();
    void withoutDefinitionItNeverChanges();
};

void QtLabelTest::showsCaptionAndToolTipUnderTheIdOfItsDefinition()
{
    LabelFixture f;

    QCOMPARE(f.opLabel->text(), QString("caption"));
    QCOMPARE(f.opLabel->toolTip(), QString("tip"));
    QCOMPARE(f.opLabel->objectName(), QString("Label.Id"));
    QCOMPARE(f.opLabel->property("IsDefinition"), QVariant(true));
    QCOMPARE(f.opLabel->parentWidget(), &f.parent);
    QVERIFY(!f.opLabel->isWindow());
}

void QtLabelTest::answersItsDefinition()
{
    LabelFixture f;

    QCOMPARE(f.opLabel->GetControlDefinition(), static_cast<IControlDefinition*>(f.pDefinition));
}

void QtLabelTest::hasTheMetaObjectOfAPlainLabel()
{
    LabelFixture f;

    QCOMPARE(f.opLabel->metaObject(), &QLabel::staticMetaObject);
}

void QtLabelTest::isBuiltNeitherShownNorHiddenNorDisabled()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<LabelDefinition>(L"id");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);

    const QtLabel label(std::move(opDefinition), &parent);

    QVERIFY(!label.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(label.isEnabled());
}

void QtLabelTest::followsACaption()
{
    LabelFixture f;

    f.pDefinition->SetCaption(L"another");

    QCOMPARE(f.opLabel->text(), QString("another"));
}

void QtLabelTest::showsTextBeyondTheBasicPlane()
{
    LabelFixture f;

    f.pDefinition->SetCaption(L"a\U0001F4D0角");

    QCOMPARE(f.opLabel->text(), QString::fromUtf8("a\xF0\x9F\x93\x90\xE8\xA7\x92"));
}

void QtLabelTest::keepsItsToolTipWhenTheDefinitionChanges()
{
    LabelFixture f;

    f.pDefinition->SetTooltip(L"another tip");

    QCOMPARE(f.opLabel->toolTip(), QString("tip"));
}

void QtLabelTest::followsVisibilityAndEnabledState()
{
    LabelFixture f;

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    QVERIFY(f.opLabel->isHidden());
    QVERIFY(!f.opLabel->isEnabled());

    f.pDefinition->SetVisible(true);
    f.pDefinition->SetEnabled(true);
    QVERIFY(f.opLabel->isVisible());
    QVERIFY(f.opLabel->isEnabled());
}

void QtLabelTest::writesStateWithoutComparing()
{
    LabelFixture f;
    f.parent.hide();
    f.parent.setEnabled(false);

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(f.opLabel->isHidden());
    QVERIFY(f.opLabel->testAttribute(Qt::WA_ForceDisabled));
}

/// Counts the events that any object gets.
class LabelEventCount final : public QObject
{
public:
    LabelEventCount() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent*) override
    {
        ++count;
        return false;
    }

    int count = 0;
};

void QtLabelTest::echoSendsNoEvent()
{
    LabelFixture f;
    f.pDefinition->SetEnabled(false);
    const LabelEventCount events;

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    QCOMPARE(events.count, 0);
}

void QtLabelTest::restoresItsCaption_data()
{
    QTest::addColumn<bool>("isPixmap");
    QTest::newRow("after a text") << false;
    QTest::newRow("after a pixmap") << true;
}

void QtLabelTest::restoresItsCaption()
{
    QFETCH(bool, isPixmap);
    LabelFixture f;
    f.opLabel->setText("by hand");
    if (isPixmap)
        f.opLabel->setPixmap(QPixmap(16, 16));

    f.pDefinition->SetTooltip(L"changes nothing that is shown");

    QCOMPARE(f.opLabel->text(), QString("caption"));
}

void QtLabelTest::ignoresOtherEvents_data()
{
    AddOtherEventTypes();
}

void QtLabelTest::ignoresOtherEvents()
{
    QFETCH(int, type);
    LabelFixture f;
    f.opLabel->setText("by hand");
    ChangeArgs args(type);

    f.opLabel->On(&args);

    QCOMPARE(f.opLabel->text(), QString("by hand"));
    QVERIFY(!f.opLabel->isHidden());
}

void QtLabelTest::reportsMissingArguments()
{
    LabelFixture f;
    f.opLabel->setText("by hand");

    f.opLabel->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtLabel::On");
    QCOMPARE(f.opLabel->text(), QString("by hand"));
}

void QtLabelTest::statusUpdateAppliesVisibilityAndEnabledState()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<LabelDefinition>(L"id");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);
    QtLabel label(std::move(opDefinition), &parent);

    label.UpdateStatus();

    QVERIFY(label.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(label.isHidden());
    QVERIFY(!label.isEnabled());
}

void QtLabelTest::statusUpdateLeavesTheTextAlone()
{
    LabelFixture f;
    f.opLabel->setText("by hand");
    f.opLabel->setToolTip("by hand");

    f.opLabel->UpdateStatus();

    QCOMPARE(f.opLabel->text(), QString("by hand"));
    QCOMPARE(f.opLabel->toolTip(), QString("by hand"));
}

/// Records what a label shows when it is hidden and when it is disabled.
class StateNotes final : public QObject
{
public:
    explicit StateNotes(QLabel& label) : m_label(label) { label.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::HideToParent)
            notes += m_label.text() + (m_label.isEnabled() ? " enabled" : " disabled");
        if (pEvent->type() == QEvent::EnabledChange)
            notes += m_label.text() + (m_label.isHidden() ? " hidden" : " shown");
        return false;
    }

    QStringList notes;

private:
    QLabel& m_label;
};

void QtLabelTest::captionIsWrittenBeforeVisibilityAndEnabledState()
{
    LabelFixture f;
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opLabel.Get());
    f.pDefinition->SetCaption(L"new");
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    const StateNotes notes(*f.opLabel);

    f.opLabel->On(&args);

    QCOMPARE(notes.notes, QStringList({"new enabled", "new hidden"}));
}

void QtLabelTest::withoutDefinitionItIsBareAndReportsIt()
{
    BareLabelFixture f;

    EXPECT_WARNING(f.host.warnings, L"pControlDefinition是空指针", "vesk::QtLabel::QtLabel");
    QVERIFY(f.opLabel->GetControlDefinition() == nullptr);
    QCOMPARE(f.opLabel->text(), QString());
    QVERIFY(!f.opLabel->property("IsDefinition").isValid());
}

void QtLabelTest::withoutDefinitionItNeverChanges()
{
    BareLabelFixture f;
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition是空指针", "vesk::QtLabel::QtLabel");
    ChangeArgs args(ControlDefinitionChangeEventType::Clear);

    f.opLabel->On(nullptr);
    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtLabel::On");
    f.opLabel->On(&args);
    EXPECT_WARNING(f.host.warnings, L"m_pControlDefinition为空", "vesk::QtLabel::On");
    f.opLabel->UpdateStatus();
    EXPECT_WARNING(f.host.warnings, L"pControlDefinition为空", "vesk::QtLabel::UpdateStatus");

    QCOMPARE(f.opLabel->text(), QString());
    QVERIFY(!f.opLabel->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

}

VESK_TESTS(vesk::test::QtLabelTest);
#include "QtLabelTest.moc"
