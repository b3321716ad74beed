#include "HostUi/UiApplication.h"

#include "Support/TestValues.h"
#include "Warnings/DebugMessageMgr.h"
#include "Warnings/IDebugWarningDisplayer.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <QLineEdit>
#include <QMenu>

#include <cstddef>
#include <memory>
#include <thread>

namespace vesk
{
namespace
{

class Window final : public IApplicationWindow
{
public:
    WindowId GetWindowId() const override { return 5; }
};

}

class UiApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void isInstalledWhileItLives();
    void namesTheMainWindow();
    void namesThePanes();

    void functionsAreCalledFromTheEventLoopInOrder();
    void aFunctionOfAnotherThreadIsCalledInThisOne();
    void aFunctionThatWaitsDiesWithTheApplication();
    void whatIsToBeDoneAtRestWaitsForTheTime();
    void whatIsToBeDoneAtRestComesAfterWhatWaits();
    void whatWaitsCanBeDiscarded();
    void noEventIsNothingToPost();
    void aLoopRunsUntilItIsLeft();
    void dialogsAreAllowedInTheThreadOfTheWindows();
    void noDialogIsAllowedWhileAWidgetIsPainted();
    void noDialogIsAllowedWhileAWidgetPaintsAnother();
    void theWarningsKnowTheEventLoopWhileItLives();
    void aKeyThatComesAfterAMenuHasClosedIsForTheFocus();
};

void UiApplicationTest::isInstalledWhileItLives()
{
    {
        const UiApplication application;
        QCOMPARE(IApplication::Get(), static_cast<const IApplication*>(&application));
        QCOMPARE(IUiManager::Get(), static_cast<const IUiManager*>(&application));
    }

    QVERIFY(IApplication::Get() == nullptr);
    QVERIFY(IUiManager::Get() == nullptr);
}

void UiApplicationTest::namesTheMainWindow()
{
    Window window;
    UiApplication application;
    QVERIFY(application.GetMainWindow() == nullptr);

    application.SetMainWindow(&window);
    QCOMPARE(application.GetMainWindow(), static_cast<IApplicationWindow*>(&window));

    application.SetMainWindow(nullptr);
    QVERIFY(application.GetMainWindow() == nullptr);
}

void UiApplicationTest::namesThePanes()
{
    UiApplication application;
    QVERIFY(application.GetDockManager() == nullptr);
    // Only the address matters; the panes are never accessed.
    std::max_align_t place{};
    auto* pPanes = reinterpret_cast<IDockManager*>(&place);

    application.SetDockManager(pPanes);
    QCOMPARE(application.GetDockManager(), pPanes);

    application.SetDockManager(nullptr);
    QVERIFY(application.GetDockManager() == nullptr);
}

void UiApplicationTest::functionsAreCalledFromTheEventLoopInOrder()
{
    UiApplication application;
    QString order;

    application.Post([&order] { order += 'a'; });
    application.Post([&order] { order += 'b'; });
    QCOMPARE(order, QString());
    QCoreApplication::sendPostedEvents();

    QCOMPARE(order, QString("ab"));
}

void UiApplicationTest::aFunctionOfAnotherThreadIsCalledInThisOne()
{
    UiApplication application;
    std::thread::id calledIn;

    std::thread([&] {
        application.Post([&calledIn] { calledIn = std::this_thread::get_id(); });
    }).join();
    QVERIFY(calledIn == std::thread::id());
    QCoreApplication::sendPostedEvents();

    QVERIFY(calledIn == std::this_thread::get_id());
}

void UiApplicationTest::aFunctionThatWaitsDiesWithTheApplication()
{
    bool isCalled = false;
    {
        UiApplication application;
        application.Post([&isCalled] { isCalled = true; });
        application.PostWhenIdle(std::chrono::milliseconds(0), [&isCalled] { isCalled = true; });
    }

    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();

    QVERIFY(!isCalled);
}

void UiApplicationTest::whatIsToBeDoneAtRestWaitsForTheTime()
{
    UiApplication application;
    qint64 calledAfter = -1;
    QElapsedTimer clock;
    clock.start();

    application.PostWhenIdle(std::chrono::milliseconds(120),
                             [&] { calledAfter = clock.elapsed(); });
    QCoreApplication::processEvents();
    QVERIFY(calledAfter == -1 || calledAfter >= 114);

    QTRY_VERIFY(calledAfter != -1);
    // A coarse timer may be 5 % early.
    QVERIFY2(calledAfter >= 114, qPrintable(QString::number(calledAfter)));
}

