#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include "Control/ButtonGroupDefinitions.h"
#include "Control/ChangeArgs.h"
#include "Control/ChangeNotes.h"
#include "Control/EchoModes.h"
#include "Support/HostFixture.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"

#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace vesk::test
{

using Writes = std::vector<CurrentIdWrite>;

/// A shown group with the buttons a, b and c in the layout of its parent; b is current.
struct RadioButtonFixture
{
    explicit RadioButtonFixture(bool isEchoing = true, const std::wstring& currentId = L"b")
    {
        auto opDefinition =
            MakeDefinition<NotingRadioButtonGroupDefinition>(isEchoing, L"Group.Id");
        pDefinition = opDefinition.Get();
        for (const wchar_t* pId : {L"a", L"b", L"c"})
            pDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(pId, pId));
        pDefinition->SetCurrentRadioButtonId(currentId);
        pDefinition->writes.clear();
        pDefinition->RadioButtonGroupDefinition::GetControlDefinitionChangeEvent()->Add(&notes);
        opGroup = MakeOwner<QtRadioButtonGroup>(std::move(opDefinition), &parent);
        for (QRadioButton* pButton : opGroup->GetAllControls())
            pLayout->addWidget(pButton);
        parent.show();
    }

    QRadioButton& GetButton(std::size_t index) const
    {
        return *opGroup->GetAllControls().at(index);
    }

    void Click(std::size_t index) const
    {
        QTest::mouseClick(&GetButton(index), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    }

    QStringList GetCheckedNames() const
    {
        QStringList names;
        for (const QRadioButton* pButton : opGroup->GetAllControls())
        {
            if (pButton->isChecked())
                names += pButton->objectName();
        }
        return names;
    }

    HostFixture host;
    QWidget parent;
    QVBoxLayout* pLayout = new QVBoxLayout(&parent);
    ChangeNotes notes;
    NotingRadioButtonGroupDefinition* pDefinition;
    OwnerPtr<QtRadioButtonGroup> opGroup;
};

/// A definition that records whether its user is known when its id is read.
class AskedDefinition final : public RadioButtonGroupDefinition
{
public:
    using RadioButtonGroupDefinition::RadioButtonGroupDefinition;

    const std::wstring& GetId() const override
    {
        wereFlagged.push_back(RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
        return RadioButtonGroupDefinition::GetId();
    }

    mutable std::vector<bool> wereFlagged;
};

class QtRadioButtonGroupTest : public QObject
{
    Q_OBJECT

private slots:
    void checksTheCurrentButton();
    void isExclusive();
    void idThatNamesNoButtonChecksNone_data();
    void idThatNamesNoButtonChecksNone();
    void followsTheCurrentId();
    void currentIdIsReadForEachButton();
    void idThatNamesNoButtonLeavesTheCheckedOne_data();
    void idThatNamesNoButtonLeavesTheCheckedOne();
    void clickIsWrittenAsTheUsers_data() { AddEchoModes(); }
    void clickIsWrittenAsTheUsers();
    void keyIsWrittenAsTheUsers();
    void arrowKeyIsWrittenAsTheUsers();
    void clickOnTheCheckedButtonIsWrittenAgain();
    void echoOfAClickTouchesNoButton();
    void flagIsSetBeforeTheUsersScopeIsOpened();
    void theUsersMarksEndWithTheWriting();
    void changeByHandIsNotWritten();
    void addedButtonIsCheckedIfItIsCurrent();
    void addedButtonIsCheckedBeforeItIsGrouped();
    void addedButtonThatDiesWhileItIsGroupedIsNotKept();
    void insertedButtonIsNotCheckedUntilTheNextChange();
    void insertionKeepsTheCheckedButton();
    void deletedButtonsWriteNothing();
    void otherButtonsAreReported();
    void missingItemAtTheStartIsReported();
    void aThousandChangesOfTheHostAreNoneOfTheUser();
};

void QtRadioButtonGroupTest::checksTheCurrentButton()
{
    RadioButtonFixture f;

    QCOMPARE(f.GetCheckedNames(), QStringList("b"));
    QCOMPARE(f.opGroup->checkedButton(), &f.GetButton(1));
}

void QtRadioButtonGroupTest::isExclusive()
{
    RadioButtonFixture f;

    f.Click(0);

    QVERIFY(f.opGroup->exclusive());
    QCOMPARE(f.GetCheckedNames(), QStringList("a"));
}

void QtRadioButtonGroupTest::idThatNamesNoButtonChecksNone_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << "";
    QTest::newRow("unknown") << "d";
    QTest::newRow("in capitals") << "B";
    QTest::newRow("beginning alike") << "bb";
}

void QtRadioButtonGroupTest::idThatNamesNoButtonChecksNone()
{
    QFETCH(QString, id);

    RadioButtonFixture f(true, id.toStdWString());

    QCOMPARE(f.GetCheckedNames(), QStringList());
}

void QtRadioButtonGroupTest::followsTheCurrentId()
{
    RadioButtonFixture f;

    f.pDefinition->SetCurrentRadioButtonId(L"c");

    QCOMPARE(f.GetCheckedNames(), QStringList("c"));
}

void QtRadioButtonGroupTest::currentIdIsReadForEachButton()
{
    RadioButtonFixture f;
    f.pDefinition->RadioButtonGroupDefinition::GetControlDefinitionChangeEvent()->Delete(
        f.opGroup.Get());
    f.pDefinition->SetCurrentRadioButtonId(L"a");
    connect(&f.GetButton(0), &QRadioButton::toggled, this, [&f](bool isChecked) {
        if (isChecked)
            f.pDefinition->SetCurrentRadioButtonId(L"c");
    });
    ChangeArgs args;

    f.opGroup->On(&args);

    QCOMPARE(f.GetCheckedNames(), QStringList("c"));
}

void QtRadioButtonGroupTest::idThatNamesNoButtonLeavesTheCheckedOne_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << "";
    QTest::newRow("unknown") << "d";
    QTest::newRow("in capitals") << "C";
    QTest::newRow("beginning alike") << "cc";
}

