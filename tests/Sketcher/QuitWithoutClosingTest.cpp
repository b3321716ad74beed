#include "QuitWithoutClosing.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

namespace
{

/// Counts how often it is closed.
class CountingWindow final : public QWidget
{
public:
    int closings = 0;

protected:
    void closeEvent(QCloseEvent*) override { ++closings; }
};

void SendQuitEvent()
{
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
}

}

using Quit = void (*)();
Q_DECLARE_METATYPE(Quit)

/// What happens to the windows when the program is told to quit.
class QuitWithoutClosingTest final : public QObject
{
    Q_OBJECT

private slots:
    void theLoopEndsAndNoWindowIsClosed_data()
    {
        QTest::addColumn<Quit>("quit");

        QTest::newRow("by the program") << Quit(&QCoreApplication::quit);
        QTest::newRow("by the desktop's session") << Quit(&SendQuitEvent);
    }

    void theLoopEndsAndNoWindowIsClosed()
    {
        QFETCH(Quit, quit);
        CountingWindow window;
        window.show();
        const QuitWithoutClosing quitting;
        QTimer::singleShot(0, qApp, quit);

        const int code = QApplication::exec();

        QCOMPARE(code, 0);
        QCOMPARE(window.closings, 0);
        QVERIFY(window.isVisible());
    }

    void otherEventsAndOtherObjectsEndNothing_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("isProgram");

        QTest::newRow("another event") << int(QEvent::User) << true;
        QTest::newRow("another object") << int(QEvent::Quit) << false;
    }

    void otherEventsAndOtherObjectsEndNothing()
    {
        QFETCH(int, type);
        QFETCH(bool, isProgram);
        QObject other;
        const QuitWithoutClosing quitting;
        QTimer::singleShot(0, qApp, [=, &other] {
            QEvent event(static_cast<QEvent::Type>(type));
            QCoreApplication::sendEvent(isProgram ? qApp : &other, &event);
        });
        QTimer::singleShot(1, qApp, [] { QCoreApplication::exit(7); });

        QCOMPARE(QApplication::exec(), 7);
    }
};

VESK_TESTS(QuitWithoutClosingTest);
#include "QuitWithoutClosingTest.moc"
