#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"

#include "Control/ButtonGroupDefinitions.h"
#include "Control/ChangeArgs.h"
#include "Control/ChangeNotes.h"
#include "Control/EchoModes.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace vesk::test
{

using Writes = std::vector<CheckStateWrite>;

/// A shown group with the boxes a, b and c in the layout of its parent; b is checked.
struct CheckBoxFixture
{
    explicit CheckBoxFixture(bool isEchoing = true)
    {
        auto opDefinition = MakeDefinition<NotingCheckBoxGroupDefinition>(isEchoing, L"Group.Id");
        pDefinition = opDefinition.Get();
        for (const wchar_t* pId : {L"a", L"b", L"c"})
            pDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(pId, pId));
        pDefinition->Find(L"b")->SetCheckState(2);
        pDefinition->CheckBoxGroupDefinition::GetControlDefinitionChangeEvent()->Add(&notes);
        opGroup = MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), &parent);
        for (QCheckBox* pBox : opGroup->GetAllControls())
            pLayout->addWidget(pBox);
        parent.show();
    }

    QCheckBox& GetBox(std::size_t index) const { return *opGroup->GetAllControls().at(index); }

    void Click(std::size_t index) const
    {
        // A newly added box has no geometry yet, and not every style accepts a click anywhere.
        pLayout->activate();
        QTest::mouseClick(&GetBox(index), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    }

    QList<Qt::CheckState> GetStates() const
    {
        QList<Qt::CheckState> states;
        for (const QCheckBox* pBox : opGroup->GetAllControls())
            states += pBox->checkState();
        return states;
    }

    HostFixture host;
    QWidget parent;
    QVBoxLayout* pLayout = new QVBoxLayout(&parent);
    ChangeNotes notes;
    NotingCheckBoxGroupDefinition* pDefinition;
    OwnerPtr<QtCheckBoxGroup> opGroup;
};

/// Records for each box that is shown whether it is checked.
class ShowNotes final : public QObject
{
public:
    ShowNotes() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        const auto* pBox = qobject_cast<QCheckBox*>(pWatched);
        if (pBox != nullptr && pEvent->type() == QEvent::ShowToParent)
            states += pBox->checkState();
        return false;
    }

    QList<Qt::CheckState> states;
};

const QList<Qt::CheckState> OnlyTheSecond{Qt::Unchecked, Qt::Checked, Qt::Unchecked};

class QtCheckBoxGroupTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheCheckStates();
    void followsTheCheckStates();
    void followsTheCheckStatesInTheOrderOfTheItems();
    void isNotExclusive();
    void anyStateButZeroIsChecked_data();
    void anyStateButZeroIsChecked();
    void clickChecksAndUnchecksAsTheUser_data() { AddEchoModes(); }
    void clickChecksAndUnchecksAsTheUser();
    void keyIsAClickToo();
    void echoOfAClickTouchesNoBox();
    void theUsersScopeEndsWithTheWriting();
    void partlyCheckedBoxIsWrittenAsChecked();
    void changeByHandIsNotWritten();
    void matchingStatesTouchNoBox();
    void addedBoxesAreClickable();
    void newBoxesAreCheckedBeforeTheyAreShown();
    void insertedBoxesAreClickable();
    void deletedBoxesWriteNothing();
    void buttonThatIsNoCheckBoxIsReported();
    void missingItemAtTheStartIsReported();
    void aThousandChangesOfTheHostAreNoneOfTheUser();
};

void QtCheckBoxGroupTest::showsTheCheckStates()
{
    CheckBoxFixture f;

    QCOMPARE(f.GetStates(), OnlyTheSecond);
}

void QtCheckBoxGroupTest::followsTheCheckStates()
{
    CheckBoxFixture f;

    f.pDefinition->Find(L"a")->SetCheckState(2);
    f.pDefinition->Find(L"b")->SetCheckState(0);

    QCOMPARE(f.GetStates(), QList<Qt::CheckState>({Qt::Checked, Qt::Unchecked, Qt::Unchecked}));
    QVERIFY(f.pDefinition->writes.empty());
}

