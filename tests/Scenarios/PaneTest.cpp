#include "Drawing.h"
#include "PaneDriver.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Support/TestValues.h"

#include <QRandomGenerator>

#include <functional>
#include <optional>

using Act = std::function<void(ScriptedUser& user)>;
Q_DECLARE_METATYPE(Act)

namespace
{

const QString s_menu = QStringLiteral("Sketcher.Panes");
const QString s_hideAll = QStringLiteral("Sketcher.HideAllPanes");
const QString s_default = QStringLiteral("Sketcher.DefaultLayout");
const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_showAll = QStringLiteral("Sketcher.ShowAllPanes");

/// The panes expected to be visible, by the simplest rules.
class ExpectedPanes
{
public:
    const QString& Get() const { return m_visible; }

    void Set(int pane, bool isVisible)
    {
        if (isVisible && m_visible[pane] == '0')
            m_remembered.reset();
        m_visible[pane] = QLatin1Char(isVisible ? '1' : '0');
    }

    void Toggle(int pane) { Set(pane, m_visible[pane] == '0'); }

    void SetAll(bool isVisible)
    {
        for (int pane = 0; pane < m_visible.size(); ++pane)
            Set(pane, isVisible);
    }

    void RestoreDefault()
    {
        m_remembered.reset();
        SetAll(true);
    }

    void ToggleAll()
    {
        const QString before = m_visible;
        m_visible = m_remembered.value_or(QStringLiteral("00000"));
        m_remembered = m_remembered.has_value() ? std::nullopt : std::make_optional(before);
    }

private:
    QString m_visible = QStringLiteral("11111");
    std::optional<QString> m_remembered;
};

}

