#include "Dimension/TemporaryDimensionMgr.h"
#include "Host/Dimension/CurrentView.h"
#include "Host/Dimension/GeneratorKinds.h"
#include "Support/TestValues.h"

#include <Eigen/Geometry>

#include <QRect>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace vesk
{

namespace
{

/// A current view, a plane in it and the dimensions of one handler.
struct Fixture : CurrentView
{
    void Generate(const GeneratorPair& pair)
    {
        input.pixel = camera.GetWorldPerPixel();
        input.data = {};
        pair.pFirst->pGenerate(points, input);
        if (pair.pSecond != nullptr)
            pair.pSecond->pGenerate(points, input);
    }

    /// Where the editor of a value would be.
    QRect GetEditor(const GeneratorKind& kind) const
    {
        return EditorAt(input.data[kind.field].textPosition, input.style);
    }

    QRect GetCursor(const GeneratorKind& kind) const
    {
        return CursorAt(points[static_cast<std::size_t>(kind.cursorIndex)]);
    }

    /// To within a hundredth of a pixel.
    bool IsInPlane(const GeneratorKind& kind) const
    {
        const Vector3d offset = input.data[kind.field].textPosition - points[0];
        return std::abs(offset.dot(input.coordinate.GetZ())) < 0.01 * input.pixel;
    }

    bool IsPlaced(const GeneratorKind& kind) const
    {
        const QRect editor = GetEditor(kind);
        return GetView().marginsRemoved(QMargins(2, 2, 2, 2)).contains(editor) &&
               !editor.intersects(GetCursor(kind)) && IsInPlane(kind);
    }

    bool IsPlaced(const GeneratorPair& pair) const
    {
        if (pair.pSecond == nullptr)
            return IsPlaced(*pair.pFirst);
        return IsPlaced(*pair.pFirst) && IsPlaced(*pair.pSecond) &&
               !GetEditor(*pair.pFirst).intersects(GetEditor(*pair.pSecond));
    }

    GeneratorInput input;
    GeneratorPoints points;
};

/// Puts the cursor at a position in the view and the other points at random.
class Scene
{
public:
    explicit Scene(unsigned seed) : m_engine(seed) {}

    void SetCamera(Fixture& f)
    {
        f.camera.SetWorldPerPixel(std::pow(10.0, Between(-3, 3)));
        f.camera.SetCentre({Between(-1e4, 1e4), Between(-1e4, 1e4), 0});
    }

    /// A plane seen from either side, rotated and tilted, but not edge-on.
    void SetPlane(Fixture& f)
    {
        const Eigen::AngleAxisd turn(Between(-4, 4), Vector3d::UnitZ());
        const Eigen::AngleAxisd tilt(Between(-1.2, 1.2), Vector3d::UnitX());
        const double side = Between(0, 1) < 0.5 ? 1.0 : -1.0;
        const Eigen::Matrix3d frame = (turn * tilt * turn).toRotationMatrix();
        f.input.coordinate = Coordinate3d({1, 2, 3}, frame.col(0), side * frame.col(1));
    }

    /// `cursor` is in pixels.
    void SetPoints(Fixture& f, const GeneratorPair& pair, const QPointF& cursor)
    {
        const Vector3d last = ToPlane(f, f.camera.ScreenToWorld(cursor.x(), cursor.y()));
        const double reach = std::pow(10.0, Between(0, 4)) * f.camera.GetWorldPerPixel();
        for (Vector3d& point : f.points)
            point = last + reach * MakeDirection(f.input.coordinate);
        if (pair.pFirst->pointCount == 4)
            PutOnCircle(f, last);
        f.points[static_cast<std::size_t>(pair.pFirst->cursorIndex)] = last;
    }

private:
    double Between(double least, double most)
    {
        return std::uniform_real_distribution<double>(least, most)(m_engine);
    }

    Vector3d MakeDirection(const Coordinate3d& plane)
    {
        const double angle = Between(-4, 4);
        return std::cos(angle) * plane.GetX() + std::sin(angle) * plane.GetY();
    }

    /// The end lies on the circle about the first point through the second, towards the cursor.
    void PutOnCircle(Fixture& f, const Vector3d& cursor)
    {
        const double radius = (f.points[1] - f.points[0]).norm();
        f.points[2] = f.points[0] + radius * (cursor - f.points[0]).normalized();
    }

    static Vector3d ToPlane(const Fixture& f, Vector3d world)
    {
        const Coordinate3d& plane = f.input.coordinate;
        world.z() -= (world - plane.GetOrigin()).dot(plane.GetZ()) / plane.GetZ().z();
        return world;
    }

    std::mt19937 m_engine;
};

/// An open editor that has grown with its text.
class WideEditor
{
public:
    explicit WideEditor(int width) { TemporaryDimensionMgr::GetInstance()->SetEditorWidth(width); }
    ~WideEditor() { TemporaryDimensionMgr::GetInstance()->SetEditorWidth(0); }
    WideEditor(const WideEditor&) = delete;
    WideEditor& operator=(const WideEditor&) = delete;
};

/// The corners, the middles and quarters of the edges, on the edge and near it; and the centre.
std::vector<QPointF> GetCursors(int width, int height)
{
    std::vector<QPointF> cursors;
    for (const double inset : {0.0, 1.0, 9.0, 30.0, 60.0})
    {
        for (int i = 0; i <= 4; ++i)
        {
            const double x = inset + (width - 2 * inset) * i / 4;
            const double y = inset + (height - 2 * inset) * i / 4;
            cursors.insert(cursors.end(), {QPointF(x, inset), QPointF(x, height - inset),
                                           QPointF(inset, y), QPointF(width - inset, y)});
        }
    }
    cursors.emplace_back(width / 2.0, height / 2.0);
    return cursors;
}

}

class DimensionPlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void editorsAreInTheViewAndOffTheCursorAtItsEdges_data();
    void editorsAreInTheViewAndOffTheCursorAtItsEdges();
    void wideEditorsAreInTheViewAndOffTheCursorToo_data();
    void wideEditorsAreInTheViewAndOffTheCursorToo();
    void theWidthGoesToTheOppositeSideAtTheEdgeOfTheView();
    void theHeightGoesInsideWhereTheRectangleFillsTheView();
    void theHeightKeepsOffTheWidth();
    void theWidthKeepsOffNothing();
    void theTextStandsAtTheVisiblePartOfALongSide();
    void theRadiusStandsAtTheVisiblePartOfItsLeader();
    void theRadiusGoesToTheOtherSideAtTheEdgeOfTheView();
    void theRadiusOfANarrowArcGoesBehindItsCentre();
    void theCentralAngleKeepsOffTheRadius();
    void theRadiusKeepsOffTheCentralAngle();
    void aCursorOnlyJustBesideTheTextIsFree();
    void aTextKeepsOffItsLineInATurnedPlane();
};