void QtCheckBoxGroupTest::followsTheCheckStatesInTheOrderOfTheItems()
{
    CheckBoxFixture f;
    f.pDefinition->CheckBoxGroupDefinition::GetControlDefinitionChangeEvent()->Delete(
        f.opGroup.Get());
    f.pDefinition->Find(L"a")->SetCheckState(2);
    f.pDefinition->Find(L"b")->SetCheckState(0);
    f.pDefinition->Find(L"c")->SetCheckState(2);
    QStringList toggled;
    connect(f.opGroup.Get(), QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled),
            this, [&toggled](QAbstractButton* pBox) { toggled += pBox->objectName(); });
    ChangeArgs args;

    f.opGroup->On(&args);

    QCOMPARE(toggled, QStringList({"a", "b", "c"}));
}

void QtCheckBoxGroupTest::isNotExclusive()
{
    CheckBoxFixture f;

    f.Click(0);

    QVERIFY(!f.opGroup->exclusive());
    QCOMPARE(f.GetStates(), QList<Qt::CheckState>({Qt::Checked, Qt::Checked, Qt::Unchecked}));
}

void QtCheckBoxGroupTest::anyStateButZeroIsChecked_data()
{
    QTest::addColumn<int>("hostState");
    QTest::addColumn<Qt::CheckState>("state");
    QTest::newRow("0") << 0 << Qt::Unchecked;
    QTest::newRow("1") << 1 << Qt::Checked;
    QTest::newRow("2") << 2 << Qt::Checked;
    QTest::newRow("-1") << -1 << Qt::Checked;
}

void QtCheckBoxGroupTest::anyStateButZeroIsChecked()
{
    QFETCH(int, hostState);
    QFETCH(Qt::CheckState, state);
    CheckBoxFixture f;
    auto opNew = MakeOwner<CheckBoxDefinition>(L"new", L"new");
    opNew->SetCheckState(hostState);

    f.pDefinition->Find(L"b")->SetCheckState(hostState);
    f.pDefinition->AddCheckBox(std::move(opNew));

    QCOMPARE(f.GetBox(1).checkState(), state);
    QCOMPARE(f.GetBox(3).checkState(), state);
    QVERIFY(!f.GetBox(1).isTristate());
}

void QtCheckBoxGroupTest::clickChecksAndUnchecksAsTheUser()
{
    QFETCH(bool, isEchoing);
    CheckBoxFixture f(isEchoing);

    f.Click(0);
    f.Click(1);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"a", 2, true}, {L"b", 0, true}}));
    QCOMPARE(f.notes.isByUser, std::vector<bool>({true, true}));
    QCOMPARE(f.GetStates(), QList<Qt::CheckState>({Qt::Checked, Qt::Unchecked, Qt::Unchecked}));
}

void QtCheckBoxGroupTest::keyIsAClickToo()
{
    CheckBoxFixture f;

    QTest::keyClick(&f.GetBox(2), Qt::Key_Space);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"c", 2, true}}));
}

void QtCheckBoxGroupTest::echoOfAClickTouchesNoBox()
{
    CheckBoxFixture f(true);
    QSignalSpy clicked(&f.GetBox(0), &QCheckBox::stateChanged);
    QSignalSpy other(&f.GetBox(1), &QCheckBox::stateChanged);

    f.Click(0);

    QCOMPARE(clicked.count(), 1);
    QCOMPARE(other.count(), 0);
}

void QtCheckBoxGroupTest::theUsersScopeEndsWithTheWriting()
{
    CheckBoxFixture f;

    f.Click(0);

    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"Group.Id"));
}

void QtCheckBoxGroupTest::partlyCheckedBoxIsWrittenAsChecked()
{
    CheckBoxFixture f;
    f.GetBox(0).setTristate(true);

    f.Click(0);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"a", 2, true}}));
}

