#include "Foundation/WeakReferenceable.h"

#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

namespace
{

class Watched : public WeakReferenceable
{};

}

class WeakReferenceTest : public QObject
{
    Q_OBJECT

private slots:
    void pointsAtNothingAtFirst();
    void aReferenceToNullPointsAtNothing();
    void pointsAtTheObjectWhileItLives();
    void everyReferenceLosesTheDestroyedObject();
    void aCopiedReferenceLosesItToo();
    void aCopyOfTheObjectIsWatchedSeparately();
    void anAssignedObjectKeepsItsOwnWatchers();
};

void WeakReferenceTest::pointsAtNothingAtFirst()
{
    const WeakReference<Watched> reference;

    QVERIFY(reference.Get() == nullptr);
}

void WeakReferenceTest::aReferenceToNullPointsAtNothing()
{
    Watched* const pNone = nullptr;

    const WeakReference<Watched> reference(pNone);

    QVERIFY(reference.Get() == nullptr);
}

void WeakReferenceTest::pointsAtTheObjectWhileItLives()
{
    Watched object;

    const WeakReference<Watched> reference(&object);

    QCOMPARE(reference.Get(), &object);
}

void WeakReferenceTest::everyReferenceLosesTheDestroyedObject()
{
    auto pObject = std::make_unique<Watched>();
    const WeakReference<Watched> first(pObject.get());
    const WeakReference<Watched> second(pObject.get());

    pObject.reset();

    QVERIFY(first.Get() == nullptr);
    QVERIFY(second.Get() == nullptr);
}

void WeakReferenceTest::aCopiedReferenceLosesItToo()
{
    auto pObject = std::make_unique<Watched>();
    const WeakReference<Watched> first(pObject.get());
    const WeakReference<Watched> copy = first;

    pObject.reset();

    QVERIFY(copy.Get() == nullptr);
}

void WeakReferenceTest::aCopyOfTheObjectIsWatchedSeparately()
{
    auto pOriginal = std::make_unique<Watched>();
    const WeakReference<Watched> toOriginal(pOriginal.get());
    Watched copy(*pOriginal);
    const WeakReference<Watched> toCopy(&copy);

    pOriginal.reset();

    QVERIFY(toOriginal.Get() == nullptr);
    QCOMPARE(toCopy.Get(), &copy);
}

void WeakReferenceTest::anAssignedObjectKeepsItsOwnWatchers()
{
    Watched target;
    const WeakReference<Watched> toTarget(&target);
    auto pSource = std::make_unique<Watched>();
    const WeakReference<Watched> toSource(pSource.get());

    target = *pSource;
    pSource.reset();

    QVERIFY(toSource.Get() == nullptr);
    QCOMPARE(toTarget.Get(), &target);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::WeakReferenceTest);
#include "WeakReferenceTest.moc"
