#include "HostUi/DrawingView.h"

#include "HostUi/UiHost.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <functional>
#include <memory>

using namespace vesk;

namespace
{

class PlainView final : public DrawingView
{
public:
    using DrawingView::DrawingView;
    using DrawingView::UpdateModel;

    int GetPaintCount() const { return m_paintCount; }

    int eventsOfPainting = 0;

protected:
    void paintEvent(QPaintEvent* pEvent) override
    {
        ++eventsOfPainting;
        DrawingView::paintEvent(pEvent);
    }

    std::size_t PaintModel(QPainter& painter, const QRectF&, std::size_t begin) override
    {
        m_paintCount += begin == 0 ? 1 : 0;
        painter.fillRect(10, 10, 20, 20, Qt::red);
        return 1;
    }

private:
    int m_paintCount = 0;
};

void SendMouse(QWidget& widget, QEvent::Type type, QPointF position, Qt::MouseButton button)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position.toPoint()), button, button,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void Turn(QWidget& widget, QPointF position, int angle)
{
    QWheelEvent event(position, widget.mapToGlobal(position.toPoint()), QPoint(), QPoint(0, angle),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

}

Q_DECLARE_METATYPE(std::function<void(PlainView&)>)

/// A view next to a line edit in a window.
class DrawingViewTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pHost = std::make_unique<test::UiHost>();
        m_pView = new PlainView(7, m_pHost->input, &m_pHost->window);
        m_pEdit = new QLineEdit(&m_pHost->window);
        auto* pLayout = new QVBoxLayout(&m_pHost->window);
        pLayout->addWidget(m_pView);
        pLayout->addWidget(m_pEdit);
        m_pHost->core.GetViewManager().AddView(m_pView);
        m_pHost->window.resize(640, 480);
        m_pHost->window.show();
        m_pHost->window.activateWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&m_pHost->window, vesk::test::PatienceMs));
    }

    void cleanup()
    {
        m_pHost->core.GetViewManager().RemoveView(m_pView);
        m_pHost.reset();
    }

    void hostFindsTheViewByItsWindow()
    {
        QCOMPARE(m_pView->GetId(), 7u);
        QCOMPARE(QWidget::find(m_pView->GetWindowId()), static_cast<QWidget*>(m_pView));
    }

    void oneUnitIsOneDevicePixelAtFirst()
    {
        QCOMPARE(m_pView->GetCamera().GetWorldPerPixel(), m_pView->devicePixelRatioF());
        QVERIFY(m_pView->GetCamera().GetCentre().isZero());
    }

    void originStaysInTheMiddleWhileTheViewIsLaidOut()
    {
        m_pHost->window.resize(900, 700);
        QCoreApplication::processEvents();

        QCOMPARE(m_pView->GetCamera().GetWidth(), m_pView->width());
        QVERIFY(m_pView->GetCamera().GetCentre().isZero());
    }

    void cursorIsToldAnewWhenTheCameraMoves_data()
    {
        QTest::addColumn<std::function<void(PlainView&)>>("move");
        using Move = std::function<void(PlainView&)>;

        QTest::newRow("magnified") << Move([](PlainView& view) { view.Magnify(2.0); });
        QTest::newRow("another scale") << Move([](PlainView& view) { view.SetPixelsPerUnit(4.0); });
        QTest::newRow("fitted") << Move([](PlainView& view) {
            view.Fit({10.0, 10.0, 0.0}, {90.0, 40.0, 0.0});
        });
        QTest::newRow("wheel") << Move([](PlainView& view) { Turn(view, {100, 80}, 240); });
        QTest::newRow("another size") << Move([](PlainView& view) {
            view.window()->resize(900, 700);
            QCoreApplication::sendPostedEvents();
        });
    }

    void cursorIsToldAnewWhenTheCameraMoves()
    {
        QFETCH(std::function<void(PlainView&)>, move);
        SendMouse(*m_pView, QEvent::MouseMove, {100, 80}, Qt::NoButton);
        const QSignalSpy moves(m_pView, &DrawingView::cursorMoved);

        move(*m_pView);

        const Vector3d world = m_pView->GetCamera().ScreenToWorld(100, 80);
        QVERIFY(!moves.isEmpty());
        QCOMPARE(moves.last().at(0).toDouble(), world.x());
        QCOMPARE(moves.last().at(1).toDouble(), world.y());
    }

    void cursorThatIsElsewhereIsNotTold()
    {
        SendMouse(*m_pView, QEvent::MouseMove, {100, 80}, Qt::NoButton);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_pView, &leave);
        const QSignalSpy moves(m_pView, &DrawingView::cursorMoved);

        m_pView->Magnify(2.0);

        QCOMPARE(moves.size(), 0);
    }

    void wheelZoomsAboutTheCursor()
    {
        const Vector3d before = m_pView->GetCamera().ScreenToWorld(100, 80);

        Turn(*m_pView, {100, 80}, 480);

        QCOMPARE(m_pView->GetCamera().GetWorldPerPixel(), 0.5 * m_pView->devicePixelRatioF());
        const Vector3d after = m_pView->GetCamera().ScreenToWorld(100, 80);
        QVERIFY((after - before).norm() < 1e-9);
    }

    void magnifyingKeepsTheMiddle()
    {
        m_pView->Fit({10, 20, 0}, {50, 60, 0});
        const double before = m_pView->GetCamera().GetWorldPerPixel();

        m_pView->Magnify(2.0);

        QCOMPARE(m_pView->GetCamera().GetWorldPerPixel(), before / 2.0);
        QVERIFY((m_pView->GetCamera().GetCentre() - Vector3d(30, 40, 0)).norm() < 1e-9);
    }

    void onlyAMoveOfItsWindowTellsTheCursor()
    {
        SendMouse(*m_pView, QEvent::MouseMove, {100, 80}, Qt::NoButton);
        const QSignalSpy moves(m_pView, &DrawingView::cursorMoved);

        QEvent other(QEvent::WindowTitleChange);
        QCoreApplication::sendEvent(&m_pHost->window, &other);

        QCOMPARE(moves.count(), 0);
    }

    void middleButtonPans()
    {
        SendMouse(*m_pView, QEvent::MouseButtonPress, {200, 200}, Qt::MiddleButton);
        SendMouse(*m_pView, QEvent::MouseMove, {230, 190}, Qt::MiddleButton);
        SendMouse(*m_pView, QEvent::MouseButtonRelease, {230, 190}, Qt::MiddleButton);
        SendMouse(*m_pView, QEvent::MouseMove, {300, 300}, Qt::NoButton);

        const double pixel = m_pView->GetCamera().GetWorldPerPixel();
        const Vector3d centre = m_pView->GetCamera().GetCentre();
        QVERIFY((centre - Vector3d(-30 * pixel, -10 * pixel, 0)).norm() < 1e-9);
    }

    void cursorIsToldInWorldCoordinates()
    {
        const QSignalSpy moves(m_pView, &DrawingView::cursorMoved);

        SendMouse(*m_pView, QEvent::MouseMove, {50, 60}, Qt::NoButton);

        const Vector3d world = m_pView->GetCamera().ScreenToWorld(50, 60);
        QCOMPARE(moves.count(), 1);
        QCOMPARE(moves[0][0].toDouble(), world.x());
        QCOMPARE(moves[0][1].toDouble(), world.y());
    }

    void modelIsPaintedOnceWhileOnlyTheCursorMoves()
    {
        m_pView->repaint();
        const int paintCount = m_pView->GetPaintCount();

        SendMouse(*m_pView, QEvent::MouseMove, {50, 60}, Qt::NoButton);
        m_pView->Redraw();
        const QImage picture = m_pView->grab().toImage();

        QCOMPARE(m_pView->GetPaintCount(), paintCount);
        QCOMPARE(picture.pixelColor(15, 15), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(40, 40), m_pView->palette().color(QPalette::Base));
    }

    /// The dimensions are written in it.
    void viewIsPaintedAnewInAnotherFont()
    {
        QVERIFY(QTest::qWaitForWindowExposed(&m_pHost->window));
        QCoreApplication::processEvents();
        m_pView->eventsOfPainting = 0;
        QFont font = m_pView->font();
        font.setPointSize(font.pointSize() + 4);

        m_pView->setFont(font);

        QTRY_VERIFY(m_pView->eventsOfPainting > 0);
    }

    void modelIsPaintedAnewWhenItLooksDifferent_data()
    {
        QTest::addColumn<std::function<void(PlainView&)>>("change");

        const auto add = [](const char* name, std::function<void(PlainView&)> change) {
            QTest::newRow(name) << std::move(change);
        };
        add("model", [](PlainView& view) { view.UpdateModel(); });
        add("zoom", [](PlainView& view) { Turn(view, {100, 80}, 480); });
        add("fit", [](PlainView& view) { view.Fit({0, 0, 0}, {7, 7, 0}); });
        add("size", [](PlainView& view) { view.resize(320, 210); });
        add("palette", [](PlainView& view) { view.setPalette(QPalette(Qt::darkBlue)); });
    }

    void modelIsPaintedAnewWhenItLooksDifferent()
    {
        QFETCH(std::function<void(PlainView&)>, change);
        m_pView->repaint();
        const int paintCount = m_pView->GetPaintCount();

        change(*m_pView);
        const QImage picture = m_pView->grab().toImage();

        QVERIFY(m_pView->GetPaintCount() > paintCount);
        QCOMPARE(picture.size(), m_pView->size());
        QCOMPARE(picture.pixelColor(40, 40), m_pView->palette().color(QPalette::Base));
    }

    void changedModelIsPaintedWithoutBeingAskedFor()
    {
        QTRY_VERIFY(m_pView->GetPaintCount() > 0);
        const int paintCount = m_pView->GetPaintCount();

        m_pView->UpdateModel();

        QTRY_VERIFY(m_pView->GetPaintCount() > paintCount);
    }

    void cursorIsWhereTheWheelTurns()
    {
        const QSignalSpy moves(m_pView, &DrawingView::cursorMoved);

        Turn(*m_pView, {200, 150}, 240);

        const Vector3d world = m_pView->GetCamera().ScreenToWorld(200, 150);
        QCOMPARE(moves.count(), 1);
        QCOMPARE(moves[0][0].toDouble(), world.x());
        QCOMPARE(moves[0][1].toDouble(), world.y());
    }

    void viewTextIsToldWhenItChanges()
    {
        const QSignalSpy texts(m_pView, &DrawingView::viewTextChanged);

        m_pView->SetViewText(L"指定起点");
        m_pView->SetViewText(L"指定起点");

        QCOMPARE(texts.count(), 1);
        QCOMPARE(m_pView->GetViewText(), QStringLiteral("指定起点"));
    }

    void tabLeavesTheViewWhileNothingRuns()
    {
        m_pView->setFocus();

        QTest::keyClick(m_pView, Qt::Key_Tab);

        QVERIFY(!m_pView->hasFocus());
    }

    void clickTakesTheKeyboard()
    {
        m_pEdit->setFocus();

        QTest::mouseClick(m_pView, Qt::LeftButton);

        QTRY_VERIFY(m_pView->hasFocus());
    }

private:
    std::unique_ptr<test::UiHost> m_pHost;
    PlainView* m_pView = nullptr;
    QLineEdit* m_pEdit = nullptr;
};

VESK_TESTS(DrawingViewTest);
#include "DrawingViewTest.moc"
