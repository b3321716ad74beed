#include "Control/NqUiInterfaceFactory.h"

#include "Foundation/IDebugWarningDisplayer.h"
#include "NqUiQtImplFactory.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"

#include <QtTest>

namespace vesk::test
{

class NqUiQtImplFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void hasNoPropertyPanelAndSaysNothing();
    void hasNoWarningDialogAndSaysNothing();
    void operationsHaveTheirSlotsAndThereAreNoMembers();
};

void NqUiQtImplFactoryTest::hasNoPropertyPanelAndSaysNothing()
{
    HostFixture host;

    QVERIFY(NqUiInterfaceFactory::m_pFactory->GetPropertyWidget() == nullptr);
}

void NqUiQtImplFactoryTest::hasNoWarningDialogAndSaysNothing()
{
    HostFixture host;

    QVERIFY(NqUiInterfaceFactory::m_pFactory->CreateDebugWarningDialogDisplayer() == nullptr);
}

void NqUiQtImplFactoryTest::operationsHaveTheirSlotsAndThereAreNoMembers()
{
    QCOMPARE(SlotOf(&NqUiInterfaceFactory::GetPropertyWidget), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&NqUiInterfaceFactory::CreateDebugWarningDialogDisplayer), std::ptrdiff_t(3));
    QCOMPARE(sizeof(NqUiQtImplFactory), sizeof(NqUiInterfaceFactory));
}

}

QTEST_MAIN(vesk::test::NqUiQtImplFactoryTest)
#include "NqUiQtImplFactoryTest.moc"
