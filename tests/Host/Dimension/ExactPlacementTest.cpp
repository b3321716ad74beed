#include "Geometry/Constants.h"
#include "Host/Dimension/CurrentView.h"
#include "Host/Dimension/DrawnNodes.h"
#include "Host/Dimension/GeneratorKinds.h"
#include "Support/TestValues.h"

#include <cmath>

Q_DECLARE_METATYPE(vesk::Vector3d)

namespace vesk
{

namespace
{

/// In the order of `GetGeneratorKinds`.
enum Kind
{
    Length = 0,
    Angle = 1,
    Width = 2,
    Height = 3,
    CentralAngle = 6,
};

/// A current view in which a pixel is one millimetre, around the origin.
struct Fixture : CurrentView
{
    Fixture(int width, int height) { camera.SetSize(width, height); }

    Vector3d PlaceText(Kind kind, const GeneratorPoints& points)
    {
        const GeneratorKind& generator = GetGeneratorKinds()[kind];
        generator.pGenerate(points, input);
        return input.data[generator.field].textPosition;
    }

    GeneratorInput input;
};

GeneratorPoints Segment(const Vector3d& start, const Vector3d& end)
{
    return {start, end, end, end};
}

/// Columns of rows that tell where the text of a segment's length stands.
void AddTextColumns()
{
    QTest::addColumn<Vector3d>("start");
    QTest::addColumn<Vector3d>("end");
    QTest::addColumn<Vector3d>("text");
}

/// Verifies such a row in a view of 800 by 600 pixels.
void VerifyTextPosition()
{
    QFETCH(Vector3d, start);
    QFETCH(Vector3d, end);
    QFETCH(Vector3d, text);
    Fixture f(800, 600);

    const Vector3d position = f.PlaceText(Length, Segment(start, end));

    QVERIFY((position - text).norm() < 1e-6);
}

}

/// The exact positions of texts and arrows at the edges of a view.
class ExactPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void theTextStandsInTheMiddleOfWhatIsVisible_data();
    void theTextStandsInTheMiddleOfWhatIsVisible();
    void theTextOfWhatIsNotVisibleStandsAtTheEdge_data();
    void theTextOfWhatIsNotVisibleStandsAtTheEdge();
    void theTextStandsBesideTheCursorInALowView_data();
    void theTextStandsBesideTheCursorInALowView();
    void theTextStandsInTheMiddleOfATinyView();
    void whatHardlyReachesIntoTheViewIsCutAtItsEdge();
    void theTextOfAShortOppositeSideStandsOutsideItsLine();
    void theTextOfATiltedPlaneIsSeenOffItsLine();
    void aTextKeepsOffAnEarlierOne_data();
    void aTextKeepsOffAnEarlierOne();
    void theRadiusStandsOnTheOtherSideOfTheVisiblePart();
    void theArrowsOfTheOppositeSidePointOutwards();
    void whatIsHardlyOffAPointHasNoDirection_data();
    void whatIsHardlyOffAPointHasNoDirection();
};

void ExactPlacementTest::theTextStandsInTheMiddleOfWhatIsVisible_data()
{
    AddTextColumns();
    QTest::newRow("from the right")
        << Vector3d(10000, 0, 0) << Vector3d(-200, 0, 0) << Vector3d(100, -28, 0);
    QTest::newRow("to the right") << Vector3d(-200, 0, 0) << Vector3d(10000, 0, 0)
                                  << Vector3d(100, 28, 0);
    QTest::newRow("from the left")
        << Vector3d(-10000, 0, 0) << Vector3d(200, 0, 0) << Vector3d(-100, 28, 0);
    QTest::newRow("upwards") << Vector3d(0, -200, 0) << Vector3d(0, 10000, 0)
                             << Vector3d(-60, 50, 0);
    QTest::newRow("downwards") << Vector3d(0, 200, 0) << Vector3d(0, -10000, 0)
                               << Vector3d(-60, -50, 0);
    QTest::newRow("across") << Vector3d(-10000, 0, 0) << Vector3d(20000, 0, 0)
                            << Vector3d(0, 28, 0);
}