/// Showing and hiding panes in every possible way.
class PaneTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void allPanesAreVisibleAndMarkedAtFirst()
    {
        ScriptedUser user;

        user.Do([] {
            QCOMPARE(PaneDriver::Visible(), QStringLiteral("11111"));
            QCOMPARE(PaneDriver::Marked(), QStringLiteral("11111"));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void commandsOfPanesAreRecorded()
    {
        const QString journal = PaneDriver::CommandOf("Journal");
        ScriptedUser user;

        user.Click(s_hideAll).Choose(s_menu, journal).Click(s_menu).Click(s_default);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands(), QStringList({s_hideAll, journal, s_showAll, s_default}));
    }

    void marksTellTheTruth_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("visible");

        const QString entry = PaneDriver::CommandOf("Journal");
        AddRow("menu", "11101", [entry](ScriptedUser& user) { user.Choose(s_menu, entry); });
        AddRow("menu twice", "11111",
               [entry](ScriptedUser& user) { user.Choose(s_menu, entry).Choose(s_menu, entry); });
        AddRow("all hidden", "00000", [](ScriptedUser& user) { user.Click(s_hideAll); });
        AddRow("all hidden and back", "11101", [](ScriptedUser& user) {
            Program(user, [] { PaneDriver::Dock("Journal").Hide(); });
            user.Click(s_hideAll).Click(s_hideAll);
        });
        AddRow("one shown of all hidden", "00010",
               [entry](ScriptedUser& user) { user.Click(s_hideAll).Choose(s_menu, entry); });
        AddRow("main part of the button", "11111",
               [](ScriptedUser& user) { user.Click(s_hideAll).Click(s_menu); });
        AddRow("hidden by the program", "10111", [](ScriptedUser& user) {
            Program(user, [] { PaneDriver::Dock("Entities").Hide(); });
        });
        AddRow("shown by the program", "01000", [](ScriptedUser& user) {
            user.Click(s_hideAll);
            Program(user, [] { PaneDriver::Dock("Entities").Show(); });
        });
        AddRow("all hidden by the program", "00000", [](ScriptedUser& user) {
            Program(user, [] { PaneDriver::Manager().HideAllDockPane(); });
        });
        AddRow("all shown by the program", "11111", [](ScriptedUser& user) {
            user.Click(s_hideAll);
            Program(user, [] { PaneDriver::Manager().ShowAllDockPane(); });
        });
        AddRow("closed", "10111", [](ScriptedUser& user) {
            user.Do([] { PaneDriver::CloseButton("Entities")->click(); });
        });
        AddRow("floating and closed", "11101", [](ScriptedUser& user) {
            Program(user, [] { PaneDriver::Dock("Journal").SetFloating(true); });
            user.Do([] { PaneDriver::Widget("Journal").close(); });
        });
        AddRow("default layout", "11111", [](ScriptedUser& user) {
            Program(user, [] { PaneDriver::Manager().HideAllDockPane(); });
            user.Click(s_default);
        });
    }

    void marksTellTheTruth()
    {
        QFETCH(Act, act);
        QFETCH(QString, visible);
        ScriptedUser user;

        act(user);
        user.Until([visible] { return PaneDriver::Visible() == visible; }).Do([visible] {
            QCOMPARE(PaneDriver::Marked(), visible);
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void theButtonShowsAllPanesWhatEverRuns_data()
    {
        QTest::addColumn<bool>("isSecondTool");
        QTest::addColumn<QString>("runsAfterwards");

        QTest::newRow("a tool, which the click ends") << false << QString();
        QTest::newRow("a tool after a tool, which goes on") << true << s_line;
    }

    void theButtonShowsAllPanesWhatEverRuns()
    {
        QFETCH(bool, isSecondTool);
        QFETCH(QString, runsAfterwards);
        ScriptedUser user;

        user.Click(s_hideAll);
        if (isSecondTool)
            user.Click("Sketcher.Erase").UntilRunning("Sketcher.Erase");
        user.Click(s_line).UntilRunning(s_line).ClickAt(0, 0);
        user.Click(s_menu).UntilRunning(runsAfterwards).Do([] {
            QCOMPARE(PaneDriver::Visible(), QStringLiteral("11111"));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Commands().filter(s_showAll).size(), 1);
        QCOMPARE(Commands().back(), s_showAll);
    }

    void aPaneOfTheMenuComesToTheFront()
    {
        const QString entry = PaneDriver::CommandOf("Inspector");
        ScriptedUser user;

        user.Choose(s_menu, entry).Choose(s_menu, entry);

        user.Until([] { return !PaneDriver::Widget("Inspector").visibleRegion().isEmpty(); });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void anySequenceOfShowingAndHidingIsMarked()
    {
        constexpr int Steps = 500;
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        ExpectedPanes expected;
        ScriptedUser user;

        for (int step = 0; step < Steps; ++step)
        {
            ShowOrHideSomething(random, expected, user);
            user.Do([=, visible = expected.Get()] {
                const QByteArray where =
                    QStringLiteral("seed %1, step %2: %3, marked %4, expected %5")
                        .arg(seed)
                        .arg(step)
                        .arg(PaneDriver::Visible(), PaneDriver::Marked(), visible)
                        .toUtf8();
                QVERIFY2(PaneDriver::Visible() == visible, where);
                QVERIFY2(PaneDriver::Marked() == visible, where);
            });
        }

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

private:
    static void AddRow(const char* name, const char* visible, const Act& act)
    {
        QTest::newRow(name) << act << QString(visible);
    }

    QStringList Commands() const
    {
        QStringList commands;
        for (const auto& record :
             RecordsOf<vesk::CommandRecord>(ReadJournal(m_pFixture->File("journal"))))
            commands << QString::fromStdWString(record.commandId);
        return commands;
    }

    /// As another part of the program would do it.
    static void Program(ScriptedUser& user, const std::function<void()>& act) { user.Do(act); }

    static void ShowOrHideSomething(QRandomGenerator& random, ExpectedPanes& expected,
                                    ScriptedUser& user)
    {
        const int pane = random.bounded(PaneDriver::Names().size());
        const QString name = PaneDriver::Names().at(pane);
        switch (random.bounded(9))
        {
        case 0:
        case 1:
            expected.ToggleAll();
            user.Click(s_hideAll);
            break;
        case 2:
            expected.RestoreDefault();
            user.Click(s_default);
            break;
        case 3:
            expected.SetAll(true);
            user.Click(s_menu);
            break;
        case 4:
            expected.SetAll(false);
            Program(user, [] { PaneDriver::Manager().HideAllDockPane(); });
            break;
        case 5:
            expected.Set(pane, true);
            Program(user, [name] { PaneDriver::Dock(name).Show(); });
            break;
        case 6:
            expected.Set(pane, false);
            user.Do([name] { PaneDriver::CloseButton(name)->click(); });
            break;
        default:
            expected.Toggle(pane);
            user.Choose(s_menu, PaneDriver::CommandOf(name));
        }
    }
};

VESK_TESTS(PaneTest);
#include "PaneTest.moc"
