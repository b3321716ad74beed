#include "VeskUiQtImpl/NqUiQtImplFactory.h"

#include "DockFixture.h"
#include "Support/TestValues.h"
#include "Warnings/IDebugWarningDisplayer.h"

#include <typeinfo>

namespace vesk::test
{

class NqUiQtImplFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void operationsHaveTheirSlotsAndThereAreNoMembers();
    void isRegisteredWhileTheLibraryIsLoaded();
    void thePropertyPanelNeedsTheServices();
    void thePropertyPanelNeedsAManagerOfDocks();
    void thePropertyPanelNeedsItsDockAndSaysNothing();
    void thePropertyPanelNeedsContentAndSaysNothing();
    void thePropertyPanelIsNothingElse();
    void thePropertyPanelIsTheContentOfItsDock();
    void everyWarningDialogIsAnother();
};

IPropertyWidget* FindPanel()
{
    return NqUiInterfaceFactory::m_pFactory->GetPropertyWidget();
}

void NqUiQtImplFactoryTest::operationsHaveTheirSlotsAndThereAreNoMembers()
{
    QCOMPARE(SlotOf(&NqUiInterfaceFactory::GetPropertyWidget), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&NqUiInterfaceFactory::CreateDebugWarningDialogDisplayer), std::ptrdiff_t(3));
    QCOMPARE(sizeof(NqUiQtImplFactory), sizeof(NqUiInterfaceFactory));
}

void NqUiQtImplFactoryTest::isRegisteredWhileTheLibraryIsLoaded()
{
    const NqUiInterfaceFactory& factory = *NqUiInterfaceFactory::m_pFactory;

    QVERIFY(QByteArray(typeid(factory).name()).contains("NqUiQtImplFactory"));
}

void NqUiQtImplFactoryTest::thePropertyPanelNeedsTheServices()
{
    DockFixture f;
    f.host.window.SetManagerInstalled(false);

    QVERIFY(FindPanel() == nullptr);

    EXPECT_WARNING(f.host.warnings, L"pUiManager为空",
                   "vesk::NqUiQtImplFactory::GetPropertyWidget");
}

void NqUiQtImplFactoryTest::thePropertyPanelNeedsAManagerOfDocks()
{
    DockFixture f;
    f.host.window.SetDockManager(nullptr);

    QVERIFY(FindPanel() == nullptr);

    EXPECT_WARNING(f.host.warnings, L"pDockManager为空",
                   "vesk::NqUiQtImplFactory::GetPropertyWidget");
}

void NqUiQtImplFactoryTest::thePropertyPanelNeedsItsDockAndSaysNothing()
{
    DockFixture f;
    f.Add(L"other")->SetWidget(MakeOwner<PropertyPanel>());

    QVERIFY(FindPanel() == nullptr);
}

void NqUiQtImplFactoryTest::thePropertyPanelNeedsContentAndSaysNothing()
{
    DockFixture f;
    f.Add(IPropertyWidget::GetTypeName());

    QVERIFY(FindPanel() == nullptr);
}

void NqUiQtImplFactoryTest::thePropertyPanelIsNothingElse()
{
    DockFixture f;
    f.Add(IPropertyWidget::GetTypeName())->SetWidget(MakeOwner<WidgetContent>());

    QVERIFY(FindPanel() == nullptr);
}

void NqUiQtImplFactoryTest::thePropertyPanelIsTheContentOfItsDock()
{
    DockFixture f;
    auto opPanel = MakeOwner<PropertyPanel>();
    IPropertyWidget* pPanel = opPanel.Get();
    f.Add(IPropertyWidget::GetTypeName())->SetWidget(std::move(opPanel));

    QCOMPARE(FindPanel(), pPanel);
}

void NqUiQtImplFactoryTest::everyWarningDialogIsAnother()
{
    NqUiInterfaceFactory& factory = *NqUiInterfaceFactory::m_pFactory;

    const auto opFirst = factory.CreateDebugWarningDialogDisplayer();
    const auto opSecond = factory.CreateDebugWarningDialogDisplayer();

    QVERIFY(opFirst != nullptr && opSecond != nullptr);
    QVERIFY(opFirst.Get() != opSecond.Get());
    const IDebugWarningDialogDisplayer& displayer = *opFirst;
    QVERIFY(QByteArray(typeid(displayer).name()).contains("DebugWarningDialogDisplayer"));
}

}

VESK_TESTS(vesk::test::NqUiQtImplFactoryTest);
#include "NqUiQtImplFactoryTest.moc"