void QtRadioButtonGroupTest::idThatNamesNoButtonLeavesTheCheckedOne()
{
    QFETCH(QString, id);
    RadioButtonFixture f;

    f.pDefinition->SetCurrentRadioButtonId(id.toStdWString());

    QCOMPARE(f.GetCheckedNames(), QStringList("b"));
}

void QtRadioButtonGroupTest::clickIsWrittenAsTheUsers()
{
    QFETCH(bool, isEchoing);
    RadioButtonFixture f(isEchoing);

    f.Click(2);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"c", true, true}}));
    QCOMPARE(f.notes.isByUser, std::vector<bool>{true});
    QCOMPARE(f.GetCheckedNames(), QStringList("c"));
}

void QtRadioButtonGroupTest::keyIsWrittenAsTheUsers()
{
    RadioButtonFixture f;

    QTest::keyClick(&f.GetButton(0), Qt::Key_Space);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"a", true, true}}));
    QCOMPARE(f.notes.isByUser, std::vector<bool>{true});
}

void QtRadioButtonGroupTest::arrowKeyIsWrittenAsTheUsers()
{
    RadioButtonFixture f;
    f.parent.activateWindow();
    f.GetButton(1).setFocus();
    QTRY_VERIFY(f.GetButton(1).hasFocus());

    QTest::keyClick(&f.GetButton(1), Qt::Key_Down);

    QCOMPARE(f.GetCheckedNames(), QStringList("c"));
    QCOMPARE(f.pDefinition->writes, (Writes{{L"c", true, true}}));
    QCOMPARE(f.notes.isByUser, std::vector<bool>{true});
}

void QtRadioButtonGroupTest::clickOnTheCheckedButtonIsWrittenAgain()
{
    RadioButtonFixture f;

    f.Click(1);

    QCOMPARE(f.pDefinition->writes, (Writes{{L"b", true, true}}));
    QVERIFY(f.notes.isByUser.empty());
}

void QtRadioButtonGroupTest::echoOfAClickTouchesNoButton()
{
    RadioButtonFixture f(true);
    QSignalSpy clicked(&f.GetButton(0), &QRadioButton::toggled);
    QSignalSpy current(&f.GetButton(1), &QRadioButton::toggled);

    f.Click(0);

    QCOMPARE(clicked.count(), 1);
    QCOMPARE(current.count(), 1);
}

void QtRadioButtonGroupTest::flagIsSetBeforeTheUsersScopeIsOpened()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<AskedDefinition>(L"Group.Id");
    opDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"a", L"a"));
    const AskedDefinition& definition = *opDefinition;
    const QtRadioButtonGroup group(std::move(opDefinition), &parent);
    definition.wereFlagged.clear();

    group.GetAllControls().front()->click();

    QVERIFY(!definition.wereFlagged.empty());
    QVERIFY(definition.wereFlagged.front());
}

void QtRadioButtonGroupTest::theUsersMarksEndWithTheWriting()
{
    RadioButtonFixture f;

    f.Click(0);

    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"Group.Id"));
    QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
}

void QtRadioButtonGroupTest::changeByHandIsNotWritten()
{
    RadioButtonFixture f;

    f.GetButton(0).setChecked(true);

    QVERIFY(f.pDefinition->writes.empty());
}

