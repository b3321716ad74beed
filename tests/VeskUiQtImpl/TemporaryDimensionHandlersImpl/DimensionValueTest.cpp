#include "TemporaryDimensionHandlersImpl/KindInputFixture.h"

#include "Support/TestValues.h"

Q_DECLARE_METATYPE(vesk::InputState)

namespace vesk::test
{
namespace
{

bool SwitchesFields(const KindRules& kind)
{
    return kind.Has(SwitchesWithTab);
}

/// The field to which Tab leads.
const FieldRules& Next(const KindRules& kind, const FieldRules& field)
{
    return field.state == kind.fields[0].state ? kind.fields[1] : kind.fields[0];
}

/// A key that commits the typed value, in the wanted kinds.
struct Committer
{
    const char* name;
    int key;
    bool (*pIsKeyOf)(const KindRules&);
};

const Committer Committers[]{
    {"Return", Qt::Key_Return, &IsAnyKind},
    {"Tab", Qt::Key_Tab, &SwitchesFields},
};

}

/// What fields show, and what they deliver, in every kind.
class DimensionValueTest : public QObject
{
    Q_OBJECT

private slots:
    void fieldShowsTextOrValue_data();
    void fieldShowsTextOrValue();
    void returnDeliversTheValueAfterTheInput_data();
    void returnDeliversTheValueAfterTheInput();
    void tabDeliversOneAndShowsTheOther_data();
    void tabDeliversOneAndShowsTheOther();
    void keysRefuseWhatIsNoNumberInRange_data();
    void keysRefuseWhatIsNoNumberInRange();
    void returnTakesWhatIsInRange_data();
    void returnTakesWhatIsInRange();
    void tabUnmarksTheEditor_data();
    void tabUnmarksTheEditor();
    void liveMarkIsThatOfTheField_data();
    void liveMarkIsThatOfTheField();
    void numbersAreThoseOfNoCountry_data();
    void numbersAreThoseOfNoCountry();
    void keysDeliverRawText_data();
    void keysDeliverRawText();
    void rawTextIsDeliveredToTheLetter_data();
    void rawTextIsDeliveredToTheLetter();
    void rawTextWithoutInputLeavesTheValidationAlone_data();
    void rawTextWithoutInputLeavesTheValidationAlone();
    void rawTextInAWrongStateEndsTheValidationToo_data();
    void rawTextInAWrongStateEndsTheValidationToo();
};

void DimensionValueTest::fieldShowsTextOrValue_data()
{
    QTest::addColumn<KindField>("kindField");
    QTest::addColumn<bool>("editorReady");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isSelected");
    for (const KindField& row : AllFields())
    {
        const FieldRules& field = *row.pField;
        const bool isAlways = field.selected == Selected::Always;
        const bool isWhenOpen = field.selected != Selected::Never;
        const QString value = field.ShownText();
        const QString opening = field.isOpenedWithText ? "7" : value;
        const auto add = [&row](const char* name) -> QTestData& {
            return QTest::addRow("%s, %s, %s", row.pKind->name, row.pField->name, name) << row;
        };
        add("new editor, given text") << false << true << "7" << isAlways;
        add("new editor") << false << false << opening << isAlways;
        add("open editor, given text") << true << true << "7" << isWhenOpen;
        add("open editor") << true << false << value << isWhenOpen;
    }
}

void DimensionValueTest::fieldShowsTextOrValue()
{
    FETCH_FIELD(kind, field);
    QFETCH(bool, editorReady);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    QFETCH(bool, isSelected);
    KindInputFixture f(kind);
    f.Type(kind.StartState(), "1");

    f.Handler().ShowInputWidget(field.state, editorReady, useGivenText, L"7");

    QCOMPARE(f.State(), field.state);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), isSelected ? text : QString());
    QCOMPARE(f.Editor()->cursorPosition(), text.size());
}

void DimensionValueTest::returnDeliversTheValueAfterTheInput_data()
{
    AddFieldRows();
}

void DimensionValueTest::returnDeliversTheValueAfterTheInput()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "12.5");
    bool wasInputting = true;
    bool wasVisible = true;
    f.host.actionLog.onInput = [&] {
        wasInputting = f.opHandler->IsInputting();
        wasVisible = f.Editor()->isVisible();
    };

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, field.returnKind);
    QCOMPARE(f.Inputs()[0].value, 12.5);
    QVERIFY(f.Inputs()[0].text.empty());
    QVERIFY(!f.Inputs()[0].extra.has_value());
    QVERIFY(!wasInputting);
    QVERIFY(!wasVisible);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
}

