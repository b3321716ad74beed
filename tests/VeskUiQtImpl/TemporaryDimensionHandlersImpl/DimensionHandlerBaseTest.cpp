#include "Support/ActiveWindow.h"
#include "Support/HostFixture.h"
#include "Support/HostValues.h"
#include "Support/Platform/InputMethod.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/TwoFields.h"
#include "VeskUiQtImpl/Platform/InputMethodSwitch.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKeys.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKind.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "VeskUiQtImpl/ViewLookup.h"

#include "Graphics/IGraphicsNode.h"

#include <QKeyEvent>
#include <QMetaMethod>

namespace vesk::test
{
namespace
{

/// What reached `event` of a handler as a key.
struct SeenKey
{
    QEvent::Type type = QEvent::None;
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    QString text;
    bool isRepeated = false;
    int count = 0;
};

/// A minimal handler that exposes what the common part stores and calls.
class Probe final : public TemporaryDimensionHandler
{
public:
    using TemporaryDimensionHandler::TemporaryDimensionHandler;

    using TemporaryDimensionHandler::m_data;
    using TemporaryDimensionHandler::m_firstValueValidator;
    using TemporaryDimensionHandler::m_InputState;
    using TemporaryDimensionHandler::m_isRawTextInput;
    using TemporaryDimensionHandler::m_opValidateHelper;
    using TemporaryDimensionHandler::m_pEditor;
    using TemporaryDimensionHandler::m_secondValueValidator;
    using TemporaryDimensionHandler::m_viewId;
    using TemporaryDimensionHandler::SendViewKey;

    OwnerPtr<IGraphicsNodeGroup> GenerateGraphics(const ITemporaryDimensionContext*) override
    {
        return nullptr;
    }
    void OnEditorReturnPressed() override {}
    bool OnKeyDown(int, bool, bool, bool) override { return false; }
    void ShowInputWidget(InputState, bool, bool, std::wstring) override {}

    void EndInput() override
    {
        ++endCount;
        TemporaryDimensionHandler::EndInput();
    }

    bool event(QEvent* pEvent) override
    {
        if (const auto* pKey = dynamic_cast<QKeyEvent*>(pEvent))
            seen = {pKey->type(), pKey->key(),          pKey->modifiers(),
                    pKey->text(), pKey->isAutoRepeat(), pKey->count()};
        return answer;
    }

    int endCount = 0;
    SeenKey seen;
    bool answer = true;
};

struct Fixture
{
    Fixture() { ShowActive(host.window); }