void QtRadioButtonGroupTest::addedButtonIsCheckedIfItIsCurrent()
{
    RadioButtonFixture f(true, L"d");

    f.pDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"e", L"e"));
    QCOMPARE(f.GetCheckedNames(), QStringList());
    f.pDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"d", L"d"));
    QCOMPARE(f.GetCheckedNames(), QStringList("d"));
}

void QtRadioButtonGroupTest::addedButtonIsCheckedBeforeItIsGrouped()
{
    RadioButtonFixture f;
    f.pDefinition->SetCurrentRadioButtonId(L"d");
    QList<QAbstractButton*> toggled;
    connect(f.opGroup.Get(), QOverload<QAbstractButton*, bool>::of(&QButtonGroup::buttonToggled),
            this, [&toggled](QAbstractButton* pButton) { toggled += pButton; });

    f.pDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"d", L"d"));

    QCOMPARE(f.GetCheckedNames(), QStringList("d"));
    QCOMPARE(toggled, QList<QAbstractButton*>{&f.GetButton(1)});
}

void QtRadioButtonGroupTest::addedButtonThatDiesWhileItIsGroupedIsNotKept()
{
    RadioButtonFixture f;
    f.pDefinition->SetCurrentRadioButtonId(L"d");
    connect(&f.GetButton(1), &QRadioButton::toggled, this,
            [&f] { delete f.parent.findChild<QRadioButton*>("d"); });

    f.pDefinition->AddRadioButton(MakeOwner<RadioButtonDefinition>(L"d", L"d"));

    EXPECT_WARNING(f.host.warnings, L"pControl为空",
                   "vesk::QtRadioButtonGroup::OnControlDefinitionChangeEventTypeAdd");
    QCOMPARE(f.opGroup->GetAllControls().size(), std::size_t(3));
}

void QtRadioButtonGroupTest::insertedButtonIsNotCheckedUntilTheNextChange()
{
    RadioButtonFixture f(true, L"x");
    f.pDefinition->InsertRadioButton(1, MakeOwner<RadioButtonDefinition>(L"x", L"x"));
    QCOMPARE(f.GetCheckedNames(), QStringList());

    f.opGroup->UpdateStatus();
    QCOMPARE(f.GetCheckedNames(), QStringList());
    f.pDefinition->Find(L"a")->SetTooltip(L"another");
    QCOMPARE(f.GetCheckedNames(), QStringList("x"));
}

void QtRadioButtonGroupTest::insertionKeepsTheCheckedButton()
{
    RadioButtonFixture f;

    f.pDefinition->InsertRadioButton(0, MakeOwner<RadioButtonDefinition>(L"x", L"x"));

    QCOMPARE(f.GetCheckedNames(), QStringList("b"));
    QCOMPARE(f.opGroup->checkedButton(), &f.GetButton(2));
    QVERIFY(f.pDefinition->writes.empty());
}

void QtRadioButtonGroupTest::deletedButtonsWriteNothing()
{
    RadioButtonFixture f;
    QRadioButton& deleted = f.GetButton(0);
    f.pDefinition->DeleteRadioButton(0);

    deleted.click();

    QVERIFY(f.pDefinition->writes.empty());
}

void QtRadioButtonGroupTest::otherButtonsAreReported()
{
    RadioButtonFixture f;
    QPushButton foreign;
    f.opGroup->addButton(&foreign);

    foreign.click();

    EXPECT_WARNING(f.host.warnings, L"pCheckBox为空", "vesk::QtRadioButtonGroup::OnButtonClicked");
    QVERIFY(f.pDefinition->writes.empty());
    QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
}

void QtRadioButtonGroupTest::missingItemAtTheStartIsReported()
{
    HostFixture host;
    QWidget parent;
    const RadioButtonDefinition item(L"a", L"a");
    auto opDefinition = MakeOwner<LooseRadioButtonGroupDefinition>();
    opDefinition->items = {nullptr, &item};

    const QtRadioButtonGroup group(std::move(opDefinition), &parent);

    EXPECT_WARNING(host.warnings, L"pDefinition为空", "vesk::QtRadioButtonGroup::AddRadioButton");
    QCOMPARE(group.GetAllControls().size(), std::size_t(1));
}

void QtRadioButtonGroupTest::aThousandChangesOfTheHostAreNoneOfTheUser()
{
    RadioButtonFixture f;

    for (int i = 1; i <= 1000; ++i)
        f.pDefinition->SetCurrentRadioButtonId(i % 2 == 0 ? L"b" : L"c");

    QCOMPARE(f.notes.isByUser.size(), std::size_t(1000));
    QCOMPARE(f.notes.CountByUser(), 0);
    QCOMPARE(f.GetCheckedNames(), QStringList("b"));
}

}

VESK_TESTS(vesk::test::QtRadioButtonGroupTest);
#include "QtRadioButtonGroupTest.moc"
