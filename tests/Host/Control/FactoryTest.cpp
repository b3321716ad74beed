#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/ILabelDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/TestValues.h"
#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <memory>

namespace vesk
{

namespace
{

class ControlFactory final : public VeskIControlFactory
{
public:
    using VeskIControlFactory::Set;

    OwnerPtr<IControl> CreateQtButton(OwnerPtr<ICommandButtonDefinition> /*op*/) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtLineEdit(OwnerPtr<ILineEditDefinition> /*op*/) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtLabel(OwnerPtr<ILabelDefinition> /*op*/) override { return {}; }
    OwnerPtr<IControl>
    CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> /*op*/) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtComboBox(OwnerPtr<IComboBoxDefinition> /*op*/) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtProgressBar(OwnerPtr<IProgressBarDefinition> /*op*/) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> /*op*/,
                                                WindowId /*parent*/) override
    {
        return {};
    }
    OwnerPtr<IControl> CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> /*op*/,
                                             WindowId /*parent*/) override
    {
        return {};
    }
};

class UiFactory final : public NqUiInterfaceFactory
{
public:
    IPropertyWidget* GetPropertyWidget() override { return nullptr; }
    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        return {};
    }
};

}

class FactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void thereIsNoFactoryAtFirst();
    void theRegisteredControlFactoryIsFoundUntilItIsWithdrawn();
    void aDestroyedUiFactoryIsNoLongerRegistered();
    void destroyingAnotherUiFactoryLeavesTheRegisteredOne();
};

void FactoryTest::thereIsNoFactoryAtFirst()
{
    QVERIFY(VeskIControlFactory::Get() == nullptr);
    QVERIFY(NqUiInterfaceFactory::m_pFactory == nullptr);
}

void FactoryTest::theRegisteredControlFactoryIsFoundUntilItIsWithdrawn()
{
    ControlFactory factory;

    ControlFactory::Set(&factory);
    QCOMPARE(VeskIControlFactory::Get(), static_cast<VeskIControlFactory*>(&factory));
    ControlFactory::Set(nullptr);

    QVERIFY(VeskIControlFactory::Get() == nullptr);
}

void FactoryTest::aDestroyedUiFactoryIsNoLongerRegistered()
{
    auto pFactory = std::make_unique<UiFactory>();
    NqUiInterfaceFactory::m_pFactory = pFactory.get();

    pFactory.reset();

    QVERIFY(NqUiInterfaceFactory::m_pFactory == nullptr);
}

void FactoryTest::destroyingAnotherUiFactoryLeavesTheRegisteredOne()
{
    UiFactory registered;
    NqUiInterfaceFactory::m_pFactory = &registered;

    std::make_unique<UiFactory>().reset();

    QCOMPARE(NqUiInterfaceFactory::m_pFactory, static_cast<NqUiInterfaceFactory*>(&registered));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::FactoryTest);
#include "FactoryTest.moc"