void ExactPlacementTest::theTextStandsInTheMiddleOfWhatIsVisible()
{
    VerifyTextPosition();
}

void ExactPlacementTest::theTextOfWhatIsNotVisibleStandsAtTheEdge_data()
{
    AddTextColumns();
    // The editor is 96 by 26 pixels and stays three pixels from the edge.
    QTest::newRow("above") << Vector3d(0, 10000, 0) << Vector3d(100, 10000, 0)
                           << Vector3d(50, 284, 0);
    QTest::newRow("below") << Vector3d(0, -10000, 0) << Vector3d(100, -10000, 0)
                           << Vector3d(50, -284, 0);
    QTest::newRow("left") << Vector3d(-10000, 0, 0) << Vector3d(-10000, 100, 0)
                          << Vector3d(-349, 50, 0);
    QTest::newRow("right") << Vector3d(10000, 0, 0) << Vector3d(10000, 100, 0)
                           << Vector3d(349, 50, 0);
}

void ExactPlacementTest::theTextOfWhatIsNotVisibleStandsAtTheEdge()
{
    VerifyTextPosition();
}

void ExactPlacementTest::theTextStandsBesideTheCursorInALowView_data()
{
    QTest::addColumn<Vector3d>("start");
    QTest::addColumn<Vector3d>("cursor");
    QTest::addColumn<double>("x");
    // The editor is 96 pixels wide and keeps ten off the cursor; above it there is no room.
    QTest::newRow("left") << Vector3d(0, 0, 0) << Vector3d(100, 0, 0) << 42.0;
    QTest::newRow("right") << Vector3d(100, 0, 0) << Vector3d(0, 0, 0) << 58.0;
}

void ExactPlacementTest::theTextStandsBesideTheCursorInALowView()
{
    QFETCH(Vector3d, start);
    QFETCH(Vector3d, cursor);
    QFETCH(double, x);
    Fixture f(800, 60);

    const Vector3d position = f.PlaceText(Length, Segment(start, cursor));

    QVERIFY(std::abs(position.x() - x) < 1e-6);
}

void ExactPlacementTest::theTextStandsInTheMiddleOfATinyView()
{
    Fixture f(20, 20);

    const Vector3d position = f.PlaceText(Length, Segment({0, 10000, 0}, {100, 10000, 0}));

    QVERIFY(position.norm() < 1e-6);
}

void ExactPlacementTest::whatHardlyReachesIntoTheViewIsCutAtItsEdge()
{
    Fixture f(800, 600);

    // One pixel across, a 64th of which is in the view.
    const Vector3d position =
        f.PlaceText(Length, Segment({-400.984375, -10000, 0}, {-399.984375, 200, 0}));

    QVERIFY(std::abs(position.y() - 120.3) < 0.1);
}

void ExactPlacementTest::theTextOfAShortOppositeSideStandsOutsideItsLine()
{
    Fixture f(800, 600);

    const Vector3d position = f.PlaceText(Width, Segment({0, -290, 0}, {60, -100, 0}));

    QVERIFY((position - Vector3d(30, -47, 0)).norm() < 1e-6);
}

void ExactPlacementTest::theTextOfATiltedPlaneIsSeenOffItsLine()
{
    Fixture f(800, 600);
    f.input.coordinate = Coordinate3d({0, 0, 0}, {1, 0, 0}, {0, 0.15, std::sqrt(1 - 0.15 * 0.15)});

    const Vector3d position = f.PlaceText(Length, Segment({-100, 0, 0}, {100, 0, 0}));

    // Half the editor's height and a margin.
    QVERIFY(std::abs(position.x()) < 1e-6);
    QVERIFY(std::abs(position.y() - 25) < 1e-6);
}

