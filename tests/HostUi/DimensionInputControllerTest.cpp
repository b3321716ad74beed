#include "HostUi/DimensionInputController.h"

#include "HostUi/TypingHandler.h"

#include "Command/ActionManager.h"
#include "Command/ICommandManager.h"
#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "HostUi/QtText.h"
#include "Support/HostFixture.h"

#include <QLabel>
#include <QMouseEvent>
#include <QTest>

#include <functional>

using namespace vesk;
using namespace vesk::test;

namespace
{

using ContextMaker = std::function<OwnerPtr<ITemporaryDimensionContext>()>;

OwnerPtr<ITemporaryDimensionContext> MakeLinear()
{
    return MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), Vector3d::Zero(),
                                                      Vector3d(30, 40, 0));
}

OwnerPtr<ITemporaryDimensionContext> MakeRadius()
{
    return MakeOwner<RadiusTemporaryDimensionContext>(Coordinate3d(), Vector3d::Zero(),
                                                      Vector3d(30, 0, 0), Vector3d(0, 30, 0));
}

OwnerPtr<ITemporaryDimensionContext> MakeCentralAngle()
{
    return MakeOwner<CentralAngleTemporaryDimensionContext>(Coordinate3d(), Vector3d::Zero(),
                                                            Vector3d(30, 0, 0), Vector3d(0, 30, 0),
                                                            Vector3d(0, 40, 0));
}

/// An action that does nothing but show dimensions.
class DimensionAction final : public IAction
{
public:
    explicit DimensionAction(const ContextMaker& makeContext) : m_makeContext(makeContext) {}

    std::wstring GetViewText() const override { return {}; }
    void OnBegin(IUiView*) override {}
    void OnMouseMove(const Vector3d&) override {}
    void OnClick(const Vector3d&) override {}
    OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const override
    {
        return m_makeContext();
    }
    bool ReplayPoint(const Vector3d&, const std::optional<int>&) override { return false; }

private:
    ContextMaker m_makeContext;
};

/// A view in which an action shows dimensions, and somebody at the keyboard.
struct InputFixture
{
    explicit InputFixture(const TypingScript& typing, const ContextMaker& makeContext = &MakeLinear)
        : script(typing)
    {
        host.window.show();
        auto opCommand = MakeOwner<Command>(
            L"Test", Command::Kind::Interactive, [makeContext](IUiView*, const CommandParameters&) {
                return OwnerPtr<IAction>(new DimensionAction(makeContext));
            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(&host.view, pCommand, {}, nullptr);
    }
    ~InputFixture() { ActionManager::Reset(); }

    InputFixture& Type(const QString& text)
    {
        for (const QChar character : text)
            Press(0, QString(character));
        return *this;
    }

    InputFixture& Press(int key, const QString& text = QString())
    {
        const int code = text.isEmpty() ? key : text.front().toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, text);
        if (Editor()->isVisible())
            QCoreApplication::sendEvent(Editor(), &press);
        else
            controller.OnViewKey(press);
        return *this;
    }

    InputFixture& PressShiftComma()
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Less, Qt::ShiftModifier, QStringLiteral("<"));
        controller.OnViewKey(press);
        return *this;
    }

    QLineEdit* Editor() const { return host.view.findChild<QLineEdit*>("Editor"); }

    /// The text of a note; none while it does not show.
    QString Note(const char* name) const
    {
        const auto* pNote = host.view.findChild<QLabel*>(QLatin1String(name));
        return pNote != nullptr && pNote->isVisible() ? pNote->text() : QString();
    }

    HostFixture host;
    TypingScript script;
    DimensionInputController controller;
    TypingHandlerFactory factory{host.view, script};
};

TypingScript Linear()
{
    TypingScript script;
    script.commitKeys = {Qt::Key_Space, Qt::Key_Tab};
    return script;
}

TypingScript CentralAngle()
{
    TypingScript script;
    script.state = InputState::IS_CentralAngle;
    return script;
}

}