    HostFixture host;
};

}

/// The common part of the handlers by itself.
class DimensionHandlerBaseTest : public QObject
{
    Q_OBJECT

private slots:
    void worksInTheViewThatItIsGiven();
    void startsWithTheWidestBounds();
    void boundsAtTheStartBelongToTheRanges();
    void startsWithNothingTyped();
    void editorIsALineEditWithOneFlagAndNoMethods();
    void placingWithoutInputEndsItThroughTheInterface();
    void placingDuringAnInputEndsNothing();
    void editorThatIsMadeIsOpenAndEmpty();
    void editorThatCannotBeMadeLeavesTheFormerOne_data();
    void editorThatCannotBeMadeLeavesTheFormerOne();
    void onlyAnEditorOfTheRightNameAndClassIsShared();
    void newEditorReplacesTheLiveValidation();
    void inputMethodThatIsOffIsNotSwitchedOffAgain();
    void inputMethodIsSwitchedOnOnce();
    void inputMethodOfAWindowThatWentIsForgotten();
    void inputContextIsWhatTheFirstOneSaved();
    void viewKeyBecomesAKeyPress_data();
    void viewKeyBecomesAKeyPress();
    void viewKeyIsAnsweredAsTheEventIs();
    void viewsAreFoundByTheirIds();
    void withoutAViewManagerThereIsNoView();
};

void DimensionHandlerBaseTest::worksInTheViewThatItIsGiven()
{
    Fixture f;
    TestView other(2, &f.host.window);

    const Probe probe(&other);

    QCOMPARE(probe.m_viewId, std::uint32_t(2));
}

void DimensionHandlerBaseTest::startsWithTheWidestBounds()
{
    Fixture f;
    const Probe probe(&f.host.view);
    const NumberValidator<double> lengths(1e-6, 1e9, L"", true, true, 3);
    const NumberValidator<double> angles(-180, 180, L"", true, true, 3);

    QCOMPARE_EXACTLY(probe.m_firstValueValidator.GetBottom(), 1e-6);
    QCOMPARE_EXACTLY(probe.m_firstValueValidator.GetTop(), 1e9);
    QCOMPARE(probe.m_firstValueValidator.GetDecimals(), 3);
    QCOMPARE(probe.m_firstValueValidator.GetTip(), lengths.GetTip());
    QCOMPARE_EXACTLY(probe.m_secondValueValidator.GetBottom(), -180);
    QCOMPARE_EXACTLY(probe.m_secondValueValidator.GetTop(), 180);
    QCOMPARE(probe.m_secondValueValidator.GetDecimals(), 3);
    QCOMPARE(probe.m_secondValueValidator.GetTip(), angles.GetTip());
}

void DimensionHandlerBaseTest::boundsAtTheStartBelongToTheRanges()
{
    Fixture f;
    const Probe probe(&f.host.view);

    QVERIFY(probe.m_firstValueValidator.ValidateValue(1e-6));
    QVERIFY(probe.m_firstValueValidator.ValidateValue(1e9));
    QVERIFY(probe.m_secondValueValidator.ValidateValue(-180));
    QVERIFY(probe.m_secondValueValidator.ValidateValue(180));
}

void DimensionHandlerBaseTest::startsWithNothingTyped()
{
    Fixture f;
    Probe probe(&f.host.view);

    QCOMPARE(probe.m_InputState, InputState::IS_None);
    QVERIFY(probe.m_pEditor == nullptr);
    QVERIFY(probe.m_opValidateHelper == nullptr);
    QVERIFY(!probe.m_isRawTextInput);
    QVERIFY(!probe.IsInputting());
    QVERIFY(!probe.HasEditorFocus());
    QCOMPARE_EXACTLY(probe.m_data[InputState::IS_Length].value, 0.0);
    QCOMPARE(sizeof probe.m_InputState, std::size_t(4));
}

void DimensionHandlerBaseTest::editorIsALineEditWithOneFlagAndNoMethods()
{
    const QMetaObject& meta = TemporaryDimensionHandleEditor::staticMetaObject;

    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.className(), "vesk::TemporaryDimensionHandleEditor");
}

void DimensionHandlerBaseTest::placingWithoutInputEndsItThroughTheInterface()
{
    Fixture f;
    Probe probe(&f.host.view);

    probe.ResetEditorPosition();

    QCOMPARE(probe.endCount, 1);
}

void DimensionHandlerBaseTest::placingDuringAnInputEndsNothing()
{
    Fixture f;
    Probe probe(&f.host.view);
    probe.CreateEditorWidget();
    probe.m_InputState = InputState::IS_Height;
    const QPoint position = probe.m_pEditor->pos();

    probe.ResetEditorPosition();

    QCOMPARE(probe.endCount, 0);
    QVERIFY(probe.m_pEditor->pos() != position);
}

void DimensionHandlerBaseTest::editorThatIsMadeIsOpenAndEmpty()
{
    Fixture f;
    Probe probe(&f.host.view);

    probe.CreateEditorWidget();

    QVERIFY(probe.m_pEditor != nullptr);
    QVERIFY(probe.m_pEditor->isVisible());
    QVERIFY(probe.m_pEditor->text().isEmpty());
    QCOMPARE(probe.m_pEditor->objectName(), QString("ViewInputLineEdit"));
    QVERIFY(probe.m_opValidateHelper != nullptr);
    QCOMPARE(probe.m_opValidateHelper->parent(), &probe);
    QCOMPARE(probe.m_InputState, InputState::IS_None);
    QCOMPARE(probe.m_pEditor->toolTip(), QString());
    QTRY_VERIFY(probe.HasEditorFocus());
}

void DimensionHandlerBaseTest::editorThatCannotBeMadeLeavesTheFormerOne_data()
{
    QTest::addColumn<bool>("hasView");
    QTest::addColumn<QString>("message");
    QTest::newRow("no view") << false << QString::fromUtf8("pUIView为空。");
    QTest::newRow("a view without a widget") << true << QString::fromUtf8("pNqView为空。");
}

