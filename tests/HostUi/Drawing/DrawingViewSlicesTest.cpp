#include "HostUi/DrawingView.h"

#include "HostUi/UiHost.h"
#include "Support/TestValues.h"

#include <QPainter>
#include <QTimer>

#include <algorithm>
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
    std::size_t PaintModel(QPainter& painter, std::size_t begin) override
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
        QTRY_COMPARE(f.pView->CountShown(Qt::red), 300);
        f.pView->colour = Qt::blue;

        f.pView->UpdateModel();
        QCOMPARE(f.pView->CountShown(Qt::red), 300);

        QTRY_COMPARE(f.pView->CountShown(Qt::blue), 300);
    }

    void nothingIsKeptOfAnotherPlace()
    {
        ColumnsFixture f;
        QTRY_COMPARE(f.pView->CountShown(Qt::red), 300);
        f.pView->colour = Qt::blue;

        f.pView->Magnify(2.0);

        QCOMPARE(f.pView->CountShown(Qt::red), 0);
        QTRY_COMPARE(f.pView->CountShown(Qt::blue), 300);
    }

    void onlyWhatWasAddedIsPainted()
    {
        ColumnsFixture f;
        QTRY_COMPARE(f.pView->CountShown(Qt::red), 300);
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
