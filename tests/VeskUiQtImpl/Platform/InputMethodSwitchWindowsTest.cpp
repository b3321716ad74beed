#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/TestValues.h"

#include <windows.h>

#include <imm.h>

namespace vesk::test
{

/// The input context of a window, not retained; null for none.
HIMC ContextOf(const QWidget& window)
{
    auto pNative = reinterpret_cast<HWND>(window.winId());
    HIMC context = ImmGetContext(pNative);
    if (context != nullptr)
        ImmReleaseContext(pNative, context);
    return context;
}

/// An input context of its own for a window, for as long as it lives.
class OwnContext
{
public:
    explicit OwnContext(const QWidget& window)
        : m_window(reinterpret_cast<HWND>(window.winId())), m_context(ImmCreateContext()),
          m_previous(ImmAssociateContext(m_window, m_context))
    {}
    ~OwnContext()
    {
        ImmAssociateContext(m_window, m_previous);
        ImmDestroyContext(m_context);
    }
    OwnContext(const OwnContext&) = delete;
    OwnContext& operator=(const OwnContext&) = delete;

    HIMC Get() const { return m_context; }

private:
    HWND m_window;
    HIMC m_context;
    HIMC m_previous;
};

class InputMethodSwitchWindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void theContextIsGoneWhileAHandlerLivesAndTheSameOneComesBack();
    void theContextComesBackWithTheLastHandlerOnly();
    void aWindowWithoutContextIsLeftWithoutOne();
};

void InputMethodSwitchWindowsTest::theContextIsGoneWhileAHandlerLivesAndTheSameOneComesBack()
{
    HandlerFixture f;
    f.opHandler.Reset();
    const OwnContext own(f.host.window);
    QVERIFY(own.Get() != nullptr);
    QCOMPARE(ContextOf(f.host.window), own.Get());

    auto opHandler = f.CreateHandler();
    QVERIFY(ContextOf(f.host.window) == nullptr);

    opHandler.Reset();
    QCOMPARE(ContextOf(f.host.window), own.Get());
}

void InputMethodSwitchWindowsTest::theContextComesBackWithTheLastHandlerOnly()
{
    HandlerFixture f;
    f.opHandler.Reset();
    const OwnContext own(f.host.window);
    auto opOld = f.CreateHandler();
    auto opNew = f.CreateHandler();

    opOld.Reset();
    QVERIFY(ContextOf(f.host.window) == nullptr);

    opNew.Reset();
    QCOMPARE(ContextOf(f.host.window), own.Get());
}

void InputMethodSwitchWindowsTest::aWindowWithoutContextIsLeftWithoutOne()
{
    HandlerFixture f;
    f.opHandler.Reset();
    ImmAssociateContext(reinterpret_cast<HWND>(f.host.window.winId()), nullptr);

    f.CreateHandler().Reset();

    QVERIFY(ContextOf(f.host.window) == nullptr);
}

}

VESK_TESTS(vesk::test::InputMethodSwitchWindowsTest);
#include "InputMethodSwitchWindowsTest.moc"