void DimensionValueTest::tabDeliversOneAndShowsTheOther_data()
{
    AddFieldRows(&SwitchesFields);
}

void DimensionValueTest::tabDeliversOneAndShowsTheOther()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "12.5");
    InputState stateInside = InputState::IS_None;
    f.host.actionLog.onInput = [&] { stateInside = f.State(); };

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, field.tabKind);
    QCOMPARE(f.Inputs()[0].value, 12.5);
    QVERIFY(f.Inputs()[0].text.empty());
    QCOMPARE(stateInside, field.state);
    QCOMPARE(f.State(), Next(kind, field).state);
    QCOMPARE(f.Editor()->text(), Next(kind, field).ShownText());
    QCOMPARE(f.Editor()->selectedText(), Next(kind, field).ShownText());
    QVERIFY(f.Editor()->isVisible());
}

void DimensionValueTest::keysRefuseWhatIsNoNumberInRange_data()
{
    QTest::addColumn<KindField>("kindField");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    for (const Committer& committer : Committers)
    {
        for (const KindField& row : AllFields(committer.pIsKeyOf))
        {
            const Intervald& range = row.pField->range;
            const auto add = [&](const char* name, const QString& text) {
                QTest::addRow("%s, %s, %s, %s", row.pKind->name, row.pField->name, committer.name,
                              name)
                    << row << committer.key << text;
            };
            add("below", QString::number(range.GetMin() - 0.1));
            add("above", QString::number(range.GetMax() + 0.1));
            add("letters", "abc");
            add("empty", "");
            add("sign only", "-");
            add("not a number", "nan");
            add("infinite", "inf");
        }
    }
}

void DimensionValueTest::keysRefuseWhatIsNoNumberInRange()
{
    FETCH_FIELD(kind, field);
    QFETCH(int, key);
    QFETCH(QString, text);
    KindInputFixture f(kind);
    f.Narrow();
    f.Type(field.state, text);

    QTest::keyClick(f.Editor(), Qt::Key(key));

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), field.state);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), text);
    QVERIFY(f.Editor()->isVisible());
    QVERIFY(!f.Editor()->toolTip().isEmpty());
}

void DimensionValueTest::returnTakesWhatIsInRange_data()
{
    QTest::addColumn<KindField>("kindField");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    for (const KindField& row : AllFields())
    {
        const Intervald& range = row.pField->range;
        const auto add = [&](const char* name, const QString& text, double value) {
            QTest::addRow("%s, %s, %s", row.pKind->name, row.pField->name, name)
                << row << text << value;
        };
        add("bottom", QString::number(range.GetMin()), range.GetMin());
        add("top", QString::number(range.GetMax()), range.GetMax());
        add("exponent", "1e1", 10.0);
        add("sign", "+7", 7.0);
        if (range.Contains(0.0))
            add("zero", "0", 0.0);
    }
}

void DimensionValueTest::returnTakesWhatIsInRange()
{
    FETCH_FIELD(kind, field);
    QFETCH(QString, text);
    QFETCH(double, value);
    KindInputFixture f(kind);
    f.Narrow();
    f.Type(field.state, text);

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, value);
}

void DimensionValueTest::tabUnmarksTheEditor_data()
{
    AddFieldRows(&SwitchesFields);
}

void DimensionValueTest::tabUnmarksTheEditor()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Narrow();
    const double outOfRange = 60;
    f.Data()[Next(kind, field).state].value = outOfRange;
    f.Type(field.state, "6");

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.Editor()->text().toDouble(), outOfRange);
    QCOMPARE(f.Editor()->toolTip(), QString());
}

void DimensionValueTest::liveMarkIsThatOfTheField_data()
{
    AddFieldRows();
}

void DimensionValueTest::liveMarkIsThatOfTheField()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Narrow();
    f.Type(field.state, QString::number(field.range.GetMax() + 0.5));

    f.opHandler->OnEditorReturnPressed();
    QVERIFY(!f.Editor()->toolTip().isEmpty());

    f.Editor()->setText(QString::number(field.range.GetMin()));
    QCOMPARE(f.Editor()->toolTip(), QString());
}

/// Uses the number format of another country during its lifetime.
class Country
{
public:
    explicit Country(const QLocale& locale) { QLocale::setDefault(locale); }
    ~Country() { QLocale::setDefault(m_before); }
    Country(const Country&) = delete;
    Country& operator=(const Country&) = delete;

private:
    QLocale m_before;
};

void DimensionValueTest::numbersAreThoseOfNoCountry_data()
{
    AddFieldRows();
}

