#include "TemporaryDimensionHandlersImpl/AnsweringView.h"
#include "TemporaryDimensionHandlersImpl/LifetimeFixture.h"

#include "Support/TestValues.h"

namespace vesk::test
{
namespace
{

/// The moment at which a victim is destroyed.
enum class During
{
    Delivery, ///< Of the value, to the action.
    Focus,    ///< As the editor gives up the focus. Qt continues to use the editor then.
    Hidden,   ///< After the editor was hidden, the last thing Qt does with it.
    View,     ///< While the view handles the key.
    NoView,   ///< While the missing view is reported.
    NoWidget, ///< While it is reported that the view has no widget.
};

struct NamedMoment
{
    const char* name;
    During during;
};

const NamedMoment Moments[]{
    {"as the value is delivered", During::Delivery}, {"as the focus goes", During::Focus},
    {"as the editor is hidden", During::Hidden},     {"in the view", During::View},
    {"as a view is missed", During::NoView},         {"as a widget is missed", During::NoWidget},
};

struct NamedKey
{
    const char* name;
    int code;
};

const NamedKey Keys[]{
    {"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter},   {"Space", Qt::Key_Space},
    {"Tab", Qt::Key_Tab},       {"Escape", Qt::Key_Escape},
};

bool Commits(const KindRules& rules, int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter ||
           (key == Qt::Key_Space && rules.Has(CommitsWithSpace));
}

bool Switches(const KindRules& rules, int key)
{
    return key == Qt::Key_Tab && rules.Has(SwitchesWithTab);
}

bool IsHandedOn(const KindRules& rules, int key)
{
    return key == Qt::Key_Escape && rules.Has(HandsEscapeOn);
}

/// Whether the handling of a key has such a moment.
bool Has(const KindRules& rules, int key, During during)
{
    switch (during)
    {
    case During::Delivery:
        return Commits(rules, key) || Switches(rules, key);
    case During::Focus:
    case During::Hidden:
        return Commits(rules, key) || key == Qt::Key_Escape;
    case During::View:
        return IsHandedOn(rules, key);
    default:
        return true;
    }
}

std::vector<const char*> VictimsOf(During during)
{
    if (during == During::Focus)
        return {"nobody", "handler"};
    return {"nobody", "handler", "editor", "view"};
}

}

/// A handler in a view that answers, and an editor with a value in it.
struct EditorKeyFixture : MortalViewFixture<AnsweringView>
{
    EditorKeyFixture(const KindRules& rules, bool isTaking) : MortalViewFixture(rules, isTaking)
    {
        TypeFirst("5");
    }
};

/// What a key of the editor does and returns, whichever object is destroyed meanwhile.
class EditorKeyDeathTest : public QObject
{
    Q_OBJECT

private slots:
    void keyIsSwallowedForAnEditorThatDied_data();
    void keyIsSwallowedForAnEditorThatDied();
    void viewGetsEscapeItselfAndNothingElseOfIt_data();
    void viewGetsEscapeItselfAndNothingElseOfIt();
    void escapeTellsOfAnInputThatBeganMeanwhile_data();
    void escapeTellsOfAnInputThatBeganMeanwhile();
    void editorMayDieOnceItIsShown_data();
    void editorMayDieOnceItIsShown();
    void readyEditorMayDieOnceItIsShown_data();
    void readyEditorMayDieOnceItIsShown();
};

void AddDeathColumns()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("during");
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("isTaking");
}

void AddDeathRow(std::size_t kind, const NamedKey& key, const NamedMoment& moment,
                 const char* victim)
{
    for (const bool isTaking : {true, false})
    {
        // Other keys never reach the view.
        if (isTaking || key.code == Qt::Key_Escape)
            QTest::addRow("%s, %s, %s dies %s, view %s", AllKinds()[kind].name, key.name, victim,
                          moment.name, isTaking ? "takes it" : "declines")
                << int(kind) << key.code << int(moment.during) << QString(victim) << isTaking;
    }
}

void EditorKeyDeathTest::keyIsSwallowedForAnEditorThatDied_data()
{
    AddDeathColumns();
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (const NamedKey& key : Keys)
        {
            for (const NamedMoment& moment : Moments)
            {
                if (!Has(AllKinds()[kind], key.code, moment.during))
                    continue;
                for (const char* victim : VictimsOf(moment.during))
                    AddDeathRow(kind, key, moment, victim);
            }
        }
    }
}

/// Destroys a victim at a given moment.
class Death
{
public:
    Death(EditorKeyFixture& f, During during, const QString& victim)
    {
        const auto kill = [&f, victim] { f.Kill(victim); };
        switch (during)
        {
        case During::Delivery:
            f.host.actionLog.onInput = kill;
            break;
        case During::Focus:
            QObject::connect(qApp, &QApplication::focusChanged, &m_context, kill);
            break;
        case During::Hidden:
            m_eventTrap.emplace(f.Editor(), QEvent::HideToParent, kill);
            break;
        case During::View:
            f.pView->SetOnKey([kill](const QEvent&) { kill(); });
            break;
        case During::NoView:
            f.host.core.GetViewManager().RemoveView(f.pView.get());
            break;
        case During::NoWidget:
            f.pView->SetHasWidget(false);
            break;
        }
        if (during == During::NoView || during == During::NoWidget)
            m_warningTrap.emplace(kill);
    }

private:
    QObject m_context;
    std::optional<WarningTrap> m_warningTrap;
    std::optional<EventTrap> m_eventTrap;
};