void QtCheckBoxGroupTest::changeByHandIsNotWritten()
{
    CheckBoxFixture f;

    f.GetBox(0).setChecked(true);

    QVERIFY(f.pDefinition->writes.empty());
}

void QtCheckBoxGroupTest::matchingStatesTouchNoBox()
{
    CheckBoxFixture f;
    QSignalSpy spy(&f.GetBox(1), &QCheckBox::stateChanged);
    f.GetBox(1).setTristate(true);

    f.pDefinition->Find(L"c")->SetTooltip(L"another");

    QCOMPARE(spy.count(), 0);
    QVERIFY(f.GetBox(1).isTristate());
}

void QtCheckBoxGroupTest::addedBoxesAreClickable()
{
    CheckBoxFixture f;
    f.pDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(L"d", L"d"));

    f.Click(3);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"d", 2, true}}));
}

void QtCheckBoxGroupTest::newBoxesAreCheckedBeforeTheyAreShown()
{
    CheckBoxFixture f;
    auto opNew = MakeOwner<CheckBoxDefinition>(L"d", L"d");
    opNew->SetCheckState(2);
    const ShowNotes notes;

    f.pDefinition->AddCheckBox(std::move(opNew));

    QCOMPARE(notes.states, QList<Qt::CheckState>{Qt::Checked});
}

void QtCheckBoxGroupTest::insertedBoxesAreClickable()
{
    CheckBoxFixture f;
    auto opNew = MakeOwner<CheckBoxDefinition>(L"x", L"x");
    opNew->SetCheckState(2);
    f.pDefinition->InsertCheckBox(0, std::move(opNew));
    QVERIFY(f.GetBox(0).isChecked());

    f.Click(0);
    f.Click(1);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"x", 0, true}, {L"a", 2, true}}));
}

void QtCheckBoxGroupTest::deletedBoxesWriteNothing()
{
    CheckBoxFixture f;
    QCheckBox& deleted = f.GetBox(0);
    f.pDefinition->DeleteCheckBox(0);

    deleted.click();

    QVERIFY(f.pDefinition->writes.empty());
}

void QtCheckBoxGroupTest::buttonThatIsNoCheckBoxIsReported()
{
    CheckBoxFixture f;
    QPushButton foreign;
    f.opGroup->addButton(&foreign);

    foreign.click();

    EXPECT_WARNING(f.host.warnings, L"pCheckBox为空", "vesk::QtCheckBoxGroup::OnButtonClicked");
    QVERIFY(f.pDefinition->writes.empty());
}

void QtCheckBoxGroupTest::missingItemAtTheStartIsReported()
{
    HostFixture host;
    QWidget parent;
    const CheckBoxDefinition item(L"a", L"a");
    auto opDefinition = MakeOwner<LooseCheckBoxGroupDefinition>();
    opDefinition->items = {nullptr, &item};

    const QtCheckBoxGroup group(std::move(opDefinition), &parent);

    EXPECT_WARNING(host.warnings, L"pDefinition为空", "vesk::QtCheckBoxGroup::AddCheckBox");
    QCOMPARE(group.GetAllControls().size(), std::size_t(1));
}

void QtCheckBoxGroupTest::aThousandChangesOfTheHostAreNoneOfTheUser()
{
    CheckBoxFixture f;

    for (int i = 1; i <= 1000; ++i)
        f.pDefinition->Find(L"a")->SetCheckState(i % 2);

    QCOMPARE(f.notes.isByUser.size(), std::size_t(1000));
    QCOMPARE(f.notes.CountByUser(), 0);
    QVERIFY(f.pDefinition->writes.empty());
    QCOMPARE(f.GetStates(), OnlyTheSecond);
}

}

VESK_TESTS(vesk::test::QtCheckBoxGroupTest);
#include "QtCheckBoxGroupTest.moc"
