#include "Control/CommandButtonDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinitions.h"
#include "Support/HostFixture.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/Control/QtLabel.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include <QAction>

namespace vesk::test
{

namespace
{

/// A definition whose event outlives it, and which records at its end whether a handler is still
/// subscribed.
class WatchedLabelDefinition final : public ILabelDefinition,
                                     public IControlDefinitionChangeEventSource
{
public:
    WatchedLabelDefinition(ControlDefinitionChangeEvent& event, bool& isHeardAtTheEnd)
        : m_event(event), m_isHeardAtTheEnd(isHeardAtTheEnd)
    {}
    ~WatchedLabelDefinition() override { m_isHeardAtTheEnd = !m_event.IsEmpty(); }

    const std::wstring& GetId() const override { return Kept(L"id"); }
    const std::wstring& GetCaption() const override { return Kept(L"caption"); }
    const std::wstring& GetTooltip() const override { return Kept({}); }
    bool IsVisible() const override { return false; }
    bool IsEnabled() const override { return true; }
    IControlDefinitionChangeEvent* GetControlDefinitionChangeEvent() const override
    {
        return &m_event;
    }

private:
    ControlDefinitionChangeEvent& m_event;
    bool& m_isHeardAtTheEnd;
};

/// A definition without an event.
class MuteLabelDefinition final : public ILabelDefinition
{
public:
    const std::wstring& GetId() const override { return Kept(L"id"); }
    const std::wstring& GetCaption() const override { return Kept(L"caption"); }
    const std::wstring& GetTooltip() const override { return Kept({}); }
    bool IsVisible() const override { return false; }
    bool IsEnabled() const override { return true; }
};

/// Does something at the next change.
struct OnChange final : IControlDefinitionChangeEventHandler
{
    void On(IControlDefinitionChangeEventArgs*) override { act(); }

    std::function<void()> act;
};

struct OnLineEditEvent final : ILineEditEventHandler
{
    void On(LineEditEventArgs*) override { act(); }

    std::function<void()> act;
};

/// Deletes a control when it is hidden, as a host that is notified of it may do.
class HideWatcher final : public QObject
{
public:
    explicit HideWatcher(OwnerPtr<QtLabel>& opLabel) : m_opLabel(opLabel) {}

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() != QEvent::HideToParent)
            return QObject::eventFilter(pWatched, pEvent);
        m_opLabel.Reset();
        return true;
    }

private:
    OwnerPtr<QtLabel>& m_opLabel;
};

}

class ControlLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void isUnsubscribedBeforeItsDefinitionIsFreed();
    void eventThatOutlivesTheControlReachesNobody();
    void definitionWithoutAnEventIsShown();
    void weakReferencesSeeTheEnd();
    void dyingBeforeItsParentLeavesTheParentAlone();
    void bareControlsDieCleanly();
    void oneOfTwoControlsOfADefinitionMayGo();
    void buttonMayDieInItsOwnCommand();
    void buttonMayDieWhenItsClickChangesTheDefinition();
    void buttonMayDieOfADefinitionsChange();
    void labelMayDieOfADefinitionsChange();
    void labelMayDieWhileItIsHidden();
    void lineEditMayDieOfADefinitionsChange();
    void lineEditMayDieAtTheEndOfEditing();
    void lineEditMayDieWhileItHasTheFocus();
};

void ControlLifetimeTest::isUnsubscribedBeforeItsDefinitionIsFreed()
{
    HostFixture host;
    ControlDefinitionChangeEvent event(L"id");
    bool isHeardAtTheEnd = true;
    auto opLabel =
        MakeOwner<QtLabel>(MakeOwner<WatchedLabelDefinition>(event, isHeardAtTheEnd), nullptr);
    QVERIFY(!event.IsEmpty());

    opLabel.Reset();

    QVERIFY(!isHeardAtTheEnd);
}

void ControlLifetimeTest::eventThatOutlivesTheControlReachesNobody()
{
    HostFixture host;
    LineEditDefinition target(L"target");
    auto opEdit =
        MakeOwner<QtLineEdit>(MakeOwner<LineEditDefinitionReference>(L"id", &target), nullptr);

    opEdit.Reset();
    target.SetText(L"nobody listens");

    QCOMPARE(target.GetText(), std::wstring(L"nobody listens"));
}

void ControlLifetimeTest::definitionWithoutAnEventIsShown()
{
    HostFixture host;

    const QtLabel label(MakeOwner<MuteLabelDefinition>(), nullptr);

    QCOMPARE(label.text(), QString("caption"));
}

void ControlLifetimeTest::weakReferencesSeeTheEnd()
{
    HostFixture host;
    auto opLabel = MakeOwner<QtLabel>(MakeOwner<LabelDefinition>(L"id"), nullptr);
    const WeakReference<IControl> control(opLabel.Get());
    const WeakReference<IControlDefinitionChangeEventHandler> handler(opLabel.Get());
    QVERIFY(control.Get() != nullptr);
    QVERIFY(handler.Get() != nullptr);

    opLabel.Reset();

    QVERIFY(control.Get() == nullptr);
    QVERIFY(handler.Get() == nullptr);
}

void ControlLifetimeTest::dyingBeforeItsParentLeavesTheParentAlone()
{
    HostFixture host;
    QWidget parent;
    auto opButton =
        MakeOwner<QtButton>(MakeOwner<CommandButtonDefinition>(L"id", L"command"), &parent);
    parent.show();

    opButton.Reset();

    QVERIFY(parent.children().isEmpty());
}

