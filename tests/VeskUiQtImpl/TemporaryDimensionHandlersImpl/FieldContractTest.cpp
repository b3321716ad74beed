#include "Input/KeyCode.h"

#include "Dimension/InputField.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/KindFixture.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"

using namespace vesk;
using namespace vesk::test;

namespace
{

/// A handler of a kind, under an action that records what is delivered.
struct ContractFixture : KindFixture
{
    explicit ContractFixture(const KindRules& kind) : KindFixture(kind.pCreateContext())
    {
        host.BeginAction();
    }

    /// Opens a field with a number. Returns false, and consumes a warning, if the handler has no
    /// such field.
    bool Open(InputState state, double value)
    {
        Inputs().clear();
        opHandler->EndInput();
        Type(state, QString::number(value, 'g', 17));
        const bool isOpen = State() == state;
        if (!isOpen)
            host.warnings.TakeAny();
        return isOpen;
    }

    /// Sends a key through the editor. Returns true if the handler committed the value with it.
    bool Press(int key)
    {
        FilterKey(key);
        return !Inputs().empty();
    }
};

/// Every key that has a meaning anywhere in an editor, and some more.
std::vector<int> AllKeys()
{
    std::vector<int> keys{Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Tab,       Qt::Key_Backtab,
                          Qt::Key_Escape, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Left,
                          Qt::Key_Home,   Qt::Key_F10,    Qt::Key_Shift};
    for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key)
        keys.push_back(key);
    return keys;
}

void AddFieldRows()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<InputState>("state");
    for (std::size_t i = 0; i < AllKinds().size(); ++i)
    {
        for (const InputState state : TypedStates)
            QTest::addRow("%s, %s", AllKinds()[i].name, JournalNameOf(state)) << int(i) << state;
    }
}

}

Q_DECLARE_METATYPE(vesk::InputState)

/// What the host assumes about the handlers of the library, and what these do.
class FieldContractTest final : public QObject
{
    Q_OBJECT

private slots:
    void keysTakeTheValueThatTheHostSaysTheyTake_data() { AddFieldRows(); }
    void keysTakeTheValueThatTheHostSaysTheyTake();
    void valuesAreTakenThatLieInTheHostsRange_data() { AddFieldRows(); }
    void valuesAreTakenThatLieInTheHostsRange();
    void keyThatOpensAFieldStandsInIt_data() { AddKindRows(); }
    void keyThatOpensAFieldStandsInIt();
};

void FieldContractTest::keysTakeTheValueThatTheHostSaysTheyTake()
{
    FETCH_KIND(rules);
    QFETCH(InputState, state);
    ContractFixture f(rules);
    const InputField field = FindInputField(f.opContext.Get(), state);
    if (!f.Open(state, 7.0))
    {
        QVERIFY(!field.takesWithSpace);
        QCOMPARE(field.next, InputState::IS_None);
        return;
    }

    for (const int key : AllKeys())
    {
        f.Open(state, 7.0);

        const bool isTaken = f.Press(key);

        QVERIFY2(isTaken == TakesValue(field, key), qPrintable(QString::number(key, 16)));
        if (!isTaken)
            continue;
        const InputMeaning meaning = FindInputMeaning(f.Inputs().front().kind);
        QCOMPARE(meaning.field, state);
        QCOMPARE(meaning.isCommitted, key != Qt::Key_Tab);
        QCOMPARE(f.State(), key == Qt::Key_Tab ? field.next : InputState::IS_None);
    }
}

void FieldContractTest::valuesAreTakenThatLieInTheHostsRange()
{
    FETCH_KIND(rules);
    QFETCH(InputState, state);
    ContractFixture f(rules);
    const Intervald range = FindInputField(f.opContext.Get(), state).range;
    const double size = range.GetMax() - range.GetMin();

    for (const double value : {range.GetMin(), range.GetMax(), range.GetMin() - size / 1000,
                               range.GetMax() + size / 1000, 0.0})
    {
        if (!f.Open(state, value))
            return;

        const bool isTaken = f.Press(Qt::Key_Return);

        QVERIFY2(isTaken == range.Contains(value), qPrintable(QString::number(value)));
    }
}

void FieldContractTest::keyThatOpensAFieldStandsInIt()
{
    FETCH_KIND(rules);
    ContractFixture f(rules);
    rules.ShowValuesIn(f.Data());

    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::KeypadModifier)})
    {
        for (int key = Qt::Key_Space; key <= Qt::Key_AsciiTilde; ++key)
        {
            const QString text = QString(QChar(key)).toLower();
            const QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
            const int code = ToVirtualKey(event);
            f.opHandler->EndInput();

            if (code != 0)
                f.opHandler->OnKeyDown(code, false, false, false);

            if (f.State() == InputState::IS_None)
                continue;
            QCOMPARE(f.Editor()->text(), text);
            QVERIFY(CanBeginValue(event));
        }
    }
    QVERIFY(f.Editor() != nullptr);
}

VESK_TESTS(FieldContractTest);
#include "FieldContractTest.moc"