void DimensionValueTest::numbersAreThoseOfNoCountry()
{
    FETCH_FIELD(kind, field);
    const Country germany(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(QLocale().toString(1.5), QString("1,5"));
    KindInputFixture f(kind);
    f.Data()[field.state].value = 1234.5;
    f.Type(field.state, "7,5");

    f.opHandler->OnEditorReturnPressed();
    // Where text that is not a number counts as 0, that is not a valid length.
    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.Editor()->selectedText(), QString("7,5"));

    f.Handler().ShowInputWidget(field.state, true, false, L"");
    QCOMPARE(f.Editor()->text(), QString::number(1234.5, 'f', field.decimals));
    f.Editor()->setText("7.5");
    f.opHandler->OnEditorReturnPressed();
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 7.5);
}

void DimensionValueTest::keysDeliverRawText_data()
{
    QTest::addColumn<KindField>("kindField");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("deliveredKind");
    QTest::addColumn<InputState>("stateAfter");
    for (const KindField& row : AllFields())
        QTest::addRow("%s, %s, Return", row.pKind->name, row.pField->name)
            << row << int(Qt::Key_Return) << row.pField->returnKind << InputState::IS_None;
    for (const KindField& row : AllFields(&SwitchesFields))
        QTest::addRow("%s, %s, Tab", row.pKind->name, row.pField->name)
            << row << int(Qt::Key_Tab) << row.pField->tabKind
            << Next(*row.pKind, *row.pField).state;
}

void DimensionValueTest::keysDeliverRawText()
{
    FETCH_FIELD(kind, field);
    QFETCH(int, key);
    QFETCH(int, deliveredKind);
    QFETCH(InputState, stateAfter);
    KindInputFixture f(kind);
    f.Object().setProperty("rawTextInput", true);
    f.Type(field.state, "abc");
    QVERIFY(f.IsValidatedLive());

    QTest::keyClick(f.Editor(), Qt::Key(key));

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, deliveredKind);
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QCOMPARE(f.Inputs()[0].text, std::wstring(L"abc"));
    QCOMPARE(f.State(), stateAfter);
    QVERIFY(!f.IsValidatedLive());
}

void DimensionValueTest::rawTextIsDeliveredToTheLetter_data()
{
    QTest::addColumn<KindField>("kindField");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    for (const KindField& row : AllFields())
    {
        const auto add = [&row](const char* name, const QString& text, double value) {
            QTest::addRow("%s, %s, %s", row.pKind->name, row.pField->name, name)
                << row << text << value;
        };
        add("a number out of range", "-1e30", -1e30);
        add("a number with zeros", "007.50", 7.5);
        add("blanks and capitals", "  10 CM ", 0.0);
        add("signs of all kinds", QString::fromUtf8("½·9′ \"ß¢"), 0.0);
        add("nothing", "", 0.0);
    }
}

void DimensionValueTest::rawTextIsDeliveredToTheLetter()
{
    FETCH_FIELD(kind, field);
    QFETCH(QString, text);
    QFETCH(double, value);
    KindInputFixture f(kind);
    f.Handler().SetRawTextInput(true);
    f.Type(field.state, text);

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].text, text.toStdWString());
    QCOMPARE_EXACTLY(f.Inputs()[0].value, value);
    QVERIFY(!f.Inputs()[0].extra.has_value());
    QVERIFY(f.Handler().IsRawTextInput());
}

void DimensionValueTest::rawTextWithoutInputLeavesTheValidationAlone_data()
{
    AddKindRows();
}

void DimensionValueTest::rawTextWithoutInputLeavesTheValidationAlone()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    f.Handler().SetRawTextInput(true);
    f.Type(rules.StartState(), "abc");
    f.opHandler->EndInput();

    f.FilterKey(Qt::Key_Return);
    f.FilterKey(Qt::Key_Tab);

    QVERIFY(f.IsValidatedLive());
    QVERIFY(f.Inputs().empty());
}

void DimensionValueTest::rawTextInAWrongStateEndsTheValidationToo_data()
{
    AddKindRows();
}

void DimensionValueTest::rawTextInAWrongStateEndsTheValidationToo()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    f.Handler().SetRawTextInput(true);
    f.Type(rules.StartState(), "abc");
    f.SetState(InputState(7));

    f.opHandler->OnEditorReturnPressed();

    EXPECT_WARNING(f.host.warnings, rules.wrongState, rules.NameOf("OnEditorReturnPressed"));
    QVERIFY(!f.IsValidatedLive());
    QVERIFY(f.Inputs().empty());
}

}

VESK_TESTS(vesk::test::DimensionValueTest);
#include "DimensionValueTest.moc"
