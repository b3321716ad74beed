#pragma once

#include "Support/TestValues.h"

#include <QWidget>

namespace vesk::test
{

/// Shows a window and waits until it is active. Qt 6 would otherwise activate it, or a view in it,
/// after the window that a test opens next.
inline void ShowActive(QWidget& window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, PatienceMs));
}

}
