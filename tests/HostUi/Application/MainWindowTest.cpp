#include "HostUi/MainWindow.h"

#include "Command/ActionManager.h"
#include "Command/Command.h"
#include "Command/IAction.h"
#include "Command/ICommandManager.h"
#include "Dimension/LengthUnit.h"
#include "HostCore.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/DrawingView.h"
#include "HostUi/UiApplication.h"
#include "Qtitan/RibbonBar.h"
#include "Support/IdleAction.h"
#include "Support/TestValues.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTimer>

#include <functional>
#include <string>
#include <utility>

namespace vesk
{

namespace
{

/// An empty view.
class PlainView final : public DrawingView
{
public:
    using DrawingView::DrawingView;

protected:
    std::size_t PaintModel(QPainter&, const QRectF&, std::size_t begin) override { return begin; }
};

/// Counts how often it ends.
class EndingAction final : public test::IdleAction
{
public:
    explicit EndingAction(int& endCount) : m_endCount(endCount) {}

    void OnEnd() override { ++m_endCount; }

private:
    int& m_endCount;
};

std::function<QString()> Telling(const QString& text)
{
    return [text] { return text; };
}

struct Fixture
{
    Fixture() { window.show(); }

    QLabel* Label(const char* name) const
    {
        return window.statusBar()->findChild<QLabel*>(QLatin1String(name));
    }
    QLabel* States() const { return Label("States"); }

    PlainView* AddView()
    {
        auto* pView = new PlainView(2, input, nullptr);
        window.SetDrawingView(pView);
        return pView;
    }

    HostCore core;
    UiApplication application;
    DimensionInputController input;
    MainWindow window;
};

}

/// The main frame.
class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void atFirstNothingIsSaid()
    {
        const Fixture f;

        QVERIFY(!f.States()->isVisible());
    }

    void theHostKnowsItWhileItLives()
    {
        {
            const Fixture f;
            QCOMPARE(IMainWindow::GetMainWindow(), static_cast<const IMainWindow*>(&f.window));
            QVERIFY(f.window.internalWinId() != 0);
            QCOMPARE(f.window.GetWindowId(), WindowId(f.window.internalWinId()));
            QCOMPARE(f.window.GetWinId(), WindowId(f.window.internalWinId()));
        }

        QVERIFY(IMainWindow::GetMainWindow() == nullptr);
    }

    void theHostFindsItAndItsViewAfterItIsClosed()
    {
        Fixture f;
        const PlainView* pView = f.AddView();
        f.window.show();

        QVERIFY(f.window.close());

        QCOMPARE(QWidget::find(f.window.GetWindowId()), static_cast<QWidget*>(&f.window));
        QCOMPARE(QWidget::find(f.window.GetWinId()), static_cast<QWidget*>(&f.window));
        QCOMPARE(QWidget::find(pView->GetWindowId()), static_cast<const QWidget*>(pView));
        QVERIFY(!f.window.isVisible());
    }

    void theRibbonStandsAboveTheView()
    {
        Fixture f;
        const PlainView* pView = f.AddView();

        QCOMPARE(f.window.GetRibbon()->parentWidget(), f.window.menuWidget());
        QCOMPARE(f.window.centralWidget(), static_cast<const QWidget*>(pView));
    }

    void aBarStandsBetweenRibbonAndView()
    {
        Fixture f;
        const PlainView* pView = f.AddView();
        auto* pBar = new QLabel("bar");
        f.window.resize(800, 600);
        f.window.show();

        f.window.AddBar(pBar);

        QTRY_VERIFY(pBar->isVisible());
        const auto top = [&f](const QWidget* pWidget) {
            return pWidget->mapTo(&f.window, QPoint(0, 0)).y();
        };
        QTRY_VERIFY(top(f.window.GetRibbon()) + f.window.GetRibbon()->height() <= top(pBar));
        QTRY_VERIFY(top(pBar) + pBar->height() <= top(pView));
        delete pBar;
        QTRY_VERIFY(top(f.window.GetRibbon()) + f.window.GetRibbon()->height() >= top(pView) - 1);
    }

