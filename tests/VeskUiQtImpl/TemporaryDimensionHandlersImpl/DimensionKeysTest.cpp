#include "TemporaryDimensionHandlersImpl/KindInputFixture.h"

#include "Support/TestValues.h"

namespace vesk::test
{
namespace
{

struct NamedKey
{
    const char* name;
    int code;
    const char* text = "";
    bool isEvent = false; ///< Otherwise a key of the view.
};

void AddKeyColumns()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isEvent");
}

/// Adds a row for each of the wanted kinds and each key.
void AddKeyRows(const std::vector<NamedKey>& keys, bool (*pIsWanted)(const KindRules&) = &IsAnyKind)
{
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (const NamedKey& key : keys)
        {
            if (pIsWanted(AllKinds()[kind]))
                QTest::addRow("%s, %s", AllKinds()[kind].name, key.name)
                    << int(kind) << key.code << key.text << key.isEvent;
        }
    }
}

template <KeyRule rule>
bool Has(const KindRules& kind)
{
    return kind.Has(rule);
}

template <KeyRule rule>
bool HasNot(const KindRules& kind)
{
    return !kind.Has(rule);
}

/// An event carries a text other than that of its key.
bool Press(KindInputFixture& f, int key, bool isEvent)
{
    return isEvent ? f.SendToHandler(key, Qt::NoModifier, "?")
                   : f.opHandler->OnKeyDown(key, false, false, false);
}

}

/// What keys do in every kind.
class DimensionKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void digitOpensTheFirstFieldWithItself_data();
    void digitOpensTheFirstFieldWithItself();
    void minusOpensTheFirstFieldAndIsNotConsumed_data();
    void minusOpensTheFirstFieldAndIsNotConsumed();
    void minusAsACharacterIsNoKeyOfTheView_data();
    void minusAsACharacterIsNoKeyOfTheView();
    void onlyAPressOpensAField_data();
    void onlyAPressOpensAField();
    void aRepeatedKeyIsAKey_data();
    void aRepeatedKeyIsAKey();
    void otherKeysOpenNothing_data();
    void otherKeysOpenNothing();
    void keysCommit_data();
    void keysCommit();
    void spaceIsTheEditors_data();
    void spaceIsTheEditors();
    void escapeGoesOnToTheView_data();
    void escapeGoesOnToTheView();
    void tabIsTheEditors_data();
    void tabIsTheEditors();
    void tabIsSwallowedWithoutInputToo_data();
    void tabIsSwallowedWithoutInputToo();
};

void DimensionKeysTest::digitOpensTheFirstFieldWithItself_data()
{
    AddKeyColumns();
    AddKeyRows({{"0", '0', "0"},
                {"9", '9', "9"},
                {"keypad 0", 96, "0"},
                {"keypad 9", 105, "9"},
                {"0 as an event", '0', "0", true},
                {"9 as an event", '9', "9", true},
                {"keypad 0 as an event", 96, "0", true},
                {"keypad 9 as an event", 105, "9", true}});
}

void DimensionKeysTest::digitOpensTheFirstFieldWithItself()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(bool, isEvent);
    KindInputFixture f(rules);

    QVERIFY(Press(f, key, isEvent));

    QCOMPARE(f.State(), rules.StartState());
    QCOMPARE(f.Editor()->text(), text);
    QVERIFY(!f.Editor()->hasSelectedText());
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.RefreshCount(), 1);
}

void DimensionKeysTest::minusOpensTheFirstFieldAndIsNotConsumed_data()
{
    AddKeyColumns();
    AddKeyRows({{"keyboard", 189},
                {"keypad", 109},
                {"keyboard as an event", 189, "", true},
                {"keypad as an event", 109, "", true},
                {"character as an event", '-', "", true}},
               &Has<OpensWithMinus>);
}

void DimensionKeysTest::minusOpensTheFirstFieldAndIsNotConsumed()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(bool, isEvent);
    KindInputFixture f(rules);

    QVERIFY(!Press(f, key, isEvent));

    QCOMPARE(f.State(), rules.StartState());
    QCOMPARE(f.Editor()->text(), QString("-"));
    QVERIFY(!f.Editor()->hasSelectedText());
    QCOMPARE(f.RefreshCount(), 2);
}

void DimensionKeysTest::minusAsACharacterIsNoKeyOfTheView_data()
{
    AddKindRows();
}

void DimensionKeysTest::minusAsACharacterIsNoKeyOfTheView()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);

    QVERIFY(!f.opHandler->OnKeyDown('-', false, false, false));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.RefreshCount(), 0);
}

