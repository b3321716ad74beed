#include "Control/ProgressBarDefinition.h"

#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"

#include <memory>

using Setter = void (*)(vesk::ProgressBarDefinition&);
Q_DECLARE_METATYPE(Setter)

namespace vesk
{

using Bar = ProgressBarDefinition;

class ProgressBarDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void startsAtZeroWithItsTextAndHundredPixelsWide();
    void keepsWhatIsSet();
    void valueOutsideTheRangeIsKept_data();
    void valueOutsideTheRangeIsKept();
    void aChangeRaisesOneEventAndAnEqualValueNone_data();
    void aChangeRaisesOneEventAndAnEqualValueNone();
    void theValueIsRightWhenTheEventIsRaised();
    void aHandlerMayDestroyIt();
};

void ProgressBarDefinitionTest::startsAtZeroWithItsTextAndHundredPixelsWide()
{
    const Bar bar(L"Progress");

    QCOMPARE(bar.GetId(), std::wstring(L"Progress"));
    QCOMPARE(bar.GetValue(), 0);
    QVERIFY(bar.IsTextVisible());
    QCOMPARE(bar.GetWidth(), 100);
}

void ProgressBarDefinitionTest::keepsWhatIsSet()
{
    Bar bar(L"Progress");

    bar.SetValue(42);
    bar.SetTextVisible(false);
    bar.SetWidth(250);

    QCOMPARE(bar.GetValue(), 42);
    QVERIFY(!bar.IsTextVisible());
    QCOMPARE(bar.GetWidth(), 250);
}

void ProgressBarDefinitionTest::valueOutsideTheRangeIsKept_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("below") << -1;
    QTest::newRow("above") << 101;
}

void ProgressBarDefinitionTest::valueOutsideTheRangeIsKept()
{
    QFETCH(int, value);
    Bar bar(L"Progress");

    bar.SetValue(value);

    QCOMPARE(bar.GetValue(), value);
}

void ProgressBarDefinitionTest::aChangeRaisesOneEventAndAnEqualValueNone_data()
{
    QTest::addColumn<Setter>("set");
    QTest::newRow("value") << Setter{[](Bar& b) { b.SetValue(50); }};
    QTest::newRow("text") << Setter{[](Bar& b) { b.SetTextVisible(false); }};
    QTest::newRow("width") << Setter{[](Bar& b) { b.SetWidth(20); }};
}

void ProgressBarDefinitionTest::aChangeRaisesOneEventAndAnEqualValueNone()
{
    QFETCH(Setter, set);
    Bar bar(L"Progress");
    const ChangeRecorder recorder(*bar.GetControlDefinitionChangeEvent());

    set(bar);
    QCOMPARE(recorder.GetCount(), 1);
    QCOMPARE(recorder.GetChanges().front().type,
             int{ControlDefinitionChangeEventType::PropertyChanged});
    set(bar);

    QCOMPARE(recorder.GetCount(), 1);
}

void ProgressBarDefinitionTest::theValueIsRightWhenTheEventIsRaised()
{
    Bar bar(L"Progress");
    ChangeRecorder recorder(*bar.GetControlDefinitionChangeEvent());
    int inside = -1;
    recorder.Then([&] { inside = bar.GetValue(); });

    bar.SetValue(75);

    QCOMPARE(inside, 75);
}

void ProgressBarDefinitionTest::aHandlerMayDestroyIt()
{
    auto pBar = std::make_unique<Bar>(L"Progress");
    ChangeRecorder recorder(*pBar->GetControlDefinitionChangeEvent());
    recorder.Then([&] { pBar.reset(); });

    pBar->SetValue(100);

    QCOMPARE(recorder.GetCount(), 1);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ProgressBarDefinitionTest);
#include "ProgressBarDefinitionTest.moc"