void DimensionHandlerBaseTest::editorThatCannotBeMadeLeavesTheFormerOne()
{
    QFETCH(bool, hasView);
    QFETCH(QString, message);
    Fixture f;
    Probe probe(&f.host.view);
    probe.CreateEditorWidget();
    const QPointer<TemporaryDimensionHandleEditor> pEditor = probe.m_pEditor;
    const LineEditValidateHelper* pHelper = probe.m_opValidateHelper.Get();
    f.host.view.SetWindowId(0);
    if (!hasView)
        f.host.core.GetViewManager().RemoveView(&f.host.view);

    probe.CreateEditorWidget();

    EXPECT_WARNING(f.host.warnings, message.toStdWString(),
                   "vesk::TemporaryDimensionHandler::CreateEditorWidget");
    QVERIFY(pEditor != nullptr);
    QCOMPARE(probe.m_pEditor.data(), pEditor.data());
    QCOMPARE(probe.m_opValidateHelper.Get(), pHelper);
    QCOMPARE(f.host.journal.GetUiObjects().size(), std::size_t(1));
}

void DimensionHandlerBaseTest::onlyAnEditorOfTheRightNameAndClassIsShared()
{
    Fixture f;
    QLineEdit plain(&f.host.view);
    plain.setObjectName("ViewInputLineEdit");
    TemporaryDimensionHandleEditor unnamed(&f.host.view);
    Probe probe(&f.host.view);

    probe.CreateEditorWidget();

    QVERIFY(probe.m_pEditor != nullptr);
    QVERIFY(static_cast<QLineEdit*>(probe.m_pEditor) != &plain);
    QVERIFY(probe.m_pEditor != &unnamed);
    QVERIFY(plain.isHidden() && unnamed.isHidden());
}

void DimensionHandlerBaseTest::newEditorReplacesTheLiveValidation()
{
    Fixture f;
    Probe probe(&f.host.view);
    probe.CreateEditorWidget();
    const QPointer<LineEditValidateHelper> pFirst(probe.m_opValidateHelper.Get());

    probe.CreateEditorWidget();

    QVERIFY(pFirst == nullptr);
    QCOMPARE(probe.findChildren<LineEditValidateHelper*>().size(), 1);
}

void DimensionHandlerBaseTest::inputMethodThatIsOffIsNotSwitchedOffAgain()
{
    Fixture f;
    SetTakesInputMethod(f.host.window, true);
    Probe probe(&f.host.view);

    probe.DisableIme();
    probe.EnableIme();

    QVERIFY(TakesInputMethod(f.host.window));
}

void DimensionHandlerBaseTest::inputMethodIsSwitchedOnOnce()
{
    Fixture f;
    SetTakesInputMethod(f.host.window, true);
    const Probe other(&f.host.view);
    Probe probe(&f.host.view);

    probe.EnableIme();
    probe.EnableIme();

    QVERIFY(!TakesInputMethod(f.host.window));
}

void DimensionHandlerBaseTest::inputMethodOfAWindowThatWentIsForgotten()
{
    Fixture f;
    SetTakesInputMethod(f.host.window, true);
    InputMethodSwitch::SwitchOff(f.host.window);
    QVERIFY(!TakesInputMethod(f.host.window));

    InputMethodSwitch::SwitchOn(nullptr);

    QVERIFY(!TakesInputMethod(f.host.window));
    QVERIFY(InputMethodSwitch::SwitchOff(f.host.window) == nullptr);
    InputMethodSwitch::SwitchOn(&f.host.window);
    QVERIFY(!TakesInputMethod(f.host.window));
}

void DimensionHandlerBaseTest::inputContextIsWhatTheFirstOneSaved()
{
    Fixture f;
    SetTakesInputMethod(f.host.window, true);

    const InputContext first = InputMethodSwitch::SwitchOff(f.host.window);
    const InputContext second = InputMethodSwitch::SwitchOff(f.host.window);

    QVERIFY(first != nullptr);
    QCOMPARE(second, first);
    InputMethodSwitch::SwitchOn(&f.host.window);
    QVERIFY(!TakesInputMethod(f.host.window));
    InputMethodSwitch::SwitchOn(&f.host.window);
    QVERIFY(TakesInputMethod(f.host.window));
}