void DimensionKeysTest::onlyAPressOpensAField_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("type");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        QTest::addRow("%s, release", AllKinds()[kind].name) << int(kind) << int(QEvent::KeyRelease);
        QTest::addRow("%s, question whether it is a shortcut", AllKinds()[kind].name)
            << int(kind) << int(QEvent::ShortcutOverride);
    }
}

void DimensionKeysTest::onlyAPressOpensAField()
{
    FETCH_KIND(rules);
    QFETCH(int, type);
    KindInputFixture f(rules);
    QKeyEvent event(QEvent::Type(type), '5', Qt::NoModifier, "5");

    QVERIFY(!f.Object().event(&event));

    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
    QCOMPARE(f.RefreshCount(), 0);
}

void DimensionKeysTest::aRepeatedKeyIsAKey_data()
{
    AddKindRows();
}

/// Two quick presses of one key are marked as a repetition.
void DimensionKeysTest::aRepeatedKeyIsAKey()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    QKeyEvent digit(QEvent::KeyPress, '5', Qt::NoModifier, "5", true);
    QKeyEvent commit(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);

    QVERIFY(f.Object().event(&digit));
    QCOMPARE(f.State(), rules.StartState());
    QCOMPARE(f.Editor()->text(), QString("5"));

    QVERIFY(!f.Object().eventFilter(f.Editor(), &commit));
    QCOMPARE(f.Inputs().size(), std::size_t(1));
}

void DimensionKeysTest::otherKeysOpenNothing_data()
{
    AddKeyColumns();
    AddKeyRows({{"A", 'A'}, {"P", 'P'}, {"Z", 'Z'}, {"comma", 188}, {"comma as a character", ','}},
               &HasNot<OpensWithLetters>);
    AddKeyRows({{"minus", 189}, {"keypad minus", 109}, {"minus as a character", '-'}},
               &HasNot<OpensWithMinus>);
}

void DimensionKeysTest::otherKeysOpenNothing()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    KindInputFixture f(rules);

    QVERIFY(!f.opHandler->OnKeyDown(key, false, false, true));
    QCOMPARE(f.RefreshCount(), 0);

    QVERIFY(!f.SendToHandler(key, Qt::ShiftModifier, "x"));
    QCOMPARE(f.RefreshCount(), 1);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void DimensionKeysTest::keysCommit_data()
{
    AddKeyColumns();
    AddKeyRows({{"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter}});
    AddKeyRows({{"Space", Qt::Key_Space}}, &Has<CommitsWithSpace>);
}

void DimensionKeysTest::keysCommit()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    KindInputFixture f(rules);
    f.Type(rules.StartState(), "12.5");

    QVERIFY(!f.FilterKey(key));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 12.5);
}

void DimensionKeysTest::spaceIsTheEditors_data()
{
    AddKindRows(&HasNot<CommitsWithSpace>);
}

void DimensionKeysTest::spaceIsTheEditors()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    f.Type(rules.StartState(), "12.5");

    QVERIFY(!f.FilterKey(Qt::Key_Space));

    QCOMPARE(f.State(), rules.StartState());
    QVERIFY(f.Inputs().empty());
    QTest::keyClick(f.Editor(), Qt::Key_Space);
    QCOMPARE(f.Editor()->text(), QString("12.5 "));
}

void DimensionKeysTest::escapeGoesOnToTheView_data()
{
    AddFieldRows(&Has<HandsEscapeOn>);
}

void DimensionKeysTest::escapeGoesOnToTheView()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "5");
    bool wasInputting = true;
    f.host.view.SetOnKey([&] { wasInputting = f.opHandler->IsInputting(); });

    QVERIFY(f.FilterKey(Qt::Key_Escape));

    QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_Escape});
    QVERIFY(!wasInputting);
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
}

void DimensionKeysTest::tabIsTheEditors_data()
{
    AddFieldRows(&HasNot<SwitchesWithTab>);
}

void DimensionKeysTest::tabIsTheEditors()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "5");

    QVERIFY(!f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), field.state);
    QVERIFY(f.Inputs().empty());
}

void DimensionKeysTest::tabIsSwallowedWithoutInputToo_data()
{
    AddFieldRows(&Has<SwitchesWithTab>);
}

void DimensionKeysTest::tabIsSwallowedWithoutInputToo()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "12.5");
    f.opHandler->EndInput();

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(f.Inputs().empty());
    QVERIFY(!f.opHandler->IsInputting());
}

}

VESK_TESTS(vesk::test::DimensionKeysTest);
#include "DimensionKeysTest.moc"
