#include "PaneDriver.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"

#include "Support/EventWatch.h"
#include "Support/TestValues.h"
#include "View/SketchView.h"

#include <functional>
#include <optional>

using Act = std::function<void(ScriptedUser& user)>;
Q_DECLARE_METATYPE(Act)

/// While nobody does anything, the program sleeps.
class IdleTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void nothingWakesTheProgram_data()
    {
        QTest::addColumn<Act>("act");

        AddRow("as it starts", [](ScriptedUser&) {});
        for (const QString& name : PaneDriver::Names())
            AddRow(name + " in front", [name](ScriptedUser& user) {
                user.Do([name] { PaneDriver::Dock(name).Raise(); });
            });
        AddRow("a pane floats", [](ScriptedUser& user) {
            user.Do([] { PaneDriver::Widget("Inspector").setFloating(true); });
        });
        AddRow("all panes hidden", [](ScriptedUser& user) { user.Click("Sketcher.HideAllPanes"); });
        AddRow("a line drawn and selected", [](ScriptedUser& user) {
            user.DrawLine(0, 0, 50, 0).ClickAt(25, 0);
            user.Do([] { PaneDriver::Dock("Inspector").Raise(); });
        });
        AddRow("a tool waits", [](ScriptedUser& user) {
            user.Click("Sketcher.Line").ClickAt(0, 0).MoveTo(50, 30);
        });
        AddRow("minimised", [](ScriptedUser& user) {
            user.Do([] { ScriptedUser::FindWindow()->showMinimized(); });
        });
    }

    void nothingWakesTheProgram()
    {
        QFETCH(Act, act);
        constexpr int LongMs = 1500;
        ScriptedUser user;
        act(user);
        std::optional<vesk::test::EventWatch> watch;
        user.Do([&] {
            // A text cursor would blink.
            ScriptedUser::FindView()->setFocus();
            watch.emplace(&user);
        });
        user.Until([&watch] { return watch->IsQuietFor(LongMs); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(watch->GetLast(), QStringList());
    }

private:
    static void AddRow(const QString& name, const Act& act)
    {
        QTest::newRow(qPrintable(name)) << act;
    }
};

VESK_TESTS(IdleTest);
#include "IdleTest.moc"
