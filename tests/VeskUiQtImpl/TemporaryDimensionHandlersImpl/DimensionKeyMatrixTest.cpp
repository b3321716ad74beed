#include "TemporaryDimensionHandlersImpl/KeyMatrixRules.h"

#include "Support/TestValues.h"

Q_DECLARE_METATYPE(vesk::test::Typed)
Q_DECLARE_METATYPE(vesk::test::Door)
Q_DECLARE_METATYPE(vesk::test::ViewIs)

namespace vesk::test
{
namespace
{

/// A handler that can be put into a state repeatedly.
struct MatrixFixture : KindFixture
{
    MatrixFixture(const KindRules& rules, Door theDoor, const Typed& theTyped, ViewIs theView)
        : KindFixture(rules.pCreateContext()), kind(rules), door(theDoor), typed(theTyped),
          view(theView), windowId(host.view.GetWindowId())
    {
        host.BeginAction();
    }

    void Prepare()
    {
        host.core.GetViewManager().RemoveView(&host.view);
        host.core.GetViewManager().AddView(&host.view);
        host.core.GetViewManager().SetCurrentView(&host.view);
        host.view.SetWindowId(windowId);
        delete Editor();
        opHandler = CreateHandler();
        kind.ShowValuesIn(Data());
        Open();
        if (view == ViewIs::Gone)
            host.core.GetViewManager().RemoveView(&host.view);
        if (view == ViewIs::WithoutWidget)
            host.view.SetWindowId(0);
    }

    /// The state before a key.
    Outcome Begin()
    {
        Inputs().clear();
        redrawCount = host.view.GetRedrawCount();
        viewKeyCount = host.view.GetKeys().size();
        return Look(false);
    }

    /// Keys of the editor need an editor, even if it is idle.
    void Open()
    {
        Object().setProperty("rawTextInput", typed.isRaw);
        if (typed.field >= 0)
            Type(kind.fields[std::size_t(typed.field)].state, typed.text);
        else if (door == Door::Editor)
            Type(kind.StartState(), "5");
        if (typed.field < 0)
            opHandler->EndInput();
    }

    bool Press(const Key& key)
    {
        const Qt::KeyboardModifiers modifiers = key.modifiers;
        if (door == Door::View)
            return opHandler->OnKeyDown(key.code, modifiers.testFlag(Qt::ControlModifier),
                                        modifiers.testFlag(Qt::AltModifier),
                                        modifiers.testFlag(Qt::ShiftModifier));
        QKeyEvent event(key.isRelease ? QEvent::KeyRelease : QEvent::KeyPress, key.code, modifiers,
                        key.text);
        return door == Door::Event ? Object().event(&event)
                                   : Object().eventFilter(Editor(), &event);
    }

    Outcome Look(bool result)
    {
        Outcome outcome;
        outcome.result = result;
        outcome.state = State();
        outcome.text = Editor() != nullptr ? Editor()->text() : QString();
        outcome.selected = opHandler->IsInputting() ? Editor()->selectedText() : QString();
        outcome.refreshCount = host.view.GetRedrawCount() - redrawCount;
        outcome.viewKeyCount = int(host.view.GetKeys().size() - viewKeyCount);
        for (const ActionViewInput& input : Inputs())
            outcome.values << QString("%1 %2 '%3'")
                                  .arg(input.kind)
                                  .arg(input.value)
                                  .arg(QString::fromStdWString(input.text));
        while (!host.warnings.IsEmpty())
        {
            const DebugWarning warning = host.warnings.TakeAny();
            outcome.warnings << Warning(warning.function, warning.message);
        }
        return outcome;
    }