    void aBarIsAnAlert()
    {
        Fixture f;
        auto* pBar = new QWidget;

        f.window.AddBar(pBar);

        QCOMPARE(QAccessible::queryAccessibleInterface(pBar)->role(), QAccessible::AlertMessage);
    }

    void aNoticeIsTheNameOfTheStatusBar()
    {
        Fixture f;

        f.window.ShowNotice("saved");
        QCOMPARE(f.window.statusBar()->accessibleName(), QString("saved"));
        f.window.statusBar()->clearMessage();

        QCOMPARE(f.window.statusBar()->accessibleName(), QString());
    }

    void theStatusBarIsInItsOrder()
    {
        Fixture f;
        f.window.resize(1200, 700);
        f.window.ShowState("journal", Telling("not kept"));
        f.Label("WarningCount")->setText("1");
        f.Label("WarningCount")->show();
        QCoreApplication::processEvents();

        const auto left = [&f](const char* name) { return f.Label(name)->geometry().left(); };
        QVERIFY(f.Label("Hint")->width() > 400);
        QVERIFY(left("Hint") < left("States"));
        QVERIFY(left("States") < left("WarningCount"));
        QVERIFY(left("WarningCount") < left("CursorPosition"));
        QCOMPARE(f.Label("Hint")->contentsMargins(), QMargins(6, 0, 6, 0));
        QCOMPARE(f.Label("CursorPosition")->contentsMargins(), QMargins(6, 0, 6, 0));
    }

    void theHintOfTheViewIsShown()
    {
        Fixture f;
        PlainView* pView = f.AddView();
        const int height = f.Label("Hint")->height();

        pView->SetViewText(L"指定起点");

        QCOMPARE(f.Label("Hint")->text(), QStringLiteral("指定起点"));
        QCOMPARE(f.Label("Hint")->toolTip(), QStringLiteral("指定起点"));
        QCoreApplication::processEvents();
        QCOMPARE(f.Label("Hint")->height(), height);
    }

    void withoutAHintTheBarIsAsHigh()
    {
        const Fixture f;
        QLabel like("汉");
        like.setContentsMargins(6, 0, 6, 0);

        QCOMPARE(f.Label("Hint")->text(), QString());
        QCOMPARE(f.Label("Hint")->minimumHeight(), like.sizeHint().height());
    }

    void aLongHintDoesNotWidenTheWindow()
    {
        Fixture f;
        PlainView* pView = f.AddView();
        f.window.resize(700, 500);
        QCoreApplication::processEvents();
        const int least = f.window.statusBar()->minimumSizeHint().width();

        pView->SetViewText(std::wstring(2000, L'x'));
        QCoreApplication::processEvents();

        QCOMPARE(f.window.statusBar()->minimumSizeHint().width(), least);
        QCOMPARE(f.window.width(), 700);
    }

    void theCursorIsShownInTheUnit()
    {
        Fixture f;
        PlainView* pView = f.AddView();
        QLabel* pCursor = f.Label("CursorPosition");

        emit pView->cursorMoved(12.3456, -7.0);
        QCOMPARE(pCursor->text(), QString("X 12.346   Y -7.000   mm"));
        LengthUnit::SetCurrent(LengthUnit::Centimetre());
        emit pView->cursorMoved(12.3456, -7.0);
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
        QCOMPARE(pCursor->text(), QString("X 1.235   Y -0.700   cm"));

        emit pView->cursorLeft();
        QCOMPARE(pCursor->text(), QString());
    }

