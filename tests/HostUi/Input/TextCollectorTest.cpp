#include "Input/TextCollector.h"

#include "HostUi/InputFixture.h"
#include "Support/TestValues.h"

#include <QFontMetrics>

namespace vesk::test
{

/// The positions of dimension texts in a view.
class TextCollectorTest : public QObject
{
    Q_OBJECT

private slots:
    void aTextHasABoxAboutItsPlace();
    void onlyTextsHaveBoxes();
    void textsOfTheShownDimensionsAreFound();
    void withoutDimensionsThereAreNone();
    void aViewWithoutACameraHasNone();
};

static OwnerPtr<IGraphicsText> Text(const Vector3d& position)
{
    return IGraphicsText::Create(position, L"12.500", GraphicsRole::Dimension);
}

static QRectF BoxAbout(const QPointF& centre, const QFontMetrics& metrics)
{
    QRectF box(QPointF(), metrics.boundingRect("12.500").size() + QSizeF(6.0, 2.0));
    box.moveCenter(centre);
    return box;
}

void TextCollectorTest::aTextHasABoxAboutItsPlace()
{
    ModelView camera;
    camera.SetSize(200, 100);
    const QFontMetrics metrics{QFont()};
    const auto opText = Text({30.0, 10.0, 0.0});

    const QRectF box = TextCollector(camera, metrics).BoxOf(*opText);

    QCOMPARE(box, BoxAbout({130.0, 40.0}, metrics));
}

void TextCollectorTest::onlyTextsHaveBoxes()
{
    ModelView camera;
    camera.SetSize(200, 100);
    const QFontMetrics metrics{QFont()};
    const auto opGroup = IGraphicsNodeGroup::Create();
    opGroup->AddChild(IGraphicsLine::Create({0, 0, 0}, {9, 9, 0}, GraphicsRole::Dimension));
    opGroup->AddChild(Text({30.0, 10.0, 0.0}));
    opGroup->AddChild(
        IGraphicsArc::Create({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 5.0, 1.0, GraphicsRole::Dimension));
    opGroup->AddChild(Text({0.0, 0.0, 0.0}));

    TextCollector texts(camera, metrics);
    opGroup->Accept(texts);

    QCOMPARE(texts.GetBoxes().size(), std::size_t(2));
    QCOMPARE(texts.GetBoxes()[0], BoxAbout({130.0, 40.0}, metrics).toAlignedRect());
    QCOMPARE(texts.GetBoxes()[1], BoxAbout({100.0, 50.0}, metrics).toAlignedRect());
}

void TextCollectorTest::textsOfTheShownDimensionsAreFound()
{
    TypingScript script = Linear();
    script.dimensionText = L"12.500";
    InputFixture f(script);
    f.host.view.GetCamera().SetSize(200, 100);

    const std::vector<QRect> boxes = FindDimensionTexts(f.host.view, f.host.view);

    QCOMPARE(boxes.size(), std::size_t(1));
    QCOMPARE(boxes[0], BoxAbout({100.0, 50.0}, f.host.view.fontMetrics()).toAlignedRect());
}

void TextCollectorTest::withoutDimensionsThereAreNone()
{
    const HostFixture host;

    QVERIFY(FindDimensionTexts(host.view, host.view).empty());
}

void TextCollectorTest::aViewWithoutACameraHasNone()
{
    TypingScript script = Linear();
    script.dimensionText = L"12.500";
    InputFixture f(script);

    f.host.view.SetHasModelView(false);

    QVERIFY(FindDimensionTexts(f.host.view, f.host.view).empty());
}

}

VESK_TESTS(vesk::test::TextCollectorTest);
#include "TextCollectorTest.moc"