void ControlLifetimeTest::bareControlsDieCleanly()
{
    HostFixture host;

    MakeOwner<QtButton>(nullptr, nullptr).Reset();
    MakeOwner<QtLabel>(nullptr, nullptr).Reset();
    MakeOwner<QtLineEdit>(nullptr, nullptr).Reset();

    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtButton::QtButton");
    EXPECT_WARNING(host.warnings, L"pControlDefinition是空指针", "vesk::QtLabel::QtLabel");
    EXPECT_WARNING(host.warnings, L"m_pControlDefinition为空", "vesk::QtLineEdit::QtLineEdit");
}

void ControlLifetimeTest::oneOfTwoControlsOfADefinitionMayGo()
{
    HostFixture host;
    LineEditDefinition target(L"target");
    auto opFirst =
        MakeOwner<QtLineEdit>(MakeOwner<LineEditDefinitionReference>(L"1", &target), nullptr);
    const auto opSecond =
        MakeOwner<QtLineEdit>(MakeOwner<LineEditDefinitionReference>(L"2", &target), nullptr);
    target.SetText(L"both");
    QCOMPARE(opFirst->text(), QString("both"));

    opFirst.Reset();
    target.SetText(L"one");

    QCOMPARE(opSecond->text(), QString("one"));
}

void ControlLifetimeTest::buttonMayDieInItsOwnCommand()
{
    HostFixture host;
    auto opButton =
        MakeOwner<QtButton>(MakeOwner<CommandButtonDefinition>(L"id", L"Test.Command"), nullptr);
    host.AddCommand(L"Test.Command", [&](const CommandParameters&) { opButton.Reset(); });

    opButton->click();

    QVERIFY(opButton == nullptr);
    QCOMPARE(host.journal.GetCommands().size(), std::size_t(1));
    QVERIFY(ProcessCommandUtil::IsLastCommandExecuted());
}

void ControlLifetimeTest::buttonMayDieWhenItsClickChangesTheDefinition()
{
    HostFixture host;
    OnChange onChange;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"Test.Command");
    opDefinition->GetControlDefinitionChangeEvent()->Add(&onChange);
    auto opButton = MakeOwner<QtButton>(std::move(opDefinition), nullptr);
    onChange.act = [&] { opButton.Reset(); };

    opButton->click();

    QVERIFY(opButton == nullptr);
    QVERIFY(host.journal.GetCommands().empty());
}

void ControlLifetimeTest::buttonMayDieOfADefinitionsChange()
{
    HostFixture host;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"Test.Command");
    CommandButtonDefinition* pDefinition = opDefinition.Get();
    auto opButton = MakeOwner<QtButton>(std::move(opDefinition), nullptr);
    opButton->setEnabled(false);
    connect(opButton->defaultAction(), &QAction::changed, this, [&] { opButton.Reset(); });

    pDefinition->SetCaption(L"another");

    QVERIFY(opButton == nullptr);
}

void ControlLifetimeTest::labelMayDieOfADefinitionsChange()
{
    HostFixture host;
    OnChange onChange;
    auto opDefinition = MakeOwner<LabelDefinition>(L"id");
    LabelDefinition* pDefinition = opDefinition.Get();
    pDefinition->SetVisible(false);
    pDefinition->GetControlDefinitionChangeEvent()->Add(&onChange);
    auto opLabel = MakeOwner<QtLabel>(std::move(opDefinition), nullptr);
    onChange.act = [&] { opLabel.Reset(); };

    pDefinition->SetCaption(L"another");

    QVERIFY(opLabel == nullptr);
}

void ControlLifetimeTest::labelMayDieWhileItIsHidden()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<LabelDefinition>(L"id");
    LabelDefinition* pDefinition = opDefinition.Get();
    auto opLabel = MakeOwner<QtLabel>(std::move(opDefinition), &parent);
    parent.show();
    HideWatcher watcher(opLabel);
    opLabel->installEventFilter(&watcher);

    pDefinition->SetVisible(false);

    QVERIFY(opLabel == nullptr);
}

void ControlLifetimeTest::lineEditMayDieOfADefinitionsChange()
{
    HostFixture host;
    OnChange onChange;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id");
    LineEditDefinition* pDefinition = opDefinition.Get();
    pDefinition->SetVisible(false);
    pDefinition->GetControlDefinitionChangeEvent()->Add(&onChange);
    auto opEdit = MakeOwner<QtLineEdit>(std::move(opDefinition), nullptr);
    onChange.act = [&] { opEdit.Reset(); };

    pDefinition->SetText(L"another");

    QVERIFY(opEdit == nullptr);
}

void ControlLifetimeTest::lineEditMayDieAtTheEndOfEditing()
{
    HostFixture host;
    OnLineEditEvent onEvent;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id");
    opDefinition->GetLineEditEvent()->Add(&onEvent);
    auto opEdit = MakeOwner<QtLineEdit>(std::move(opDefinition), nullptr);
    onEvent.act = [&] { opEdit.Reset(); };

    QTest::sendKeyEvent(QTest::Press, opEdit.Get(), Qt::Key_Return, QString("\r"), Qt::NoModifier);

    QVERIFY(opEdit == nullptr);
    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"id"));
}

void ControlLifetimeTest::lineEditMayDieWhileItHasTheFocus()
{
    HostFixture host;
    auto opEdit = MakeOwner<QtLineEdit>(MakeOwner<LineEditDefinition>(L"id"), nullptr);
    opEdit->activateWindow();
    opEdit->setFocus();
    QTRY_VERIFY(opEdit->hasFocus());
    QTest::keyClicks(opEdit.Get(), "12");

    opEdit.Reset();

    QVERIFY(QApplication::focusWidget() == nullptr);
}

}

VESK_TESTS(vesk::test::ControlLifetimeTest);
#include "ControlLifetimeTest.moc"
