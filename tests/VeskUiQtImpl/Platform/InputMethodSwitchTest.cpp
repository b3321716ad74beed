#include "Support/Platform/InputMethod.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

namespace vesk::test
{

VESK_EXPOSE(SavedContext, std::optional<InputContext>, TemporaryDimensionHandler,
            m_savedInputContext)

/// What a handler saved of the input method of the main window.
std::optional<InputContext> SavedBy(ITemporaryDimensionHandler& handler)
{
    return static_cast<TemporaryDimensionHandler&>(handler).*MemberOf(SavedContext());
}

/// A main window that accepts input methods, and handlers that switch them off.
struct InputMethodFixture
{
    InputMethodFixture() { SetTakesInputMethod(host.window, true); }

    OwnerPtr<ITemporaryDimensionHandler> CreateHandler() const
    {
        const LinearTemporaryDimensionContext context(Coordinate3d(), Vector3d(0, 0, 0),
                                                      Vector3d(30, 40, 0));
        return TemporaryDimensionHandlerFactory::GetInstance()->UpdateOrCreateHandler(&context,
                                                                                      nullptr);
    }

    bool IsOn() const { return TakesInputMethod(host.window); }

    HostFixture host;
};

class InputMethodSwitchTest : public QObject
{
    Q_OBJECT

private slots:
    void isOffAsLongAsAHandlerLives();
    void handlerKeepsWhatTheWindowHad();
    void laterHandlerKeepsWhatTheFirstOneFound();
    void handlerThatSwitchedNothingOffKeepsNothing();
    void isRestoredOnlyToWhatItWas();
    void staysOffWhenTheNewHandlerComesBeforeTheOldOneGoes();
    void staysOffWhenTheSecondHandlerGoesFirst();
    void isSwitchedByLaterHandlersToo();
    void withoutAUiManagerNothingIsSwitchedAndItIsReported();
    void withoutAMainWindowNothingIsSwitchedAndItIsReported();
    void withoutAMainWindowWidgetNothingIsSwitched();
    void handlerThatSwitchedNothingOffSwitchesNothingOn();
    void handlerThatOutlivesTheUiManagerReportsIt();
    void handlerThatLostTheWindowIsNotCountedAnyMore();
};

void InputMethodSwitchTest::isOffAsLongAsAHandlerLives()
{
    InputMethodFixture f;

    auto opHandler = f.CreateHandler();
    QVERIFY(!f.IsOn());

    opHandler.Reset();
    QVERIFY(f.IsOn());
}

void InputMethodSwitchTest::handlerKeepsWhatTheWindowHad()
{
    InputMethodFixture f;
    const auto opHandler = f.CreateHandler();
    QVERIFY(SavedBy(*opHandler).value_or(nullptr) != nullptr);
}

void InputMethodSwitchTest::laterHandlerKeepsWhatTheFirstOneFound()
{
    InputMethodFixture f;
    const auto opFirst = f.CreateHandler();

    const auto opSecond = f.CreateHandler();

    QVERIFY(SavedBy(*opSecond).has_value());
    QCOMPARE(*SavedBy(*opSecond), *SavedBy(*opFirst));
}

void InputMethodSwitchTest::handlerThatSwitchedNothingOffKeepsNothing()
{
    InputMethodFixture f;
    f.host.window.SetWindowId(0);

    const auto opHandler = f.CreateHandler();

    QVERIFY(!SavedBy(*opHandler).has_value());
}

void InputMethodSwitchTest::isRestoredOnlyToWhatItWas()
{
    InputMethodFixture f;
    SetTakesInputMethod(f.host.window, false);

    f.CreateHandler().Reset();

    QVERIFY(!f.IsOn());
}

void InputMethodSwitchTest::staysOffWhenTheNewHandlerComesBeforeTheOldOneGoes()
{
    InputMethodFixture f;
    auto opOld = f.CreateHandler();
    auto opNew = f.CreateHandler();

    opOld.Reset();
    QVERIFY(!f.IsOn());

    opNew.Reset();
    QVERIFY(f.IsOn());
}

void InputMethodSwitchTest::staysOffWhenTheSecondHandlerGoesFirst()
{
    InputMethodFixture f;
    auto opFirst = f.CreateHandler();

    f.CreateHandler().Reset();
    QVERIFY(!f.IsOn());

    opFirst.Reset();
    QVERIFY(f.IsOn());
}

void InputMethodSwitchTest::isSwitchedByLaterHandlersToo()
{
    InputMethodFixture f;
    f.CreateHandler().Reset();

    auto opHandler = f.CreateHandler();
    QVERIFY(!f.IsOn());

    opHandler.Reset();
    QVERIFY(f.IsOn());
}

void InputMethodSwitchTest::withoutAUiManagerNothingIsSwitchedAndItIsReported()
{
    InputMethodFixture f;
    f.host.window.SetManagerInstalled(false);

    auto opHandler = f.CreateHandler();
    EXPECT_WARNING(f.host.warnings, L"pUiMgr为空！", std::string(BaseClass) + "DisableIme");
    QVERIFY(f.IsOn());

    opHandler.Reset();
    EXPECT_WARNING(f.host.warnings, L"pUiMgr为空！", std::string(BaseClass) + "EnableIme");
}

void InputMethodSwitchTest::withoutAMainWindowNothingIsSwitchedAndItIsReported()
{
    InputMethodFixture f;
    f.host.window.SetNamedWindow(nullptr);

    auto opHandler = f.CreateHandler();
    EXPECT_WARNING(f.host.warnings, L"pUIMainWnd为空", std::string(BaseClass) + "DisableIme");
    QVERIFY(f.IsOn());

    opHandler.Reset();
    EXPECT_WARNING(f.host.warnings, L"pUIMainWnd为空", std::string(BaseClass) + "EnableIme");
}

void InputMethodSwitchTest::withoutAMainWindowWidgetNothingIsSwitched()
{
    InputMethodFixture f;
    f.host.window.SetWindowId(0);

    const auto opHandler = f.CreateHandler();

    QVERIFY(f.IsOn());
}

void InputMethodSwitchTest::handlerThatSwitchedNothingOffSwitchesNothingOn()
{
    InputMethodFixture f;
    SetTakesInputMethod(f.host.window, false);
    f.host.window.SetWindowId(0);
    auto opHandler = f.CreateHandler();
    f.host.window.SetWindowId(f.host.window.winId());
    SetTakesInputMethod(f.host.window, true);
    auto opOther = f.CreateHandler();
    QVERIFY(!f.IsOn());

    opHandler.Reset();
    QVERIFY(!f.IsOn());

    opOther.Reset();
    QVERIFY(f.IsOn());
}

void InputMethodSwitchTest::handlerThatOutlivesTheUiManagerReportsIt()
{
    InputMethodFixture f;
    auto opHandler = f.CreateHandler();
    f.host.window.SetManagerInstalled(false);

    opHandler.Reset();

    EXPECT_WARNING(f.host.warnings, L"pUiMgr为空！", std::string(BaseClass) + "EnableIme");
}

void InputMethodSwitchTest::handlerThatLostTheWindowIsNotCountedAnyMore()
{
    InputMethodFixture f;
    auto opHandler = f.CreateHandler();
    f.host.window.SetWindowId(0);
    opHandler.Reset();
    f.host.window.SetWindowId(f.host.window.winId());
    SetTakesInputMethod(f.host.window, true);

    f.CreateHandler().Reset();

    QVERIFY(f.IsOn());
}

}

VESK_TESTS(vesk::test::InputMethodSwitchTest);
#include "InputMethodSwitchTest.moc"