void DimensionPlacementTest::editorsAreInTheViewAndOffTheCursorAtItsEdges_data()
{
    QTest::addColumn<int>("pair");
    QTest::addColumn<QSize>("size");
    for (int pair = 0; pair < static_cast<int>(GetGeneratorPairs().size()); ++pair)
    {
        for (const QSize size :
             {QSize(300, 200), QSize(301, 333), QSize(800, 600), QSize(1920, 1080)})
            QTest::addRow("%s, %d x %d", GetGeneratorPairs()[pair].pName, size.width(),
                          size.height())
                << pair << size;
    }
}

void DimensionPlacementTest::editorsAreInTheViewAndOffTheCursorAtItsEdges()
{
    constexpr int ScenesPerCursor = 20;
    QFETCH(int, pair);
    QFETCH(QSize, size);
    const GeneratorPair& generators = GetGeneratorPairs()[pair];
    Fixture f;
    f.camera.SetSize(size.width(), size.height());
    Scene scene(1);
    for (const QPointF& cursor : GetCursors(size.width(), size.height()))
    {
        for (int i = 0; i < ScenesPerCursor; ++i)
        {
            scene.SetCamera(f);
            scene.SetPlane(f);
            scene.SetPoints(f, generators, cursor);

            f.Generate(generators);

            QVERIFY2(f.IsPlaced(generators), qPrintable(QStringLiteral("cursor %1, %2, scene %3")
                                                            .arg(cursor.x())
                                                            .arg(cursor.y())
                                                            .arg(i)));
        }
    }
}

