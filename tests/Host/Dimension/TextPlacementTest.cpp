#include "Dimension/TemporaryDimensionCommons.h"
#include "Dimension/TemporaryDimensionData.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Graphics/IGraphicsNode.h"
#include "Host/Dimension/CurrentView.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <QRect>

#include <cmath>
#include <random>

namespace vesk
{

namespace
{

/// A current view and a segment in it.
struct Fixture : CurrentView
{
    void Generate(bool hasLength = true)
    {
        const double pixel = camera.GetWorldPerPixel();
        if (hasLength)
            TemporaryDimensionCommons::GenerateLengthDimension(
                start, end, coordinate, InputState::IS_None, style, pixel, data);
        TemporaryDimensionCommons::GenerateAngleDimension(start, end, coordinate,
                                                          InputState::IS_None, style, pixel, data);
    }

    /// Where the editor of a value would be.
    QRect GetEditor(InputState state) const { return EditorAt(data[state].textPosition, style); }

    QRect GetCursor() const { return CursorAt(end); }

    Coordinate3d coordinate;
    Vector3d start{0, 0, 0};
    Vector3d end{100, 0, 0};
    TemporaryDimensionStyle style;
    TemporaryDimensionData data;
};

/// Random views and segments: short and long, inside the view and far outside.
class RandomScene
{
public:
    explicit RandomScene(unsigned seed) : m_engine(seed) {}

    void Set(Fixture& f)
    {
        f.camera.SetSize(static_cast<int>(Between(300, 1600)),
                         static_cast<int>(Between(200, 1000)));
        f.camera.SetWorldPerPixel(std::pow(10.0, Between(-4, 4)));
        f.camera.SetCentre({Between(-1e5, 1e5), Between(-1e5, 1e5), 0});
        f.start = MakePoint(f.camera);
        f.end = MakePoint(f.camera);
        if (Between(0, 1) < 0.3)
            f.end = f.start + Between(0.5, 60) * f.camera.GetWorldPerPixel() * MakeDirection();
    }

private:
    double Between(double least, double most)
    {
        return std::uniform_real_distribution<double>(least, most)(m_engine);
    }

    Vector3d MakeDirection()
    {
        const double angle = Between(-4, 4);
        return {std::cos(angle), std::sin(angle), 0};
    }

    Vector3d MakePoint(const ModelView& camera)
    {
        const double beyond = Between(0, 1) < 0.7 ? 0.0 : std::pow(10.0, Between(0, 6));
        return camera.ScreenToWorld(Between(-beyond, camera.GetWidth() + beyond),
                                    Between(-beyond, camera.GetHeight() + beyond));
    }

    std::mt19937 m_engine;
};

}

class TextPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void editorsOfRandomSegmentsAreInTheViewAndOffTheCursor_data();
    void editorsOfRandomSegmentsAreInTheViewAndOffTheCursor();
    void theTextStandsInTheMiddleWhereThereIsRoom();
    void theTextGoesToTheOtherSideAtTheEdgeOfTheView();
    void theTextStandsAtTheVisiblePartOfALongSegment();
    void theTextOfASegmentOutsideTheViewIsInIt();
    void theAngleStandsOnTheBisectorWhereThereIsRoom();
    void theAngleStandsOffTheLength();
    void anAngleAloneKeepsOffNothing();
    void textsOfATiltedPlaneAreInTheView();
    void textsOfAPlaneSeenFromItsEdgeAreNumbers();
    void aTinyViewKeepsTheTextNumbers();
};

void TextPlacementTest::editorsOfRandomSegmentsAreInTheViewAndOffTheCursor_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TextPlacementTest::editorsOfRandomSegmentsAreInTheViewAndOffTheCursor()
{
    constexpr int SceneCount = 2000;
    QFETCH(unsigned, seed);
    RandomScene scene(seed);
    for (int i = 0; i < SceneCount; ++i)
    {
        Fixture f;
        scene.Set(f);

        f.Generate();

        const QRect view = f.GetView().marginsRemoved(QMargins(2, 2, 2, 2));
        const QRect length = f.GetEditor(InputState::IS_Length);
        const QRect angle = f.GetEditor(InputState::IS_Angle);
        QVERIFY2(view.contains(length), qPrintable(QString::number(i)));
        QVERIFY2(view.contains(angle), qPrintable(QString::number(i)));
        QVERIFY2(!f.GetCursor().intersects(length), qPrintable(QString::number(i)));
        QVERIFY2(!f.GetCursor().intersects(angle), qPrintable(QString::number(i)));
        QVERIFY2(!length.intersects(angle), qPrintable(QString::number(i)));
    }
}