void DimensionHandlerBaseTest::viewKeyBecomesAKeyPress_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("hasText");
    QTest::addColumn<QString>("text");
    QTest::newRow("digit") << int('7') << true << "7";
    QTest::newRow("first digit") << int('0') << true << "0";
    QTest::newRow("last digit") << int('9') << true << "9";
    QTest::newRow("letter") << int('M') << true << "m";
    QTest::newRow("first letter") << int('A') << true << "a";
    QTest::newRow("last letter") << int('Z') << true << "z";
    QTest::newRow("first digit of the keypad") << 96 << true << "0";
    QTest::newRow("last digit of the keypad") << 105 << true << "9";
    QTest::newRow("keypad digit") << 103 << true << "7";
    QTest::newRow("minus") << 189 << true << "-";
    QTest::newRow("keypad minus") << 109 << true << "-";
    QTest::newRow("comma") << 188 << true << "";
    QTest::newRow("digit of a kind without texts") << int('7') << false << "";
    QTest::newRow("keypad digit of a kind without texts") << 103 << false << "";
    QTest::newRow("minus of a kind without texts") << 189 << false << "";
}

void DimensionHandlerBaseTest::viewKeyBecomesAKeyPress()
{
    QFETCH(int, key);
    QFETCH(bool, hasText);
    QFETCH(QString, text);
    Fixture f;
    Probe probe(&f.host.view);
    DimensionKind kind = TwoFields();
    kind.hasKeyText = hasText;

    QVERIFY(probe.SendViewKey(kind, key, Qt::AltModifier | Qt::ShiftModifier));

    QCOMPARE(probe.seen.type, QEvent::KeyPress);
    QCOMPARE(probe.seen.key, key);
    QCOMPARE(probe.seen.modifiers, Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(probe.seen.text, text);
    QVERIFY(!probe.seen.isRepeated);
    QCOMPARE(probe.seen.count, 1);
}

void DimensionHandlerBaseTest::viewKeyIsAnsweredAsTheEventIs()
{
    Fixture f;
    Probe probe(&f.host.view);
    probe.answer = false;

    QVERIFY(!probe.SendViewKey(TwoFields(), '7', Qt::NoModifier));
    QCOMPARE(probe.seen.key, int('7'));

    probe.answer = true;
    QVERIFY(!probe.SendViewKey(TwoFields(), Qt::Key_Return, Qt::NoModifier));
    QCOMPARE(probe.seen.key, int('7'));
}

void DimensionHandlerBaseTest::viewsAreFoundByTheirIds()
{
    Fixture f;

    QCOMPARE(FindViewById(1), static_cast<IUiView*>(&f.host.view));
    QVERIFY(FindViewById(2) == nullptr);
    QCOMPARE(FindViewWidget(1), static_cast<QWidget*>(&f.host.view));
    QVERIFY(FindViewWidget(2) == nullptr);
    f.host.view.SetWindowId(0);
    QVERIFY(FindViewWidget(1) == nullptr);
    QCOMPARE(FindViewById(1), static_cast<IUiView*>(&f.host.view));
}

void DimensionHandlerBaseTest::withoutAViewManagerThereIsNoView()
{
    Fixture f;
    struct Access : IUiDocumentViewManager
    {
        using IUiDocumentViewManager::Set;
    };
    Probe probe(&f.host.view);
    Access::Set(nullptr);

    const bool hasView = FindViewById(1) != nullptr || FindViewWidget(1) != nullptr;
    probe.CreateEditorWidget();

    Access::Set(&f.host.core.GetViewManager());
    QVERIFY(!hasView);
    EXPECT_WARNING(f.host.warnings, L"pUIView为空。",
                   "vesk::TemporaryDimensionHandler::CreateEditorWidget");
    QCOMPARE(probe.m_viewId, std::uint32_t(1));
}

}

VESK_TESTS(vesk::test::DimensionHandlerBaseTest);
#include "DimensionHandlerBaseTest.moc"