    void theCursorHasRoomForLargeNumbers()
    {
        const Fixture f;
        const QLabel* pCursor = f.Label("CursorPosition");

        QCOMPARE(pCursor->minimumWidth(),
                 pCursor->fontMetrics().horizontalAdvance("X -000000.000   Y -000000.000   mm"));
        QCOMPARE(pCursor->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    }

    void aNoticeIsShownForTenSeconds()
    {
        Fixture f;

        f.window.ShowNotice("saved");

        QCOMPARE(f.window.statusBar()->currentMessage(), QString("saved"));
        const auto* pTimer = f.window.statusBar()->findChild<QTimer*>();
        QVERIFY(pTimer != nullptr);
        QCOMPARE(pTimer->interval(), 10000);
    }

    void closingEndsTheAction()
    {
        Fixture f;
        int endCount = 0;
        ActionManager::SetEventLoop(nullptr);
        auto opCommand = MakeOwner<Command>(
            L"Test", Command::Kind::Interactive, [&endCount](IUiView*, const CommandParameters&) {
                return OwnerPtr<IAction>(new EndingAction(endCount));
            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(nullptr, pCommand, {}, nullptr);
        const QSignalSpy closed(&f.window, &MainWindow::closeAccepted);
        int endCountWhenClosed = 0;
        connect(&f.window, &MainWindow::closeAccepted, this,
                [&] { endCountWhenClosed = endCount; });
        QCloseEvent close;
        close.ignore();

        QCoreApplication::sendEvent(&f.window, &close);

        QVERIFY(close.isAccepted());
        QCOMPARE(closed.count(), 1);
        QCOMPARE(endCountWhenClosed, 1);
    }

    void aStateStaysUntilItIsTakenAway()
    {
        Fixture f;

        f.window.ShowState("journal", Telling("not kept"), Telling("cannot write /journal"));
        QVERIFY(f.States()->isVisible());
        QCOMPARE(f.States()->text(), QString("not kept"));
        QCOMPARE(f.States()->toolTip(), QString("cannot write /journal"));

        f.window.RemoveState("journal");
        QVERIFY(!f.States()->isVisible());
        QCOMPARE(f.States()->text(), QString());
    }

    void subjectsStandBesideOneAnother()
    {
        Fixture f;
        f.window.ShowState("a", Telling("first"), Telling("first tip"));
        f.window.ShowState("b", Telling("second"), Telling("second tip"));

        f.window.ShowState("a", Telling("third"), Telling("third tip"));
        QCOMPARE(f.States()->text(), QStringLiteral("third；second"));
        QCOMPARE(f.States()->toolTip(), QString("third tip\nsecond tip"));

        f.window.RemoveState("a");
        QCOMPARE(f.States()->text(), QString("second"));
        QCOMPARE(f.States()->toolTip(), QString("second tip"));
    }

    void statesAreToldAnewInAnotherLanguage()
    {
        Fixture f;
        QString language = "one";
        f.window.ShowState(
            "a", [&language] { return language + " text"; },
            [&language] { return language + " tip"; });

        language = "another";
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&f.window, &change);

        QCOMPARE(f.States()->text(), QString("another text"));
        QCOMPARE(f.States()->toolTip(), QString("another tip"));
    }

    void theCursorIsShownInTheNumbersOfTheLocale()
    {
        Fixture f;
        PlainView* pView = f.AddView();
        QLocale::setDefault(QLocale(QLocale::German));
        const auto restored = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });

        emit pView->cursorMoved(1234.5, -0.25);

        QCOMPARE(f.Label("CursorPosition")->text(), QString("X 1234,500   Y -0,250   mm"));
    }

    void aLongStateDoesNotWidenTheWindow()
    {
        Fixture f;
        f.window.resize(700, 500);
        const int least = f.window.minimumSizeHint().width();

        f.window.ShowState("journal", Telling(QString(2000, 'x')));
        QCoreApplication::processEvents();

        QVERIFY(f.window.minimumSizeHint().width() <= least + 20);
        QCOMPARE(f.States()->minimumSizeHint().width(), 1);
        QCOMPARE(f.window.width(), 700);
    }
};

}

VESK_TESTS(vesk::MainWindowTest);
#include "MainWindowTest.moc"
