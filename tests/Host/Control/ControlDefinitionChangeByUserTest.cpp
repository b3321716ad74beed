#include "Control/ControlDefinitionChangeByUser.h"

#include "Support/TestValues.h"

#include <map>
#include <memory>

namespace vesk
{

namespace
{

bool IsMarked(const std::wstring& id)
{
    return ControlDefinitionChangeByUser::IsChangeByUser(id);
}

}

class ControlDefinitionChangeByUserTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsTheUsersAtFirst();
    void marksItsIdWhileItLives();
    void scopesOfDifferentIdsNest();
    void scopesOfTheSameIdNest();
    void copiesTheId();
    void scopesMayEndInAnyOrder_data();
    void scopesMayEndInAnyOrder();
    void aScopeThatBeginsAfterAnotherEndedOutOfOrderIsFound();
    void theLineEditFlagIsClearedAtTheEndOfAScope();
    void theRadioButtonFlagIsClearedAtTheEndOfAScope();
};

void ControlDefinitionChangeByUserTest::nothingIsTheUsersAtFirst()
{
    QVERIFY(!IsMarked(L"a"));
    QVERIFY(!IsMarked(L""));
}

void ControlDefinitionChangeByUserTest::marksItsIdWhileItLives()
{
    {
        const ControlDefinitionChangeByUser byUser(L"a");
        QVERIFY(IsMarked(L"a"));
        QVERIFY(!IsMarked(L"b"));
    }

    QVERIFY(!IsMarked(L"a"));
}

void ControlDefinitionChangeByUserTest::scopesOfDifferentIdsNest()
{
    const ControlDefinitionChangeByUser outer(L"a");
    {
        const ControlDefinitionChangeByUser inner(L"b");
        const ControlDefinitionChangeByUser innermost(L"c");
        QVERIFY(IsMarked(L"a"));
        QVERIFY(IsMarked(L"b"));
        QVERIFY(IsMarked(L"c"));
        QVERIFY(!IsMarked(L"d"));
    }

    QVERIFY(IsMarked(L"a"));
    QVERIFY(!IsMarked(L"b"));
}

void ControlDefinitionChangeByUserTest::scopesOfTheSameIdNest()
{
    const ControlDefinitionChangeByUser outer(L"a");
    {
        const ControlDefinitionChangeByUser inner(L"a");
    }

    QVERIFY(IsMarked(L"a"));
}

void ControlDefinitionChangeByUserTest::copiesTheId()
{
    std::wstring id = L"a";
    const ControlDefinitionChangeByUser byUser(id);

    id = L"b";

    QVERIFY(IsMarked(L"a"));
    QVERIFY(!IsMarked(L"b"));
}

void ControlDefinitionChangeByUserTest::scopesMayEndInAnyOrder_data()
{
    QTest::addColumn<QByteArray>("order");
    QTest::newRow("as they began") << QByteArray("abc");
    QTest::newRow("youngest, oldest, middle") << QByteArray("cab");
    QTest::newRow("middle, oldest, youngest") << QByteArray("bac");
    QTest::newRow("middle, youngest, oldest") << QByteArray("bca");
    QTest::newRow("oldest, youngest, middle") << QByteArray("acb");
}

void ControlDefinitionChangeByUserTest::scopesMayEndInAnyOrder()
{
    QFETCH(QByteArray, order);
    std::map<char, std::unique_ptr<ControlDefinitionChangeByUser>> scopes;
    for (const char id : {'a', 'b', 'c'})
        scopes[id] = std::make_unique<ControlDefinitionChangeByUser>(
            std::wstring(1, static_cast<wchar_t>(id)));
    QByteArray marked;

    for (const char ended : order)
    {
        scopes.erase(ended);
        marked += IsMarked(L"a") ? 'a' : '-';
        marked += IsMarked(L"b") ? 'b' : '-';
        marked += IsMarked(L"c") ? 'c' : '-';
    }

    QByteArray expected;
    for (int ended = 1; ended <= order.size(); ++ended)
    {
        for (const char id : {'a', 'b', 'c'})
            expected += order.indexOf(id) >= ended ? id : '-';
    }
    QCOMPARE(marked, expected);
}

void ControlDefinitionChangeByUserTest::aScopeThatBeginsAfterAnotherEndedOutOfOrderIsFound()
{
    auto pOld = std::make_unique<ControlDefinitionChangeByUser>(L"a");
    const ControlDefinitionChangeByUser young(L"b");
    pOld.reset();

    {
        const ControlDefinitionChangeByUser youngest(L"c");
        QVERIFY(IsMarked(L"c"));
        QVERIFY(IsMarked(L"b"));
        QVERIFY(!IsMarked(L"a"));
    }

    QVERIFY(!IsMarked(L"c"));
    QVERIFY(IsMarked(L"b"));
}

void ControlDefinitionChangeByUserTest::theLineEditFlagIsClearedAtTheEndOfAScope()
{
    QVERIFY(!LineEditTextChangeFlag::m_textChangeByUser);
    {
        const LineEditTextChangeFlag flag;
        QVERIFY(!LineEditTextChangeFlag::m_textChangeByUser);
        LineEditTextChangeFlag::m_textChangeByUser = true;
    }

    QVERIFY(!LineEditTextChangeFlag::m_textChangeByUser);
}

void ControlDefinitionChangeByUserTest::theRadioButtonFlagIsClearedAtTheEndOfAScope()
{
    QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
    {
        const RadioButtonGroupStateChangeFlag flag;
        QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
        RadioButtonGroupStateChangeFlag::m_stateChangeByUser = true;
    }

    QVERIFY(!RadioButtonGroupStateChangeFlag::m_stateChangeByUser);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ControlDefinitionChangeByUserTest);
#include "ControlDefinitionChangeByUserTest.moc"
