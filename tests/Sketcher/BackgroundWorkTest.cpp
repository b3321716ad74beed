#include "BackgroundWork.h"

#include "ReadingMonitor.h"

#include "Control/ProgressBarDefinition.h"
#include "Support/TestValues.h"

#include <QCloseEvent>
#include <QDialog>
#include <QDockWidget>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QVector>
#include <QtTest/qtestspontaneevent.h>

#include <atomic>
#include <stdexcept>
#include <thread>

namespace
{

struct WindowFixture
{
    WindowFixture()
    {
        window.setMenuWidget(new QPushButton);
        window.show();
    }

    QMainWindow window;
    vesk::ProgressBarDefinition progress{L"progress"};
};

/// What a progress bar shows while the window lives: each value above zero once.
class ShownValue final : public QObject
{
public:
    explicit ShownValue(const vesk::ProgressBarDefinition& bar) : m_bar(bar) { startTimer(0); }

    /// In the other thread: reports the progress until it is shown.
    void AdvanceTo(int percent, WorkProgress& progress) const
    {
        while (m_last != percent && progress.Advance(percent / 100.0))
            std::this_thread::yield();
    }

    QVector<int> whileVisible;

protected:
    void timerEvent(QTimerEvent*) override
    {
        const int value = m_bar.GetValue();
        if (!m_bar.IsVisible() || value == 0 || m_last.exchange(value) == value)
            return;
        whileVisible.append(value);
    }

private:
    const vesk::ProgressBarDefinition& m_bar;
    std::atomic<int> m_last{0};
};

/// Counts what is dragged over it and dropped.
class DropTarget final : public QWidget
{
public:
    DropTarget() { setAcceptDrops(true); }

    int eventCount = 0;

protected:
    void dragEnterEvent(QDragEnterEvent*) override { ++eventCount; }
    void dropEvent(QDropEvent*) override { ++eventCount; }
};

/// Waits in the other thread until the window's thread has done something, or cancels.
void WaitFor(const std::atomic<bool>& isDone, WorkProgress& progress)
{
    while (!isDone && progress.Advance(0.25))
        std::this_thread::yield();
}

}

class BackgroundWorkTest final : public QObject
{
    Q_OBJECT

private slots:
    void theWindowLivesMeanwhile()
    {
        WindowFixture f;
        ShownValue shown(f.progress);

        const bool isWhole = RunInBackground(
            f.window, &f.progress, [&](WorkProgress& progress) { shown.AdvanceTo(25, progress); });

        QVERIFY(isWhole);
        QCOMPARE(shown.whileVisible, QVector<int>{25});
        QVERIFY(!f.progress.IsVisible());
        QVERIFY(f.window.menuWidget()->isEnabled());
    }

    void progressGrowsWithTheWork()
    {
        WindowFixture f;
        ShownValue shown(f.progress);

        RunInBackground(f.window, &f.progress, [&](WorkProgress& progress) {
            for (const int percent : {10, 40, 80})
                shown.AdvanceTo(percent, progress);
        });

        QCOMPARE(shown.whileVisible, (QVector<int>{10, 40, 80}));
        QCOMPARE(f.progress.GetValue(), 0);
    }

    void workIsDoneInAnotherThread()
    {
        WindowFixture f;
        std::thread::id worker;

        RunInBackground(f.window, nullptr,
                        [&worker](WorkProgress&) { worker = std::this_thread::get_id(); });

        QVERIFY(worker != std::thread::id());
        QVERIFY(worker != std::this_thread::get_id());
    }

    void escapeCancels()
    {
        WindowFixture f;
        const std::atomic<bool> never{false};
        QTimer::singleShot(0, &f.window, [&f] {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(&f.window, &escape);
        });

        QVERIFY(!RunInBackground(f.window, &f.progress,
                                 [&never](WorkProgress& progress) { WaitFor(never, progress); }));
        QVERIFY(f.window.isVisible());
    }