void EditorKeyDeathTest::keyIsSwallowedForAnEditorThatDied()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(int, during);
    QFETCH(QString, victim);
    QFETCH(bool, isTaking);
    EditorKeyFixture f(rules, isTaking);
    if (During(during) == During::Focus)
        QTRY_VERIFY(f.Editor()->hasFocus());
    const Death death(f, During(during), victim);

    const bool isSwallowed = f.FilterKey(key);

    const bool isEditorDead = victim == "editor" || victim == "view";
    const bool isReported = During(during) == During::NoView || During(during) == During::NoWidget;
    const bool isTaken = Switches(rules, key) || (IsHandedOn(rules, key) && isTaking);
    QCOMPARE(isSwallowed, isEditorDead || (isTaken && !isReported));
    QCOMPARE(f.Editor() == nullptr, isEditorDead);
    // Without a view nothing is delivered.
    const bool isViewGone = victim == "view" && During(during) == During::Hidden;
    const bool isDelivered = Commits(rules, key) || Switches(rules, key);
    QCOMPARE(f.Inputs().size(), std::size_t(isDelivered && !isReported && !isViewGone ? 1 : 0));
    QCOMPARE(f.host.warnings.IsEmpty(), !isReported);
    f.host.warnings.TakeAny();
}

void EditorKeyDeathTest::viewGetsEscapeItselfAndNothingElseOfIt_data()
{
    AddKindRows([](const KindRules& rules) { return rules.Has(HandsEscapeOn); });
}

/// Counts the key presses that pass the event filters of an object.
class KeyCounter final : public QObject
{
public:
    explicit KeyCounter(QObject& object) { object.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        m_count += pEvent->type() == QEvent::KeyPress ? 1 : 0;
        return false;
    }

    int Get() const { return m_count; }

private:
    int m_count = 0;
};

void EditorKeyDeathTest::viewGetsEscapeItselfAndNothingElseOfIt()
{
    FETCH_KIND(rules);
    EditorKeyFixture f(rules, false);
    const KeyCounter viewFilter(*f.pView);
    const KeyCounter windowFilter(f.host.window);
    std::vector<const QEvent*> events;
    f.pView->SetOnKey([&events](const QEvent& event) { events.push_back(&event); });
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::ControlModifier, "x", true, 3);

    QVERIFY(!f.Object().eventFilter(f.Editor(), &press));

    QVERIFY(events == std::vector<const QEvent*>{&press});
    QCOMPARE(viewFilter.Get(), 0);
    QCOMPARE(windowFilter.Get(), 0);
    QVERIFY(!f.opHandler->IsInputting());
}

void EditorKeyDeathTest::escapeTellsOfAnInputThatBeganMeanwhile_data()
{
    AddKindRows([](const KindRules& rules) { return !rules.Has(HandsEscapeOn); });
}

void EditorKeyDeathTest::escapeTellsOfAnInputThatBeganMeanwhile()
{
    FETCH_KIND(rules);
    EditorKeyFixture f(rules, true);
    QTRY_VERIFY(f.Editor()->hasFocus());
    const EventTrap trap(f.Editor(), QEvent::FocusOut, [&] {
        f.Handler().ShowInputWidget(rules.StartState(), true, true, L"6");
    });

    QVERIFY(f.FilterKey(Qt::Key_Escape));

    QCOMPARE(f.State(), rules.StartState());
}

/// A row for each kind and victim.
void AddVictimRows()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("victim");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (const char* victim : {"handler", "editor", "view"})
            QTest::addRow("%s, %s", AllKinds()[kind].name, victim) << int(kind) << QString(victim);
    }
}

void EditorKeyDeathTest::editorMayDieOnceItIsShown_data()
{
    AddVictimRows();
}

void EditorKeyDeathTest::editorMayDieOnceItIsShown()
{
    FETCH_KIND(rules);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.opHandler->EndInput();
    const EventTrap trap(f.Editor(), QEvent::ShowToParent, [&] { f.Kill(victim); });

    QVERIFY(f.SendToHandler('6'));

    QCOMPARE(f.Editor() == nullptr, victim != "handler");
    QVERIFY(f.opHandler == nullptr || !f.opHandler->IsInputting());
    QCOMPARE(f.host.journal.GetUiObjects().size(), std::size_t(1));
}

void EditorKeyDeathTest::readyEditorMayDieOnceItIsShown_data()
{
    AddVictimRows();
}

void EditorKeyDeathTest::readyEditorMayDieOnceItIsShown()
{
    FETCH_KIND(rules);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.Editor()->hide();
    const EventTrap trap(f.Editor(), QEvent::ShowToParent, [&] { f.Kill(victim); });

    f.Handler().ShowInputWidget(rules.StartState(), true, true, L"6");

    QCOMPARE(f.Editor() == nullptr, victim != "handler");
    QCOMPARE(f.opHandler == nullptr, victim == "handler");
    if (f.opHandler != nullptr)
        f.UseHandler();
}

}

VESK_TESTS(vesk::test::EditorKeyDeathTest);
#include "EditorKeyDeathTest.moc"
