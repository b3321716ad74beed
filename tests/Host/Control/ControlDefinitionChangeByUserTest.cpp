#include "Control/ControlDefinitionChangeByUser.h"

#include "Support/TestValues.h"

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

QTEST_APPLESS_MAIN(vesk::ControlDefinitionChangeByUserTest)
#include "ControlDefinitionChangeByUserTest.moc"
