// Preloaded into a program, ends it as soon as its main window has been painted once.

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <cstdlib>

namespace
{

class FirstFrame final : public QObject
{
public:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        // The frame has been handed to the window system when the event loop goes on.
        if (pEvent->type() == QEvent::Paint && qobject_cast<QMainWindow*>(pWatched) != nullptr)
            QTimer::singleShot(0, [] { std::_Exit(EXIT_SUCCESS); });
        return false;
    }
};

void WaitForFrame()
{
    if (qobject_cast<QApplication*>(qApp) != nullptr)
        qApp->installEventFilter(new FirstFrame);
}

}

Q_COREAPP_STARTUP_FUNCTION(WaitForFrame)
