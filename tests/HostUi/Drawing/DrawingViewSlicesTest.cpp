#include "HostUi/DrawingView.h"

#include "HostUi/UiHost.h"
#include "Support/TestValues.h"

#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstddef>

using namespace vesk;
using vesk::test::PatienceMs;

namespace
{

/// A view of a model whose parts are columns of pixels.
class ColumnsView final : public DrawingView
{
public:
    using DrawingView::DrawingView;
    using DrawingView::ExtendModel;
    using DrawingView::UpdateModel;

    std::size_t columnCount = 300;
    std::size_t paintedCount = 0;
    QColor colour = Qt::red;

    /// How many columns are shown in that colour.
    int CountShown(const QColor& shown)
    {
        const QImage picture = grab().toImage();
        int count = 0;
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, 5) == shown ? 1 : 0;
        return count;
    }

protected:
    std::size_t PaintModel(QPainter& painter, const QRectF&, std::size_t begin) override
    {
        if (begin >= columnCount)
            return begin;
        painter.fillRect(static_cast<int>(begin), 0, 1, height(), colour);
        ++paintedCount;
        return begin + 1;
    }
};

struct ColumnsFixture
{
    ColumnsFixture()
    {
        host.window.resize(500, 400);
        pView->setGeometry(10, 20, 400, 300);
        pView->show();
        host.window.show();
        if (!QTest::qWaitForWindowExposed(&host.window, PatienceMs))
            qFatal("the window is not exposed");
    }

    test::UiHost host;
    ColumnsView* pView = new ColumnsView(1, host.input, &host.window);
};

}

/// A view whose model takes long to paint.
class DrawingViewSlicesTest final : public QObject
{
    Q_OBJECT

private slots:
    void theRestIsPaintedWithoutBeingAskedFor()
    {
        ColumnsFixture f;

        QTRY_COMPARE(f.pView->paintedCount, f.pView->columnCount);

        QTRY_COMPARE(f.pView->CountShown(Qt::red), 300);
    }

    void eventsAreHandledBetweenTheSlices()
    {
        ColumnsFixture f;
        QTRY_COMPARE(f.pView->paintedCount, f.pView->columnCount);
        std::size_t most = 0;
        std::size_t before = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            most = std::max(most, f.pView->paintedCount - before);
            before = f.pView->paintedCount;
        });
        timer.start(0);

        f.pView->paintedCount = 0;
        f.pView->Magnify(2.0);
        QTRY_COMPARE(f.pView->paintedCount, f.pView->columnCount);

        // One slice when the view is painted, and one when the next is due.
        QVERIFY2(most <= 2 * 20, qPrintable(QString::number(most)));
    }

    void aPictureOfTheViewCanBeWhole()
    {
        ColumnsFixture f;
        f.pView->Magnify(2.0);

        f.pView->PaintAtOnce();

        QCOMPARE(f.pView->CountShown(Qt::red), 300);
    }

    void anotherModelReplacesTheFormerWhenItIsWhole()
    {
        ColumnsFixture f;
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->colour = Qt::blue;

        f.pView->UpdateModel();
        QCOMPARE(f.pView->CountShown(Qt::red), 300);

        QTRY_COMPARE(f.pView->CountShown(Qt::blue), 300);
    }

    void whatWasPaintedIsShownElsewhereUntilAllIsPaintedAgain()
    {
        ColumnsFixture f;
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->colour = Qt::blue;
        const Vector3d aside(f.pView->GetCamera().GetWorldPerPixel() * 150, 0, 0);

        f.pView->Fit(aside, aside);
        QVERIFY(!f.pView->IsWhole());
        QCOMPARE(f.pView->CountShown(Qt::red), 150);
        QVERIFY(!f.pView->IsWhole());

        QTRY_VERIFY(f.pView->IsWhole());
        QCOMPARE(f.pView->CountShown(Qt::blue), 300);
    }

    void itIsShownInAnotherSizeToo()
    {
        ColumnsFixture f;
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->colour = Qt::blue;

        // Columns 0 to 299 of 400, about the middle.
        f.pView->Magnify(2.0);

        QVERIFY(std::abs(f.pView->CountShown(Qt::red) - 399) <= 1);
        QTRY_COMPARE(f.pView->CountShown(Qt::blue), 300);
    }

    void nothingIsKeptOfAFarPlace_data()
    {
        QTest::addColumn<double>("magnification");
        QTest::addColumn<double>("way");

        QTest::newRow("beside") << 1.0 << 401.0;
        QTest::newRow("far nearer") << 40.0 << 0.0;
        QTest::newRow("far farther") << 1.0 / 40.0 << 0.0;
    }

    void nothingIsKeptOfAFarPlace()
    {
        QFETCH(double, magnification);
        QFETCH(double, way);
        ColumnsFixture f;
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->colour = Qt::blue;
        const Vector3d aside(f.pView->GetCamera().GetWorldPerPixel() * way, 0, 0);

        f.pView->Fit(aside, aside);
        f.pView->Magnify(magnification);

        QCOMPARE(f.pView->CountShown(Qt::red), 0);
        QTRY_COMPARE(f.pView->CountShown(Qt::blue), 300);
    }

    void aSmallModelIsPaintedRatherThanMoved()
    {
        ColumnsFixture f;
        f.pView->columnCount = 3;
        f.pView->Magnify(1.5);
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->colour = Qt::blue;

        f.pView->Magnify(2.0);

        QCOMPARE(f.pView->CountShown(Qt::blue), 3);
        QCOMPARE(f.pView->CountShown(Qt::red), 0);
    }

    void aPictureOfTheViewIsWholeAfterAMoveToo()
    {
        ColumnsFixture f;
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->Magnify(2.0);
        f.pView->repaint();
        f.pView->colour = Qt::blue;

        f.pView->PaintAtOnce();

        QCOMPARE(f.pView->CountShown(Qt::blue), 300);
        QVERIFY(f.pView->IsWhole());
    }

    void onlyWhatWasAddedIsPainted()
    {
        ColumnsFixture f;
        QTRY_VERIFY(f.pView->IsWhole());
        f.pView->paintedCount = 0;
        f.pView->columnCount = 305;

        f.pView->ExtendModel();

        QTRY_COMPARE(f.pView->CountShown(Qt::red), 305);
        QCOMPARE(f.pView->paintedCount, std::size_t(5));
    }

    void aViewMayGoWhileItIsPainted()
    {
        ColumnsFixture f;
        f.pView->Magnify(2.0);
        f.pView->repaint();

        delete f.pView;

        QCoreApplication::processEvents();
    }
};

VESK_TESTS(DrawingViewSlicesTest);
#include "DrawingViewSlicesTest.moc"
