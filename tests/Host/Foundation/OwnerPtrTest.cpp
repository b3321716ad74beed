#include "Foundation/OwnerPtr.h"

#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

namespace
{

int s_livingButtons = 0;

/// Has no virtual destructor: only a deleter that knows the concrete class frees the whole object.
class IClickable
{
public:
    virtual int Click() = 0;

protected:
    ~IClickable() = default;
};

class ILabelled
{
public:
    virtual ~ILabelled() = default;
    virtual int GetLength() const = 0;
};

class ICheckable
{
public:
    virtual ~ICheckable() = default;
};

class Widget
{
public:
    virtual ~Widget() = default;

private:
    int m_data[16] = {};
};

class Button final : public Widget, public ILabelled, public IClickable
{
public:
    explicit Button(int length = 0) : m_length(length) { ++s_livingButtons; }
    ~Button() override { --s_livingButtons; }

    int Click() override { return 1; }
    int GetLength() const override { return m_length; }

private:
    int m_length;
};

}

class OwnerPtrTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { s_livingButtons = 0; }
    void cleanup() { QCOMPARE(s_livingButtons, 0); }

    void isEmptyAtFirst();
    void aNullObjectGivesAnEmptyPointer();
    void deletesTheWholeObjectThroughALaterBase();
    void deletesThroughAnInterfaceWithoutVirtualDestructor();
    void makeOwnerConstructsWithItsArguments();
    void movingLeavesTheSourceEmpty();
    void movingToABaseKeepsTheDeleter();
    void assigningFreesTheOldObject();
    void assigningToItselfKeepsTheObject();
    void resetFreesAndEmpties();
    void isAlreadyEmptyWhileTheDestructorRuns();
    void releaseGivesTheOwnershipAway();
    void castingDownKeepsTheObjectAndItsDeleter();
    void castingSidewaysReachesAnotherInterface();
    void castingToAnotherKindFreesTheObject();
    void castingAnEmptyPointerGivesAnEmptyOne();
    void comparesWithNull();
};

void OwnerPtrTest::isEmptyAtFirst()
{
    const OwnerPtr<Button> opByDefault;
    const OwnerPtr<Button> opFromNull = nullptr;

    QVERIFY(opByDefault.Get() == nullptr);
    QVERIFY(!opByDefault);
    QVERIFY(opFromNull.Get() == nullptr);
}

void OwnerPtrTest::aNullObjectGivesAnEmptyPointer()
{
    Button* const pNone = nullptr;

    const OwnerPtr<ILabelled> opButton(pNone);

    QVERIFY(!opButton);
}

void OwnerPtrTest::deletesTheWholeObjectThroughALaterBase()
{
    {
        const OwnerPtr<ILabelled> opLabelled(new Button(7));
        QCOMPARE(opLabelled->GetLength(), 7);
        QCOMPARE((*opLabelled).GetLength(), 7);
    }

    QCOMPARE(s_livingButtons, 0);
}

void OwnerPtrTest::deletesThroughAnInterfaceWithoutVirtualDestructor()
{
    {
        const OwnerPtr<IClickable> opClickable(new Button);
        QCOMPARE(opClickable->Click(), 1);
    }

    QCOMPARE(s_livingButtons, 0);
}

void OwnerPtrTest::makeOwnerConstructsWithItsArguments()
{
    const OwnerPtr<Button> opButton = MakeOwner<Button>(5);

    QCOMPARE(opButton->GetLength(), 5);
}

void OwnerPtrTest::movingLeavesTheSourceEmpty()
{
    OwnerPtr<Button> opSource = MakeOwner<Button>();

    const OwnerPtr<Button> opTarget = std::move(opSource);

    QVERIFY(opSource.Get() == nullptr);
    QVERIFY(opTarget.Get() != nullptr);
    QCOMPARE(s_livingButtons, 1);
}

void OwnerPtrTest::movingToABaseKeepsTheDeleter()
{
    OwnerPtr<Button> opButton = MakeOwner<Button>(3);

    OwnerPtr<IClickable> opClickable = std::move(opButton);
    QVERIFY(opButton.Get() == nullptr);
    QCOMPARE(opClickable->Click(), 1);
    opClickable.Reset();

    QCOMPARE(s_livingButtons, 0);
}

