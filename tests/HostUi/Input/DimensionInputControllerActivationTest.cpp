#include "HostUi/InputFixture.h"

#include "Support/IdleView.h"
#include "Support/TestValues.h"

#include <QGuiApplication>

using namespace vesk;
using namespace vesk::test;

Q_DECLARE_METATYPE(Qt::ApplicationState)

namespace
{

Qt::ApplicationState s_state = Qt::ApplicationActive;

/// A view that replaces another and counts how often it gets the keyboard.
class KeyboardView final : public test::IdleView
{
public:
    explicit KeyboardView(const IUiView& view) : IdleView(view.GetId() + 1), m_view(view) {}

    WindowId GetWindowId() const override { return m_view.GetWindowId(); }
    IModelView* GetModelView() const override { return m_view.GetModelView(); }
    void Activate() override { ++activationCount; }

    int activationCount = 0;

private:
    const IUiView& m_view;
};

}

/// Replaces the toolkit's function, so that the program's activation does not depend on timing.
Qt::ApplicationState QGuiApplication::applicationState()
{
    return s_state;
}

/// Which window gets the keyboard when the editor disappears.
class DimensionInputControllerActivationTest final : public QObject
{
    Q_OBJECT

private slots:
    void viewGetsTheKeyboardBackInTheActiveProgramOnly_data()
    {
        QTest::addColumn<Qt::ApplicationState>("state");
        QTest::addColumn<int>("count");

        QTest::newRow("active") << Qt::ApplicationActive << 1;
        QTest::newRow("inactive") << Qt::ApplicationInactive << 0;
        QTest::newRow("hidden") << Qt::ApplicationHidden << 0;
    }

    void viewGetsTheKeyboardBackInTheActiveProgramOnly()
    {
        QFETCH(Qt::ApplicationState, state);
        InputFixture f(Linear());
        KeyboardView view(f.host.view);
        f.host.core.GetViewManager().AddView(&view);
        f.host.core.GetViewManager().SetCurrentView(&view);
        s_state = state;

        f.Type("5").Press(Qt::Key_Return);

        f.host.core.GetViewManager().RemoveView(&view);
        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QTEST(view.activationCount, "count");
    }
};

VESK_TESTS(DimensionInputControllerActivationTest);
#include "DimensionInputControllerActivationTest.moc"
