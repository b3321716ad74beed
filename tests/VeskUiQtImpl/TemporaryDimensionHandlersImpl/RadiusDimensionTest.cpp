#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/GeneratorFixture.h"

Q_DECLARE_METATYPE(vesk::Vector3d)

namespace vesk::test
{

constexpr char RadiusClass[] = "vesk::RadiusTemporaryDimensionHandler::";

const Vector3d First(0, 0, 0);
const Vector3d Second(10, 0, 0);
const Vector3d Third(4, 6, 0);

OwnerPtr<ITemporaryDimensionContext> CreateRadiusContext(bool isCentralAngleShown)
{
    auto opContext =
        MakeOwner<RadiusTemporaryDimensionContext>(TiltedPlane(), First, Second, Third);
    opContext->SetCentralAngleShown(isCentralAngleShown);
    return opContext;
}

struct RadiusFixture : GeneratorFixture
{
    explicit RadiusFixture(bool isCentralAngleShown = false)
        : GeneratorFixture(CreateRadiusContext(isCentralAngleShown)),
          context(static_cast<RadiusTemporaryDimensionContext&>(*opContext))
    {}

    RadiusTemporaryDimensionContext& context;
};

class RadiusDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void showsLinesAndCentralAngleWhenAsked();
    void showsNoCentralAngleWhereThereIsNone_data();
    void showsNoCentralAngleWhereThereIsNone();
    void centralAngleIsThereWhereverThePointsAre_data();
    void centralAngleIsThereWhereverThePointsAre();
    void showsWhatThereIsWhenALineFails_data();
    void showsWhatThereIsWhenALineFails();
    void configurationTakesTheFlagOver();
    void configurationOfAForeignContextIsReported();
    void configurationOfAForeignContextTakesItsRanges();
    void whatIsNoNumberCountsAsZero();
};

void RadiusDimensionTest::showsLinesAndCentralAngleWhenAsked()
{
    RadiusFixture f(true);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(2));
    const GeneratorCall& call = f.recorder.GetCalls()[1];
    QCOMPARE(call.name, std::string("central angle of 3 points"));
    QCOMPARE(call.points, (std::vector<Vector3d>{First, Second, Third}));
    QVERIFY(f.IsOwnCall(call));
    QCOMPARE(opGroup->GetChildCount(), 4);
    QCOMPARE(opGroup->GetChild(0), f.recorder.GetCalls()[0].pResult);
    QCOMPARE(opGroup->GetChild(3), call.pResult);
    const auto* pToSecond = dynamic_cast<const IGraphicsLine*>(opGroup->GetChild(1));
    const auto* pToThird = dynamic_cast<const IGraphicsLine*>(opGroup->GetChild(2));
    QVERIFY(pToSecond != nullptr && pToThird != nullptr);
    QCOMPARE(pToSecond->GetStart(), First);
    QCOMPARE(pToSecond->GetEnd(), Second);
    QCOMPARE(pToThird->GetStart(), First);
    QCOMPARE(pToThird->GetEnd(), Third);
    QCOMPARE(pToSecond->GetRole(), GraphicsRole::Dimension);
}

void RadiusDimensionTest::showsNoCentralAngleWhereThereIsNone_data()
{
    QTest::addColumn<Vector3d>("second");
    QTest::addColumn<Vector3d>("third");
    QTest::addColumn<bool>("hasAngle");
    QTest::newRow("first is second") << Vector3d(0.9e-9, 0, 0) << Third << false;
    QTest::newRow("first is third") << Second << Vector3d(0, 0.9e-9, 0) << false;
    QTest::newRow("second is third") << Second << Vector3d(10, 0.9e-9, 0) << false;
    QTest::newRow("first is nearly second") << Vector3d(2e-9, 0, 0) << Third << true;
    QTest::newRow("first is nearly third") << Second << Vector3d(0, 2e-9, 0) << true;
    QTest::newRow("second is nearly third") << Second << Vector3d(10, 2e-9, 0) << true;
    QTest::newRow("on one line") << Second << Vector3d(4, 0, 0) << false;
    QTest::newRow("on one slanting line") << Vector3d(3, 4, 5) << Vector3d(-6, -8, -10) << false;
    QTest::newRow("within the tolerance") << Second << Vector3d(4, 0.9e-9, 0) << false;
    QTest::newRow("beyond the tolerance") << Second << Vector3d(4, 1.1e-9, 0) << true;
}