void DimensionPlacementTest::wideEditorsAreInTheViewAndOffTheCursorToo_data()
{
    editorsAreInTheViewAndOffTheCursorAtItsEdges_data();
}

/// As wide as almost the whole of a small view. There is then not always room for two such texts.
void DimensionPlacementTest::wideEditorsAreInTheViewAndOffTheCursorToo()
{
    QFETCH(int, pair);
    QFETCH(QSize, size);
    const GeneratorPair& generators = GetGeneratorPairs()[pair];
    const WideEditor wide(std::min(size.width() - 8, 500));
    Fixture f;
    f.camera.SetSize(size.width(), size.height());
    Scene scene(2);
    for (const QPointF& cursor : GetCursors(size.width(), size.height()))
    {
        scene.SetCamera(f);
        scene.SetPlane(f);
        scene.SetPoints(f, generators, cursor);

        f.Generate(generators);

        const bool isPlaced = f.IsPlaced(*generators.pFirst) &&
                              (generators.pSecond == nullptr || f.IsPlaced(*generators.pSecond));
        QVERIFY2(isPlaced,
                 qPrintable(QStringLiteral("cursor %1, %2").arg(cursor.x()).arg(cursor.y())));
    }
}

void DimensionPlacementTest::theWidthGoesToTheOppositeSideAtTheEdgeOfTheView()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(0, -290, 0), Vector3d(200, -190, 0)};

    f.Generate(GetGeneratorPairs()[1]);

    const Vector3d position = f.input.data[InputState::IS_Width].textPosition;
    QVERIFY((position - Vector3d(100, -162, 0)).norm() < 1e-9);
}

void DimensionPlacementTest::theHeightGoesInsideWhereTheRectangleFillsTheView()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(-390, -290, 0), Vector3d(390, 290, 0)};

    f.Generate(GetGeneratorPairs()[1]);

    const Vector3d position = f.input.data[InputState::IS_Height].textPosition;
    QVERIFY((position - Vector3d(-330, 0, 0)).norm() < 1e-9);
}

void DimensionPlacementTest::theHeightKeepsOffTheWidth()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(0, 0, 0), Vector3d(200, 200, 0)};
    const GeneratorKind& height = *GetGeneratorPairs()[1].pSecond;
    height.pGenerate(f.points, f.input);
    f.input.data[InputState::IS_Width] = {f.input.data[InputState::IS_Height].textPosition, 0.0};
    const QRect width = f.GetEditor(height);

    height.pGenerate(f.points, f.input);

    QVERIFY(!f.GetEditor(height).intersects(width));
}

void DimensionPlacementTest::theWidthKeepsOffNothing()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(0, 0, 0), Vector3d(200, 200, 0)};
    f.input.data[InputState::IS_Height] = {Vector3d(100, -28, 0), 200.0};

    GetGeneratorPairs()[1].pFirst->pGenerate(f.points, f.input);

    const Vector3d position = f.input.data[InputState::IS_Width].textPosition;
    QVERIFY((position - Vector3d(100, -28, 0)).norm() < 1e-9);
}

void DimensionPlacementTest::theTextStandsAtTheVisiblePartOfALongSide()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(-10000, 0, 0), Vector3d(200, 100, 0)};

    f.Generate(GetGeneratorPairs()[1]);

    const Vector3d position = f.input.data[InputState::IS_Width].textPosition;
    QVERIFY((position - Vector3d(-100, -28, 0)).norm() < 1e-6);
}

