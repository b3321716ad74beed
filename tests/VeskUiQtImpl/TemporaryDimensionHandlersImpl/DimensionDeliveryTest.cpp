#include "TemporaryDimensionHandlersImpl/KindInputFixture.h"
#include "TemporaryDimensionHandlersImpl/LifetimeFixture.h"

#include "Support/TestValues.h"

namespace vesk::test
{
namespace
{

bool SwitchesFields(const KindRules& kind)
{
    return kind.Has(SwitchesWithTab);
}

/// Another view, which the host knows.
class SecondView
{
public:
    explicit SecondView(HostFixture& host) : m_host(host), m_view(2, &host.window)
    {
        host.core.GetViewManager().AddView(&m_view);
    }
    ~SecondView()
    {
        ActionManager::Reset();
        m_host.core.GetViewManager().RemoveView(&m_view);
    }
    SecondView(const SecondView&) = delete;
    SecondView& operator=(const SecondView&) = delete;

    void MakeCurrent() { m_host.core.GetViewManager().SetCurrentView(&m_view); }
    const TestView& Get() const { return m_view; }

private:
    HostFixture& m_host;
    TestView m_view;
};

}

/// What is delivered to the action, and the moment it reflects.
class DimensionDeliveryTest : public QObject
{
    Q_OBJECT

private slots:
    void returnDeliversEveryDigit_data() { AddFieldRows(); }
    void returnDeliversEveryDigit();
    void tabDeliversEveryDigitAndNothingElse_data() { AddFieldRows(&SwitchesFields); }
    void tabDeliversEveryDigitAndNothingElse();
    void tabShowsWhatTheActionMadeOfTheOther_data() { AddFieldRows(&SwitchesFields); }
    void tabShowsWhatTheActionMadeOfTheOther();
    void returnTakesTheViewBeforeTheFocusGoes_data() { AddKindRows(); }
    void returnTakesTheViewBeforeTheFocusGoes();
    void escapeGoesToTheViewOfTheHandler_data()
    {
        AddKindRows([](const KindRules& kind) { return kind.Has(HandsEscapeOn); });
    }
    void escapeGoesToTheViewOfTheHandler();
};

void DimensionDeliveryTest::returnDeliversEveryDigit()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "7.1234567890123456");

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE_EXACTLY(f.Inputs()[0].value, 7.1234567890123456);
}

void DimensionDeliveryTest::tabDeliversEveryDigitAndNothingElse()
{
    FETCH_FIELD(kind, field);
    KindInputFixture f(kind);
    f.Type(field.state, "7.1234567890123456");

    f.FilterKey(Qt::Key_Tab);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE_EXACTLY(f.Inputs()[0].value, 7.1234567890123456);
    QVERIFY(!f.Inputs()[0].extra.has_value());
}

void DimensionDeliveryTest::tabShowsWhatTheActionMadeOfTheOther()
{
    FETCH_FIELD(kind, field);
    const FieldRules& other = kind.fields[field.state == kind.fields[0].state ? 1 : 0];
    KindInputFixture f(kind);
    f.Type(field.state, "5");
    f.host.actionLog.onInput = [&] { f.Data()[other.state].value = 77.5; };

    f.FilterKey(Qt::Key_Tab);

    QCOMPARE(f.Editor()->text(), QString::number(77.5, 'f', other.decimals));
}

void DimensionDeliveryTest::returnTakesTheViewBeforeTheFocusGoes()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    SecondView second(f.host);
    f.Type(rules.StartState(), "5");
    QTRY_VERIFY(f.Editor()->hasFocus());
    const EventTrap trap(f.Editor(), QEvent::FocusOut, [&second] { second.MakeCurrent(); });

    f.opHandler->OnEditorReturnPressed();
    const int redrawCount = second.Get().GetRedrawCount();
    f.SendToHandler(Qt::Key_F5);

    QCOMPARE(f.host.core.GetViewManager().GetCurrentUiView(), &second.Get());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(second.Get().GetRedrawCount(), redrawCount);
}

void DimensionDeliveryTest::escapeGoesToTheViewOfTheHandler()
{
    FETCH_KIND(rules);
    KindInputFixture f(rules);
    SecondView second(f.host);
    f.Type(rules.StartState(), "5");
    second.MakeCurrent();

    f.FilterKey(Qt::Key_Escape);

    QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_Escape});
    QCOMPARE(second.Get().GetKeys(), std::vector<int>());
}

}

VESK_TESTS(vesk::test::DimensionDeliveryTest);
#include "DimensionDeliveryTest.moc"