void OwnerPtrTest::assigningFreesTheOldObject()
{
    OwnerPtr<ILabelled> opLabelled(new Button(1));

    opLabelled = OwnerPtr<ILabelled>(new Button(2));

    QCOMPARE(s_livingButtons, 1);
    QCOMPARE(opLabelled->GetLength(), 2);
}

void OwnerPtrTest::assigningToItselfKeepsTheObject()
{
    OwnerPtr<Button> opButton = MakeOwner<Button>(4);
    OwnerPtr<Button>& opSame = opButton;

    opButton = std::move(opSame);

    QVERIFY(opButton.Get() != nullptr);
    QCOMPARE(opButton->GetLength(), 4);
    QCOMPARE(s_livingButtons, 1);
}

void OwnerPtrTest::resetFreesAndEmpties()
{
    OwnerPtr<Button> opButton = MakeOwner<Button>();

    opButton.Reset();

    QVERIFY(!opButton);
    QCOMPARE(s_livingButtons, 0);
    opButton.Reset();
}

void OwnerPtrTest::isAlreadyEmptyWhileTheDestructorRuns()
{
    struct Probe
    {
        ~Probe() { isEmptyInside = pOwner->Get() == nullptr; }
        OwnerPtr<Probe>* pOwner;
        bool& isEmptyInside;
    };
    bool isEmptyInside = false;
    OwnerPtr<Probe> opProbe;
    opProbe = OwnerPtr<Probe>(new Probe{&opProbe, isEmptyInside});

    opProbe.Reset();

    QVERIFY(isEmptyInside);
}

void OwnerPtrTest::releaseGivesTheOwnershipAway()
{
    OwnerPtr<ILabelled> opLabelled(new Button);

    const std::unique_ptr<ILabelled> pReleased(opLabelled.Release());

    QVERIFY(!opLabelled);
    QVERIFY(pReleased != nullptr);
    opLabelled.Reset();
    QCOMPARE(s_livingButtons, 1);
}

void OwnerPtrTest::castingDownKeepsTheObjectAndItsDeleter()
{
    OwnerPtr<ILabelled> opLabelled(new Button(6));

    OwnerPtr<Button> opButton = OwnerPtrCast<Button>(std::move(opLabelled));
    QVERIFY(!opLabelled);
    QCOMPARE(opButton->GetLength(), 6);
    QCOMPARE(s_livingButtons, 1);
    opButton.Reset();

    QCOMPARE(s_livingButtons, 0);
}

void OwnerPtrTest::castingSidewaysReachesAnotherInterface()
{
    OwnerPtr<ILabelled> opLabelled(new Button);

    const OwnerPtr<Widget> opWidget = OwnerPtrCast<Widget>(std::move(opLabelled));

    QVERIFY(opWidget.Get() != nullptr);
}

void OwnerPtrTest::castingToAnotherKindFreesTheObject()
{
    OwnerPtr<ILabelled> opLabelled(new Button);

    const OwnerPtr<ICheckable> opCheckable = OwnerPtrCast<ICheckable>(std::move(opLabelled));

    QVERIFY(!opCheckable);
    QCOMPARE(s_livingButtons, 0);
}

void OwnerPtrTest::castingAnEmptyPointerGivesAnEmptyOne()
{
    const OwnerPtr<Button> opButton = OwnerPtrCast<Button>(OwnerPtr<ILabelled>());

    QVERIFY(!opButton);
}

void OwnerPtrTest::comparesWithNull()
{
    const OwnerPtr<Button> opEmpty;
    const OwnerPtr<Button> opFull = MakeOwner<Button>();

    QVERIFY(opEmpty == nullptr);
    QVERIFY(!(opEmpty != nullptr));
    QVERIFY(opFull != nullptr);
    QVERIFY(!(opFull == nullptr));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::OwnerPtrTest);
#include "OwnerPtrTest.moc"