    const KindRules& kind;
    Door door;
    Typed typed;
    ViewIs view;
    WindowId windowId;
    int redrawCount = 0;
    std::size_t viewKeyCount = 0;
};

/// Every code that has a meaning anywhere, and its neighbours.
std::vector<int> AllCodes()
{
    std::vector<int> codes{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab,       Qt::Key_Backtab,
                           Qt::Key_Escape, Qt::Key_Left,  Qt::Key_Backspace, Qt::Key_Delete,
                           Qt::Key_F5,     Qt::Key_Shift};
    for (int code = Qt::Key_Space; code <= 112; ++code)
        codes.push_back(code);
    for (int code = 186; code <= 191; ++code)
        codes.push_back(code);
    return codes;
}

/// The keys that arrive through a door.
std::vector<Key> AllKeys(Door door)
{
    std::vector<Key> keys;
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::KeyboardModifiers(Qt::AltModifier),
          Qt::ShiftModifier | Qt::AltModifier | Qt::ControlModifier})
    {
        for (const int code : AllCodes())
            keys.push_back({code, modifiers, QString(QChar(static_cast<ushort>(code))), false});
    }
    if (door == Door::View)
        return keys;
    for (const int code : AllCodes())
        keys.push_back({code, Qt::NoModifier, QString(QChar(static_cast<ushort>(code))), true});
    return keys;
}

/// What may be typed in a kind: nothing, and in each field a valid value, an invalid one and a raw
/// text.
std::vector<std::pair<const char*, Typed>> AllTyped(const KindRules& kind)
{
    std::vector<std::pair<const char*, Typed>> typed{
        {"nothing", {-1, "", false, false}},
        {"a number", {0, "12.5", false, true}},
        {"no number", {0, "abc", false, false}},
        {"raw text", {0, "abc", true, true}},
    };
    if (kind.fields.size() == 1)
        return typed;
    typed.push_back({"a second number", {1, "12.5", false, true}});
    typed.push_back({"no second number", {1, "abc", false, false}});
    typed.push_back({"raw text in the second field", {1, "abc", true, true}});
    return typed;
}

const std::pair<const char*, Door> Doors[]{
    {"key of the view", Door::View},
    {"key as an event", Door::Event},
    {"key of the editor", Door::Editor},
};

const std::pair<const char*, ViewIs> Views[]{
    {"view there", ViewIs::Found},
    {"view gone", ViewIs::Gone},
    {"view without widget", ViewIs::WithoutWidget},
};

}

class DimensionKeyMatrixTest : public QObject
{
    Q_OBJECT

private slots:
    void keysDoWhatTheKindIsTold_data();
    void keysDoWhatTheKindIsTold();
};

void DimensionKeyMatrixTest::keysDoWhatTheKindIsTold_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<Typed>("typed");
    QTest::addColumn<Door>("door");
    QTest::addColumn<ViewIs>("view");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (const auto& [typedName, typed] : AllTyped(AllKinds()[kind]))
        {
            for (const auto& [doorName, door] : Doors)
            {
                for (const auto& [viewName, view] : Views)
                    QTest::addRow("%s, %s, %s, %s", AllKinds()[kind].name, typedName, doorName,
                                  viewName)
                        << int(kind) << typed << door << view;
            }
        }
    }
}

/// All keys in one row, since a key takes no longer than naming a row.
void DimensionKeyMatrixTest::keysDoWhatTheKindIsTold()
{
    FETCH_KIND(rules);
    QFETCH(Typed, typed);
    QFETCH(Door, door);
    QFETCH(ViewIs, view);
    MatrixFixture f(rules, door, typed, view);
    const Rules expectations(rules, typed, view);

    f.Prepare();
    QStringList mismatches;
    for (const Key& key : AllKeys(door))
    {
        const Outcome before = f.Begin();
        const Outcome expected = expectations.Expect(door, key, before);
        const Outcome actual = f.Look(f.Press(key));
        if (actual.Describe() != expected.Describe())
            mismatches << key.Describe() + "\n  expected " + expected.Describe() + "\n  actual   " +
                              actual.Describe();
        if (!actual.IsLike(before))
            f.Prepare();
    }

    QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches.mid(0, 5).join("\n")));
}

}

VESK_TESTS(vesk::test::DimensionKeyMatrixTest);
#include "DimensionKeyMatrixTest.moc"