void DimensionPlacementTest::theRadiusStandsAtTheVisiblePartOfItsLeader()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(-10000, 10200, 0), Vector3d(-10000, -10200, 0), Vector3d(200, 0, 0)};

    GetGeneratorPairs()[2].pFirst->pGenerate(f.points, f.input);

    const Vector3d position = f.input.data[InputState::IS_Radius].textPosition;
    QVERIFY((position - Vector3d(-100, 25, 0)).norm() < 1e-6);
}

void DimensionPlacementTest::theRadiusGoesToTheOtherSideAtTheEdgeOfTheView()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(0, 290, 0), Vector3d(200, 290, 0), Vector3d(0, 90, 0)};

    GetGeneratorPairs()[3].pSecond->pGenerate(f.points, f.input);

    const Vector3d position = f.input.data[InputState::IS_Radius].textPosition;
    QVERIFY((position - Vector3d(100, 265, 0)).norm() < 1e-9);
}

void DimensionPlacementTest::theRadiusOfANarrowArcGoesBehindItsCentre()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(0, 0, 0), Vector3d(80, 0, 0), Vector3d(79, 12, 0), Vector3d(79, 12, 0)};

    f.Generate(GetGeneratorPairs()[3]);

    const Vector3d position = f.input.data[InputState::IS_Radius].textPosition;
    QVERIFY((position - Vector3d(-60, 0, 0)).norm() < 1e-9);
}

void DimensionPlacementTest::theCentralAngleKeepsOffTheRadius()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(125, 0, 0), Vector3d(0, 125, 0), Vector3d(-100, -75, 0)};
    const GeneratorKind& angle = *GetGeneratorPairs()[2].pSecond;
    angle.pGenerate(f.points, f.input);
    f.input.data[InputState::IS_Radius] = {f.input.data[InputState::IS_CentralAngle].textPosition,
                                           125.0};
    const QRect radius = f.GetEditor(angle);

    angle.pGenerate(f.points, f.input);

    QVERIFY(!f.GetEditor(angle).intersects(radius));
}

void DimensionPlacementTest::theRadiusKeepsOffTheCentralAngle()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.points = {Vector3d(0, 0, 0), Vector3d(200, 0, 0), Vector3d(0, 200, 0)};
    const GeneratorKind& radius = *GetGeneratorPairs()[3].pSecond;
    radius.pGenerate(f.points, f.input);
    f.input.data[InputState::IS_CentralAngle] = {f.input.data[InputState::IS_Radius].textPosition,
                                                 0.0};
    const QRect angle = f.GetEditor(radius);

    radius.pGenerate(f.points, f.input);

    QVERIFY(!f.GetEditor(radius).intersects(angle));
}

void DimensionPlacementTest::aCursorOnlyJustBesideTheTextIsFree()
{
    Fixture f;
    f.camera.SetSize(300, 200);
    const GeneratorPair& rotation = GetGeneratorPairs()[4];
    for (double y = 0.0; y <= 200.0; y += 0.05)
    {
        const Vector3d cursor = f.camera.ScreenToWorld(150.05, y);
        f.points = {cursor, cursor, cursor};

        f.Generate(rotation);

        QVERIFY2(f.IsPlaced(rotation), qPrintable(QString::number(y)));
    }
}

void DimensionPlacementTest::aTextKeepsOffItsLineInATurnedPlane()
{
    Fixture f;
    f.camera.SetSize(800, 600);
    f.input.coordinate = Coordinate3d({0, 0, 0}, Vector3d::UnitY(), -Vector3d::UnitX());
    f.points = {Vector3d(0, 0, 0), Vector3d(0, 200, 0), Vector3d(-200, 0, 0)};

    GetGeneratorPairs()[3].pSecond->pGenerate(f.points, f.input);

    const Vector3d position = f.input.data[InputState::IS_Radius].textPosition;
    QVERIFY((position - Vector3d(60, 100, 0)).norm() < 1e-9);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::DimensionPlacementTest);
#include "DimensionPlacementTest.moc"