void TextPlacementTest::theTextStandsInTheMiddleWhereThereIsRoom()
{
    Fixture f;
    f.camera.SetSize(800, 600);

    f.Generate();

    QVERIFY((f.data[InputState::IS_Length].textPosition - Vector3d(50, 28, 0)).norm() < 1e-9);
}

void TextPlacementTest::theTextGoesToTheOtherSideAtTheEdgeOfTheView()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.start = {0, 290, 0};
    f.end = {200, 290, 0};

    f.Generate();

    QVERIFY((f.data[InputState::IS_Length].textPosition - Vector3d(100, 262, 0)).norm() < 1e-9);
}

void TextPlacementTest::theTextStandsAtTheVisiblePartOfALongSegment()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.start = {-10000, 0, 0};
    f.end = {200, 0, 0};

    f.Generate();

    QVERIFY((f.data[InputState::IS_Length].textPosition - Vector3d(-100, 28, 0)).norm() < 1e-6);
}

void TextPlacementTest::theTextOfASegmentOutsideTheViewIsInIt()
{
    Fixture f;
    f.camera.SetSize(300, 200);
    f.start = {1e8, 1e8, 5};
    f.end = {1e8 + 10, 1e8, 5};

    f.Generate();

    QVERIFY(f.GetView().contains(f.GetEditor(InputState::IS_Length)));
    QVERIFY(f.GetView().contains(f.GetEditor(InputState::IS_Angle)));
    QCOMPARE(f.data[InputState::IS_Length].textPosition.z(), 5.0);
}

void TextPlacementTest::theAngleStandsOnTheBisectorWhereThereIsRoom()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.end = {0, 200, 0};

    f.Generate();

    const Vector3d position = f.data[InputState::IS_Angle].textPosition;
    QVERIFY(std::abs(position.x() - position.y()) < 1e-9);
    QVERIFY(position.norm() > 60);
}

void TextPlacementTest::theAngleStandsOffTheLength()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.end = {0, 200, 0};
    f.Generate();
    const Vector3d preferred = f.data[InputState::IS_Angle].textPosition;
    f.data[InputState::IS_Length].textPosition = preferred;
    f.data[InputState::IS_Length].value = 200;

    f.Generate(false);

    QVERIFY(!f.GetEditor(InputState::IS_Angle).intersects(f.GetEditor(InputState::IS_Length)));
}

void TextPlacementTest::anAngleAloneKeepsOffNothing()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.end = {0, 200, 0};
    f.Generate();
    const Vector3d preferred = f.data[InputState::IS_Angle].textPosition;
    f.data = {};
    f.data[InputState::IS_Length].textPosition = preferred;

    f.Generate(false);

    QCOMPARE(f.data[InputState::IS_Angle].textPosition, preferred);
}

void TextPlacementTest::textsOfATiltedPlaneAreInTheView()
{
    Fixture f;
    f.camera.SetSize(300, 200);
    f.coordinate = Coordinate3d({0, 0, 0}, {1, 0, 0}, {0, 1, 1});
    f.end = {140, 90, 90};

    f.Generate();

    QVERIFY(f.GetView().contains(f.GetEditor(InputState::IS_Length)));
    QVERIFY(f.GetView().contains(f.GetEditor(InputState::IS_Angle)));
    const Vector3d position = f.data[InputState::IS_Length].textPosition;
    QVERIFY(std::abs(position.y() - position.z()) < 1e-9);
}

void TextPlacementTest::textsOfAPlaneSeenFromItsEdgeAreNumbers()
{
    Fixture f;
    f.camera.SetSize(300, 200);
    f.coordinate = Coordinate3d({0, 0, 0}, Vector3d::UnitY(), Vector3d::UnitZ());
    f.start = {0, 1e6, 0};
    f.end = {0, 1e6, 90};

    f.Generate();

    QVERIFY(f.data[InputState::IS_Length].textPosition.allFinite());
    QVERIFY(f.data[InputState::IS_Angle].textPosition.allFinite());
}

void TextPlacementTest::aTinyViewKeepsTheTextNumbers()
{
    Fixture f;
    f.camera.SetSize(1, 1);

    f.Generate();

    QVERIFY(f.data[InputState::IS_Length].textPosition.allFinite());
    QVERIFY(f.data[InputState::IS_Angle].textPosition.allFinite());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::TextPlacementTest);
#include "TextPlacementTest.moc"