void ExactPlacementTest::aTextKeepsOffAnEarlierOne_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<Vector3d>("earlier");
    QTest::addColumn<bool>("isOff");
    const Vector3d origin(0, 0, 0);
    QTest::newRow("none") << 0.0 << origin << false;
    QTest::newRow("one at the origin") << 5.0 << origin << true;
    QTest::newRow("one of no length") << 0.0 << Vector3d(0, 10, 0) << true;
    QTest::newRow("four pixels above") << 5.0 << Vector3d(0, 30, 0) << false;
    QTest::newRow("nearer above") << 5.0 << Vector3d(0, 29.5, 0) << true;
    QTest::newRow("four pixels beside") << 5.0 << Vector3d(-100, 0, 0) << false;
    QTest::newRow("nearer beside") << 5.0 << Vector3d(-99.5, 0, 0) << true;
}

void ExactPlacementTest::aTextKeepsOffAnEarlierOne()
{
    QFETCH(double, value);
    QFETCH(Vector3d, earlier);
    QFETCH(bool, isOff);
    Fixture f(800, 600);
    f.input.data[InputState::IS_Width] = {earlier, value};

    // The text of the height would be at the origin.
    const Vector3d position = f.PlaceText(Height, Segment({60, -100, 0}, {200, 100, 0}));

    QCOMPARE(position.norm() > 1e-6, isOff);
}

void ExactPlacementTest::theRadiusStandsOnTheOtherSideOfTheVisiblePart()
{
    Fixture f(800, 600);
    const GeneratorKind& radius = *GetGeneratorPairs()[2].pFirst;

    radius.pGenerate({Vector3d(-10000, 10490, 0), Vector3d(-10000, -9910, 0), Vector3d(200, 290, 0),
                      Vector3d(0, 0, 0)},
                     f.input);

    const Vector3d position = f.input.data[radius.field].textPosition;
    QVERIFY((position - Vector3d(-100, 265, 0)).norm() < 1e-6);
}

void ExactPlacementTest::theArrowsOfTheOppositeSidePointOutwards()
{
    Fixture f(800, 600);
    const GeneratorKind& width = *GetGeneratorPairs()[1].pFirst;

    const OwnerPtr<IGraphicsNodeGroup> opGroup =
        width.pGenerate(Segment({0, -290, 0}, {200, -190, 0}), f.input);

    const DrawnNodes nodes(*opGroup);
    QVERIFY(nodes.HasLine({0, -162, 0}, {8, -159.2, 0}));
    QVERIFY(nodes.HasLine({0, -162, 0}, {8, -164.8, 0}));
    QVERIFY(nodes.HasLine({200, -162, 0}, {192, -159.2, 0}));
    QVERIFY(nodes.HasLine({200, -162, 0}, {192, -164.8, 0}));
}

void ExactPlacementTest::whatIsHardlyOffAPointHasNoDirection_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<Vector3d>("second");
    QTest::addColumn<Vector3d>("third");
    const Vector3d near(0, Constants::DOUBLE_EPS, 0);
    QTest::newRow("angle") << static_cast<int>(Angle) << near << near;
    QTest::newRow("central angle, start")
        << static_cast<int>(CentralAngle) << near << Vector3d(10, 0, 0);
    QTest::newRow("central angle, end")
        << static_cast<int>(CentralAngle) << Vector3d(10, 0, 0) << near;
}

void ExactPlacementTest::whatIsHardlyOffAPointHasNoDirection()
{
    QFETCH(int, kind);
    QFETCH(Vector3d, second);
    QFETCH(Vector3d, third);
    Fixture f(800, 600);

    f.PlaceText(static_cast<Kind>(kind), {Vector3d(0, 0, 0), second, third, third});

    QCOMPARE_EXACTLY(f.input.data[GetGeneratorKinds()[kind].field].value, 0.0);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ExactPlacementTest);
#include "ExactPlacementTest.moc"