    void workUnderAMonitorLeavesEscapeToIt()
    {
        WindowFixture f;
        ReadingMonitor monitor(f.window, &f.progress);
        std::atomic<bool> isPressed{false};
        std::atomic<bool> isCancelled{false};
        QTimer::singleShot(0, &f.window, [&] {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(&f.window, &escape);
        });
        // While the work goes on the window lives as before.
        QTimer::singleShot(100, &f.window, [&isPressed] { isPressed = true; });

        RunInBackground(monitor, [&](WorkProgress& progress) {
            while (!isPressed)
                std::this_thread::yield();
            isCancelled = !progress.Advance(1.0);
        });

        QVERIFY(!isCancelled);
        QVERIFY(!monitor.Advance(1, 2));
        QVERIFY(!f.window.menuWidget()->isEnabled());
    }

    void closingTheWindowCancels()
    {
        WindowFixture f;
        const std::atomic<bool> never{false};
        QTimer::singleShot(0, &f.window, [&f] { f.window.close(); });

        QVERIFY(!RunInBackground(f.window, &f.progress,
                                 [&never](WorkProgress& progress) { WaitFor(never, progress); }));
        QVERIFY(!f.window.isVisible());
    }

    void aUserWhoClosesTheWindowIsAskedOnceTheWorkHasEnded()
    {
        WindowFixture f;
        const std::atomic<bool> never{false};
        QTimer::singleShot(0, &f.window, [&f] {
            QCloseEvent close;
            QSpontaneKeyEvent::setSpontaneous(&close);
            qApp->notify(&f.window, &close);
        });

        QVERIFY(!RunInBackground(f.window, &f.progress,
                                 [&never](WorkProgress& progress) { WaitFor(never, progress); }));
        QVERIFY(f.window.isVisible());
        QTRY_VERIFY(!f.window.isVisible());
    }

    void aDialogThatIsShownMeanwhileCanBeAnswered()
    {
        WindowFixture f;
        QDialog dialog(&f.window);
        std::atomic<bool> isAnswered{false};
        QObject::connect(&dialog, &QDialog::rejected, &f.window, [&] { isAnswered = true; });
        QTimer::singleShot(0, &f.window, [&] {
            dialog.open();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });

        QVERIFY(RunInBackground(f.window, &f.progress, [&isAnswered](WorkProgress& progress) {
            WaitFor(isAnswered, progress);
        }));
        QVERIFY(isAnswered);
    }

    void otherKeysDoNothing()
    {
        WindowFixture f;
        auto* pButton = new QPushButton;
        f.window.setCentralWidget(pButton);
        std::atomic<bool> isPressed{false};
        int clicks = 0;
        QObject::connect(pButton, &QPushButton::clicked, &f.window, [&clicks] { ++clicks; });
        QTimer::singleShot(0, &f.window, [&] {
            QTest::mouseClick(pButton, Qt::LeftButton);
            isPressed = true;
        });

        RunInBackground(f.window, &f.progress,
                        [&isPressed](WorkProgress& progress) { WaitFor(isPressed, progress); });

        QCOMPARE(clicks, 0);
    }

    void nothingCanBeDroppedMeanwhile()
    {
        WindowFixture f;
        auto* pTarget = new DropTarget;
        f.window.setCentralWidget(pTarget);
        std::atomic<bool> isDropped{false};
        QTimer::singleShot(0, &f.window, [&] {
            const QMimeData data;
            QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(pTarget, &enter);
            QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(pTarget, &drop);
            isDropped = true;
        });

        RunInBackground(f.window, &f.progress,
                        [&isDropped](WorkProgress& progress) { WaitFor(isDropped, progress); });

        QVERIFY(isDropped);
        QCOMPARE(pTarget->eventCount, 0);
    }

    void whatTheWorkThrowsIsThrownHere()
    {
        WindowFixture f;

        QVERIFY_EXCEPTION_THROWN(
            RunInBackground(f.window, &f.progress,
                            [](WorkProgress&) { throw std::runtime_error("full"); }),
            std::runtime_error);
        QVERIFY(f.window.menuWidget()->isEnabled());
    }
};

VESK_TESTS(BackgroundWorkTest);
#include "BackgroundWorkTest.moc"
