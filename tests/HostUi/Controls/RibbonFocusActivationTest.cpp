#include "HostUi/RibbonFocusFixture.h"

#include "Support/TestValues.h"

#include <QApplication>

using namespace vesk;
using namespace vesk::test;

Q_DECLARE_METATYPE(Qt::ApplicationState)

namespace
{

Qt::ApplicationState s_state = Qt::ApplicationActive;

}

/// Replaces the toolkit's function, so that the program's activation does not depend on timing.
Qt::ApplicationState QGuiApplication::applicationState()
{
    return s_state;
}

/// Whether a click returns the keyboard if another program has become active in the meantime.
class RibbonFocusActivationTest final : public QObject
{
    Q_OBJECT

private slots:
    void anotherProgramKeepsTheKeyboard_data()
    {
        QTest::addColumn<Qt::ApplicationState>("state");
        QTest::addColumn<bool>("isGivenBack");

        QTest::newRow("active") << Qt::ApplicationActive << true;
        QTest::newRow("inactive") << Qt::ApplicationInactive << false;
    }

    void anotherProgramKeepsTheKeyboard()
    {
        QFETCH(Qt::ApplicationState, state);
        RibbonFocusFixture f;
        auto* pBox = f.Place(new QCheckBox);
        f.BeginAction();
        QTest::mousePress(pBox, Qt::LeftButton);
        f.pElsewhere->setFocus();

        s_state = state;
        QTest::mouseRelease(pBox, Qt::LeftButton);
        QCoreApplication::processEvents();
        s_state = Qt::ApplicationActive;

        QTEST(QApplication::focusWidget() == f.pView, "isGivenBack");
    }
};

VESK_TESTS(RibbonFocusActivationTest);
#include "RibbonFocusActivationTest.moc"