void UiApplicationTest::whatIsToBeDoneAtRestComesAfterWhatWaits()
{
    UiApplication application;
    QString order;

    application.PostWhenIdle(std::chrono::milliseconds(0), [&order] { order += 'i'; });
    QTimer::singleShot(0, this, [&order] { order += 't'; });
    application.Post([&order] { order += 'p'; });
    QTRY_COMPARE(order.size(), 3);

    QVERIFY2(order.endsWith(QLatin1Char('i')), qPrintable(order));
}

void UiApplicationTest::whatWaitsCanBeDiscarded()
{
    UiApplication application;
    bool isCalled = false;
    application.Post([&isCalled] { isCalled = true; });

    UiApplication::DiscardPostedEvents();
    QCoreApplication::sendPostedEvents();

    QVERIFY(!isCalled);
}

void UiApplicationTest::noEventIsNothingToPost()
{
    UiApplication application;

    application.PostEvent(nullptr);

    // Dereferences null if the event was posted.
    QCoreApplication::sendPostedEvents();
}

void UiApplicationTest::aLoopRunsUntilItIsLeft()
{
    UiApplication application;
    QString order;
    QTimer::singleShot(0, this, [&] {
        order += 'a';
        application.Quit();
        order += 'b';
    });

    application.Run();
    order += 'c';

    QCOMPARE(order, QString("abc"));
    // Reads freed memory if it still knows the loop.
    application.Quit();
}

void UiApplicationTest::dialogsAreAllowedInTheThreadOfTheWindows()
{
    const UiApplication application;
    bool isAllowedElsewhere = true;

    std::thread([&] { isAllowedElsewhere = application.IsDialogAllowed(); }).join();

    QVERIFY(application.IsDialogAllowed());
    QVERIFY(!isAllowedElsewhere);
}

/// Asks whether a dialog is allowed while it is being painted.
class Painted final : public QWidget
{
public:
    explicit Painted(const UiApplication& application) : m_application(application) {}

    QList<bool> answers;

protected:
    void paintEvent(QPaintEvent*) override { answers << m_application.IsDialogAllowed(); }

private:
    const UiApplication& m_application;
};

void UiApplicationTest::noDialogIsAllowedWhileAWidgetIsPainted()
{
    const UiApplication application;
    Painted widget(application);

    widget.grab();
    QCOMPARE(widget.answers, QList<bool>{false});
    QVERIFY(application.IsDialogAllowed());

    auto pGone = std::make_unique<Painted>(application);
    pGone->grab();
    pGone.reset();
    QVERIFY(application.IsDialogAllowed());
}

void UiApplicationTest::noDialogIsAllowedWhileAWidgetPaintsAnother()
{
    /// Paints another widget first.
    struct Outer final : QWidget
    {
        explicit Outer(const UiApplication& host) : application(host), inner(host) {}

        void paintEvent(QPaintEvent*) override
        {
            inner.grab();
            isAllowed = application.IsDialogAllowed();
        }

        const UiApplication& application;
        Painted inner;
        bool isAllowed = true;
    };
    const UiApplication application;
    Outer outer(application);

    outer.grab();

    QVERIFY(!outer.isAllowed);
    QVERIFY(application.IsDialogAllowed());
}

/// A dialog that records that it was shown.
class NotingFactory final : public NqUiInterfaceFactory
{
public:
    NotingFactory() { m_pFactory = this; }

    IPropertyWidget* GetPropertyWidget() override { return nullptr; }

    OwnerPtr<IDebugWarningDialogDisplayer> CreateDebugWarningDialogDisplayer() override
    {
        ++createdCount;
        return nullptr;
    }

    int createdCount = 0;
};

void UiApplicationTest::theWarningsKnowTheEventLoopWhileItLives()
{
    NotingFactory factory;
    DebugMessageMgr& manager = *DebugMessageMgr::GetDebugMessageMgr();
    manager.Reset();
    manager.SetAttended(true);
    const auto warn = [&manager](int line) {
        manager.ShowDebugWarn("File.cpp", line, "vesk::F::G", L"message", L"vesk-ui",
                              L"2026-11-21");
    };
    {
        const UiApplication application;
        std::thread([&] { warn(1); }).join();
        QCOMPARE(factory.createdCount, 0);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(factory.createdCount, 1);
    }

    std::thread([&] { warn(2); }).join();

    QCOMPARE(factory.createdCount, 2);
    manager.Reset();
}

void UiApplicationTest::aKeyThatComesAfterAMenuHasClosedIsForTheFocus()
{
    const UiApplication application;
    QLineEdit field;
    field.show();
    field.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&field, test::PatienceMs));
    QMenu menu(&field);
    menu.popup(QPoint());
    menu.close();

    QTest::keyClick(menu.windowHandle(), Qt::Key_7);

    QCOMPARE(field.text(), QString("7"));
}

}

VESK_TESTS(vesk::UiApplicationTest);
#include "UiApplicationTest.moc"