void RadiusDimensionTest::showsNoCentralAngleWhereThereIsNone()
{
    QFETCH(Vector3d, second);
    QFETCH(Vector3d, third);
    QFETCH(bool, hasAngle);
    RadiusFixture f(true);
    const RadiusTemporaryDimensionContext context(TiltedPlane(), First, second, third);

    const auto opGroup = f.opHandler->GenerateGraphics(&context);

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(hasAngle ? 2 : 1));
    QCOMPARE(opGroup->GetChildCount(), hasAngle ? 4 : 3);
}

void RadiusDimensionTest::centralAngleIsThereWhereverThePointsAre_data()
{
    QTest::addColumn<Vector3d>("third");
    QTest::addColumn<bool>("hasAngle");
    QTest::newRow("on one line") << Vector3d(4, 0, 0) << false;
    QTest::newRow("off the line") << Vector3d(4, 1, 0) << true;
}

void RadiusDimensionTest::centralAngleIsThereWhereverThePointsAre()
{
    QFETCH(Vector3d, third);
    QFETCH(bool, hasAngle);
    RadiusFixture f(true);
    const Vector3d first(7, 3, 2);
    const RadiusTemporaryDimensionContext context(TiltedPlane(), first, first + Second,
                                                  first + third);

    f.opHandler->GenerateGraphics(&context);

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(hasAngle ? 2 : 1));
}

void RadiusDimensionTest::showsWhatThereIsWhenALineFails_data()
{
    QTest::addColumn<int>("lineCount");
    QTest::newRow("the first") << 0;
    QTest::newRow("the second") << 1;
}

void RadiusDimensionTest::showsWhatThereIsWhenALineFails()
{
    QFETCH(int, lineCount);
    RadiusFixture f(true);
    f.recorder.SetLineLimit(lineCount);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    EXPECT_WARNING(f.host.warnings, L"创建IGraphicsLine失败",
                   std::string(RadiusClass) + "GenerateGraphics");
    QCOMPARE(opGroup->GetChildCount(), 1 + lineCount);
}

void RadiusDimensionTest::configurationTakesTheFlagOver()
{
    RadiusFixture f;
    f.context.SetCentralAngleShown(true);
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 1);

    QVERIFY(f.opHandler->UpdateConfig(&f.context));

    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 4);
}

void RadiusDimensionTest::configurationOfAForeignContextIsReported()
{
    RadiusFixture f(true);
    const ForeignContext context;

    QVERIFY(!f.opHandler->UpdateConfig(&context));

    EXPECT_WARNING(f.host.warnings, L"pRadiusCtx为空。", std::string(RadiusClass) + "UpdateConfig");
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 4);
}

void RadiusDimensionTest::configurationOfAForeignContextTakesItsRanges()
{
    RadiusFixture f;
    const ForeignContext context;
    f.host.BeginAction();

    f.opHandler->UpdateConfig(&context);

    f.host.warnings.TakeAny();
    f.Type(InputState::IS_Radius, "1.5");
    f.opHandler->OnEditorReturnPressed();
    QVERIFY(f.Inputs().empty());
    f.Editor()->setText("1");
    f.opHandler->OnEditorReturnPressed();
    QCOMPARE(f.Inputs().size(), std::size_t(1));
}

void RadiusDimensionTest::whatIsNoNumberCountsAsZero()
{
    RadiusFixture f;
    f.host.BeginAction();
    f.context.SetFirstValueRange({-1, 1});
    f.Configure();
    f.Type(InputState::IS_Radius, "abc");

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QVERIFY(f.Inputs()[0].text.empty());
    QVERIFY(!f.opHandler->IsInputting());
}

}

VESK_TESTS(vesk::test::RadiusDimensionTest);
#include "RadiusDimensionTest.moc"
