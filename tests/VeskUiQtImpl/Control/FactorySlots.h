#pragma once

#include "Control/VeskIControlFactory.h"
#include "Support/MemberAccess.h"
#include "Support/TestValues.h"

#include <cstddef>

namespace vesk::test
{

/// Verifies the positions at which the libraries of the host call the factory's operations.
inline void VerifySlotsOfTheFactory()
{
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtButton), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtLineEdit), std::ptrdiff_t(3));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtLabel), std::ptrdiff_t(4));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtCommandButtonMenu), std::ptrdiff_t(5));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtComboBox), std::ptrdiff_t(6));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtProgressBar), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtRadioButtonGroup), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&VeskIControlFactory::CreateQtCheckBoxGroup), std::ptrdiff_t(9));
}

}