/// What a handler hears of what people type, and what they see beside it.
class DimensionInputControllerTest final : public QObject
{
    Q_OBJECT

private slots:
    void plainNumberReachesTheHandlerUntouched()
    {
        InputFixture f(Linear());

        f.Type("007.5").Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("007.5"));
        QCOMPARE(ToQString(f.script.taken[0].typed.text), QString("007.5"));
    }

    void clearTextReachesTheHandlerAsItsNumber_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Space") << int(Qt::Key_Space);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
    }

    void clearTextReachesTheHandlerAsItsNumber()
    {
        QFETCH(int, key);
        InputFixture f(Linear());

        f.Type("10cm").Press(key);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("100"));
        QCOMPARE(ToQString(f.script.taken[0].typed.text), QString("10cm"));
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
    }

    void unclearTextIsRefusedInPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("key");

        QTest::newRow("thousands or decimals") << "1,000" << int(Qt::Key_Return);
        QTest::newRow("with Tab") << "1,000" << int(Qt::Key_Tab);
        QTest::newRow("with Space") << "1,000" << int(Qt::Key_Space);
        QTest::newRow("with Enter") << "1,000" << int(Qt::Key_Enter);
        QTest::newRow("no number") << "abc" << int(Qt::Key_Return);
        QTest::newRow("formula out of range") << "5-5" << int(Qt::Key_Return);
        QTest::newRow("number out of range") << "0" << int(Qt::Key_Return);
    }

    void unclearTextIsRefusedInPlace()
    {
        QFETCH(QString, text);
        QFETCH(int, key);
        InputFixture f(Linear());

        f.Type(text).Press(key);

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->text(), text);
        QCOMPARE(f.Editor()->selectedText(), text);
        QVERIFY(!f.controller.GetMessage().isEmpty());
        QCOMPARE(f.Note("InputRefusal"), f.controller.GetMessage());
    }

    void nextKeyTakesTheRefusalAway()
    {
        InputFixture f(Linear());

        f.Type("1,000").Press(Qt::Key_Return).Type("7");

        QCOMPARE(f.Editor()->text(), QString("7"));
        QCOMPARE(f.controller.GetMessage(), QString());
        QCOMPARE(f.Note("InputRefusal"), QString());
    }

    void endOfTheInputTakesTheRefusalAway()
    {
        InputFixture f(Linear());

        f.Type("1,000").Press(Qt::Key_Return);
        TemporaryDimensionMgr::GetInstance()->EndInput();
        f.Type("5");

        QCOMPARE(f.controller.GetMessage(), QString());
        QCOMPARE(f.Note("InputRefusal"), QString());
    }

    void textThatIsTakenAsATextIsLeftAlone()
    {
        TypingScript script = Linear();
        script.isRawTextInput = true;
        InputFixture f(script);

        f.Type("1,000cm").Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("1,000cm"));
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void textThatIsTakenAsATextHasNoValueBesideIt()
    {
        TypingScript script = Linear();
        script.isRawTextInput = true;
        InputFixture f(script);

        f.Type("10cm");

        QCOMPARE(f.Note("InputValue"), QString());
        QVERIFY(!f.controller.GetValue().has_value());
    }

    void spaceIsABlankWhereItTakesNoValue()
    {
        InputFixture f(CentralAngle(), &MakeCentralAngle);

        f.Type("(").Press(Qt::Key_Space, " ").Type("5)");

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.Editor()->text(), QString("( 5)"));
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void tabIsNotJudgedWhereItTakesNoValue()
    {
        TypingScript script;
        script.state = InputState::IS_Radius;
        InputFixture f(script, &MakeRadius);

        f.Type("1,000").Press(Qt::Key_Tab);

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void degreesAreClearInAnAngle()
    {
        InputFixture f(CentralAngle(), &MakeCentralAngle);

        f.Type("90d/4").Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("22.5"));
    }

    void shownValueIsConfirmedAsItIs()
    {
        InputFixture f(Linear());

        f.PressShiftComma().Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, f.script.currentValue);
        QVERIFY(f.script.taken[0].typed.isUnchanged);
    }

    void valueShownAfterTabIsConfirmedAsItIs()
    {
        InputFixture f(Linear());

        f.Type("2*3").Press(Qt::Key_Tab).Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(2));
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
        QCOMPARE(f.script.taken[1].text, f.script.currentValue);
        QVERIFY(f.script.taken[1].typed.isUnchanged);
    }

    void shownValueThatSomebodyTypedInIsTheirs()
    {
        InputFixture f(Linear());

        f.PressShiftComma().Type("+2").Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("52"));
        QVERIFY(!f.script.taken[0].typed.isUnchanged);
    }

    void letterOpensTheInputWithItself()
    {
        InputFixture f(Linear());

        f.Type("(2+3)").Press(Qt::Key_Return);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("5"));
    }

    void tabWithoutAnInputIsKeptFromTheWindow_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
    }

    void tabWithoutAnInputIsKeptFromTheWindow()
    {
        QFETCH(int, key);
        InputFixture f(Linear());
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);

        QVERIFY(f.controller.OnViewKey(press));
        ActionManager::Reset();
        QVERIFY(!f.controller.OnViewKey(press));
    }

    void clickTakesWhatIsClearOnly()
    {
        InputFixture f(Linear());

        f.Type("1,000");
        QVERIFY(!f.controller.Commit());
        f.Type("10cm");
        QVERIFY(f.controller.Commit());

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].text, QString("100"));
    }

    void valueStandsBesideAFormulaOnly()
    {
        InputFixture f(Linear());

        QCOMPARE(f.Type("10").Note("InputValue"), QString());
        QCOMPARE(f.Type("cm").Note("InputValue"), QString("= 100 mm"));
        QCOMPARE(f.Type("x").Note("InputValue"), QString());
    }

    void valueIsWhatTheTextComesTo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("hasValue");
        QTest::addColumn<double>("value");

        QTest::newRow("plain") << "12.5" << true << 12.5;
        QTest::newRow("formula") << "20+2" << true << 22.0;
        QTest::newRow("out of range") << "5e12" << true << 5e12;
        QTest::newRow("unclear") << "1,000" << false << 0.0;
        QTest::newRow("unfinished") << "20+" << false << 0.0;
    }

    void valueIsWhatTheTextComesTo()
    {
        QFETCH(QString, text);
        QFETCH(bool, hasValue);
        QFETCH(double, value);
        InputFixture f(Linear());

        f.Type(text);

        QCOMPARE(f.controller.GetValue().has_value(), hasValue);
        QCOMPARE(f.controller.GetValue().value_or(0.0), value);
    }

    void valueIsInTheUnitShown()
    {
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        InputFixture f(Linear());

        f.Type("1m");

        const std::optional<double> value = f.controller.GetValue();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
        QCOMPARE(value.value_or(0.0), 100.0);
    }

    void thereIsNoValueWithoutAnInput()
    {
        const InputFixture f(Linear());

        QVERIFY(!f.controller.GetValue().has_value());
        QCOMPARE(f.controller.GetMessage(), QString());
    }

    void stripTellsTheKeysOfTheField()
    {
        InputFixture f(Linear());

        QVERIFY(f.Type("5").Note("InputKeys").contains("角度"));
        QVERIFY(f.Press(Qt::Key_Tab).Note("InputKeys").contains("长度"));
    }

    void stripIsThereOnlyWhileItIsWanted()
    {
        InputFixture f(Linear());
        QVERIFY(f.controller.IsKeyStripShown());

        f.Type("5");
        f.controller.SetKeyStripShown(false);
        QCOMPARE(f.Note("InputKeys"), QString());
        f.Type("6");
        QCOMPARE(f.Note("InputKeys"), QString());
        f.controller.SetKeyStripShown(true);

        QVERIFY(!f.Note("InputKeys").isEmpty());
    }

    void notesVanishWithTheEditor()
    {
        InputFixture f(Linear());

        f.Type("10cm");
        TemporaryDimensionMgr::GetInstance()->EndInput();

        QCOMPARE(f.Note("InputValue"), QString());
        QCOMPARE(f.Note("InputKeys"), QString());
    }

    void notesTakeNeitherKeyboardNorMouse()
    {
        InputFixture f(Linear());

        f.Type("10cm").Type("x").Press(Qt::Key_Return);
        f.Type("10cm");

        const QList<QLabel*> notes = f.host.view.findChildren<QLabel*>();
        QCOMPARE(notes.size(), 3);
        for (const QLabel* pNote : notes)
        {
            QVERIFY(pNote->testAttribute(Qt::WA_TransparentForMouseEvents));
            QCOMPARE(pNote->focusPolicy(), Qt::NoFocus);
        }
    }

    void notesKeepOffTheCursor()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        const QPoint cursor = pStrip->geometry().center();

        QMouseEvent move(QEvent::MouseMove, cursor, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&f.host.view, &move);
        f.Type("+1m");

        QVERIFY(!pStrip->geometry().contains(cursor));
    }

    void notesFollowTheEditor()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");

        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 50)));

        QTRY_COMPARE(pStrip->pos(), QPoint(100, 80));
    }
};

QTEST_MAIN(DimensionInputControllerTest)
#include "DimensionInputControllerTest.moc"
