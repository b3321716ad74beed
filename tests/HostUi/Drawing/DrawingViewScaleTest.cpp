#include "HostUi/DrawingView.h"

#include "HostUi/InputFixture.h"
#include "HostUi/UiTreeWriter.h"
#include "Support/JsonValues.h"
#include "Support/TestValues.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

namespace vesk::test
{

using Json = nlohmann::json;

/// Paints a square and counts how often.
class SquareView final : public DrawingView
{
public:
    using DrawingView::DrawingView;

    int paintCount = 0;

protected:
    std::size_t PaintModel(QPainter& painter, const QRectF&, std::size_t begin) override
    {
        paintCount += begin == 0 ? 1 : 0;
        painter.fillRect(10, 10, 20, 20, Qt::red);
        return 1;
    }
};

struct Fixture
{
    Fixture()
    {
        host.view.hide();
        host.window.resize(500, 400);
        pView->setGeometry(10, 20, 400, 300);
        host.window.show();
        if (!QTest::qWaitForWindowExposed(&host.window, PatienceMs))
            qFatal("the window is not exposed");
    }

    HostFixture host;
    DimensionInputController input;
    SquareView* pView = new SquareView(2, input, &host.window);
};

/// A view on a screen with a scale factor of 2.
class DrawingViewScaleTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private slots:
    void oneUnitIsOneDevicePixelAtFirst();
    void aScaleIsInDevicePixels();
    void theModelIsPaintedInDevicePixels();
    void placesAreToldInDevicePixels();
};

void DrawingViewScaleTest::oneUnitIsOneDevicePixelAtFirst()
{
    const Fixture f;

    QCOMPARE(f.pView->devicePixelRatioF(), 2.0);
    QCOMPARE(f.pView->GetCamera().GetWorldPerPixel(), 2.0);
}

void DrawingViewScaleTest::aScaleIsInDevicePixels()
{
    Fixture f;

    f.pView->SetPixelsPerUnit(8.0);

    QCOMPARE(f.pView->GetCamera().GetWorldPerPixel(), 0.25);
}

void DrawingViewScaleTest::theModelIsPaintedInDevicePixels()
{
    Fixture f;
    f.pView->grab();
    const int paintCount = f.pView->paintCount;

    const QImage picture = f.pView->grab().toImage();

    const QColor base = f.pView->palette().color(QPalette::Base);
    QCOMPARE(picture.size(), QSize(800, 600));
    QCOMPARE(picture.pixelColor(20, 20), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(59, 59), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(60, 60), base);
    QCOMPARE(picture.pixelColor(799, 599), base);
    QCOMPARE(f.pView->paintCount, paintCount);
}

void DrawingViewScaleTest::placesAreToldInDevicePixels()
{
    Fixture f;
    const QTemporaryDir folder;
    QFile file(folder.filePath("ui"));
    UiTreeWriter writer(file.fileName(), f.input, [] { return 0; });

    QVERIFY(writer.Write());

    QVERIFY(file.open(QIODevice::ReadOnly));
    const Json view = Json::parse(file.readAll().toStdString())["views"][0];
    const QPoint corner = f.pView->mapToGlobal(QPoint(0, 0)) * 2;
    QCOMPARE(view["rect"], Json({corner.x(), corner.y(), 800, 600}));
    QCOMPARE(view["worldPerPixel"], Json(1.0));
}

}

VESK_TESTS(vesk::test::DrawingViewScaleTest);
#include "DrawingViewScaleTest.moc"
