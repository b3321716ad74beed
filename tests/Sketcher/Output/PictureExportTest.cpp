#include "Output/PictureExport.h"

#include "Output/DrawnOnPaper.h"

#include "Support/TestValues.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QXmlStreamReader>

using vesk::Vector3d;

namespace
{

using Maker = OutputBytes (*)(const SketchContent&, const OutputProgress&);

bool GoOn(double)
{
    return true;
}

/// Bounds of 100 x 50 mm, far from the origin.
SketchContent MakePlate()
{
    const Vector3d corner(1000, 2000, 0);
    return ContentOf({RectangleShape{{corner, corner + Vector3d(100, 0, 0),
                                      corner + Vector3d(100, 50, 0), corner + Vector3d(0, 50, 0)}},
                      CircleShape{corner + Vector3d(50, 25, 0), 10, Vector3d::UnitZ()}});
}

/// The text of the first title; empty if there is none.
QString TitleOf(const QByteArray& xml)
{
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
    {
        if (reader.readNext() == QXmlStreamReader::StartElement &&
            reader.name() == QLatin1String("title"))
            return reader.readElementText();
    }
    return {};
}

/// The attributes of the outermost element.
QXmlStreamAttributes RootOf(const QByteArray& xml)
{
    QXmlStreamReader reader(xml);
    reader.readNextStartElement();
    return reader.attributes();
}

/// The content of the streams of a PDF file, one after another.
QByteArray StreamsOf(const QByteArray& pdf)
{
    QByteArray content;
    int end = 0;
    for (int start = pdf.indexOf("stream\n"); start >= 0; start = pdf.indexOf("\nstream\n", end))
    {
        start = pdf.indexOf('\n', start + 1) + 1;
        end = pdf.indexOf("endstream", start);
        // The length in front of the data is only a first guess.
        content += qUncompress(QByteArray("\0\0\x10\0", 4) + pdf.mid(start, end - start));
    }
    return content;
}

bool HasInk(const QImage& image, double x, double y)
{
    return image.pixelColor(static_cast<int>(x), static_cast<int>(y)) != Qt::white;
}

}

Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(OutputFault)
Q_DECLARE_METATYPE(Vector3d)

class PictureExportTest final : public QObject
{
    Q_OBJECT

private slots:
    void svgHasTrueSizeInMillimetres()
    {
        const OutputBytes made = MakeSvg(MakePlate(), &GoOn);

        QCOMPARE(made.fault, OutputFault::None);
        const QXmlStreamAttributes root = RootOf(made.bytes);
        QCOMPARE(root.value("width").toString(), QStringLiteral("110mm"));
        QCOMPARE(root.value("height").toString(), QStringLiteral("60mm"));
        QCOMPARE(root.value("viewBox").toString(), QStringLiteral("0 0 110 60"));
    }

    void svgHasTheTitleOfTheDrawing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");

        QTest::newRow("plain") << "支架 📐"
                               << "支架 📐";
        QTest::newRow("like markup") << "<a> & \"b\""
                                     << "<a> & \"b\"";
        QTest::newRow("control") << QString("a") + QChar(1) + 'b' << "a b";
        QTest::newRow("no character") << QString("a") + QChar(0xffff) + 'b' << "a b";
    }

    void svgHasTheTitleOfTheDrawing()
    {
        QFETCH(QString, name);
        SketchContent content = MakePlate();
        content.name = name.toStdWString();

        const QByteArray bytes = MakeSvg(content, &GoOn).bytes;

        QTEST(TitleOf(bytes), "title");
        QVERIFY(QSvgRenderer(bytes).isValid());
    }

    void svgShowsTheDrawing()
    {
        const OutputBytes made = MakeSvg(MakePlate(), &GoOn);

        QSvgRenderer renderer(made.bytes);
        QImage image(1100, 600, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        renderer.render(&painter);
        QVERIFY(HasInk(image, 50, 300));
        QVERIFY(HasInk(image, 550, 50));
        QVERIFY(HasInk(image, 450, 300));
        QVERIFY(!HasInk(image, 55, 300));
        QVERIFY(!HasInk(image, 550, 300));
        QVERIFY(!HasInk(image, 45, 300));
    }

    void pdfHasTrueSizeInPoints()
    {
        const OutputBytes made = MakePdf(MakePlate(), &GoOn);

        QCOMPARE(made.fault, OutputFault::None);
        QVERIFY(made.bytes.startsWith("%PDF-"));
        const QRegularExpression box(R"(/MediaBox \[0 0 (\d+)\.0+ (\d+)\.0+\])");
        const auto match =
            box.match(QString(QLatin1String(made.bytes.constData(), made.bytes.size())));
        // 110 x 60 mm in points, rounded up.
        QCOMPARE(match.captured(1), QStringLiteral("312"));
        QCOMPARE(match.captured(2), QStringLiteral("171"));
    }

    void pdfHasTrueScale()
    {
        const SketchContent content = ContentOf({LineShape{{0, 0, 0}, {100, 50, 0}}});

        const OutputBytes made = MakePdf(content, &GoOn);

        // A device unit is 1/1200 inch; the line begins and ends 5 mm from the sheet's edges.
        const QByteArray page = StreamsOf(made.bytes);
        const QRegularExpression line(R"(([-\d.]+) ([-\d.]+) m\s+([-\d.]+) ([-\d.]+) l\s)");
        const auto match = line.match(QString::fromLatin1(page));
        QVERIFY2(match.hasMatch(), page.constData());
        const QPointF start(match.captured(1).toDouble(), match.captured(2).toDouble());
        const QPointF end(match.captured(3).toDouble(), match.captured(4).toDouble());
        const QRegularExpression matrix(R"(([-\d.]+) 0 0 ([-\d.]+) [-\d.]+ [-\d.]+ cm)");
        double scale = 1.0;
        for (auto it = matrix.globalMatch(QString::fromLatin1(page)); it.hasNext();)
            scale *= it.next().captured(1).toDouble();
        const double millimetres = scale * 25.4 / 72.0;
        QVERIFY(qAbs((end.x() - start.x()) * millimetres - 100.0) < 1e-3);
        QVERIFY(qAbs(qAbs(end.y() - start.y()) * millimetres - 50.0) < 1e-3);
    }

    void pngHas300PixelsPerInch()
    {
        const OutputBytes made = MakePng(MakePlate(), &GoOn);

        const QImage image = QImage::fromData(made.bytes, "PNG");
        QCOMPARE(image.size(), QSize(1300, 709));
        QCOMPARE(image.dotsPerMeterX(), 11811);
        QVERIFY(HasInk(image, 5 * 11.811, 300));
        QVERIFY(HasInk(image, 45 * 11.811, 30 * 11.811));
        QVERIFY(!HasInk(image, 55 * 11.811, 30 * 11.811));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    }

    void pngOfALargeDrawingIsReduced_data()
    {
        QTest::addColumn<Vector3d>("end");
        QTest::addColumn<QSize>("size");

        QTest::newRow("huge") << Vector3d(1e9, 0, 0) << QSize(6000, 119);
        QTest::newRow("somewhat too wide") << Vector3d(600, 0, 0) << QSize(6000, 119);
        QTest::newRow("somewhat too high") << Vector3d(0, 600, 0) << QSize(119, 6000);
    }

    void pngOfALargeDrawingIsReduced()
    {
        QFETCH(Vector3d, end);

        const OutputBytes made = MakePng(ContentOf({LineShape{{0, 0, 0}, end}}), &GoOn);

        const QImage image = QImage::fromData(made.bytes, "PNG");
        QTEST(image.size(), "size");
        QVERIFY(HasInk(image, image.width() / 2, image.height() / 2));
    }

    void drawingWithoutVisibleEntitiesIsRefused_data() { AddMakers(); }

    void drawingWithoutVisibleEntitiesIsRefused()
    {
        QFETCH(Maker, make);
        SketchContent content = MakePlate();
        content.layers.front().isVisible = false;

        QCOMPARE(make(content, &GoOn).fault, OutputFault::NothingVisible);
        QCOMPARE(make(SketchContent(), &GoOn).fault, OutputFault::NothingVisible);
    }

    void stoppedWorkMakesNothing_data() { AddMakers(); }

    void stoppedWorkMakesNothing()
    {
        QFETCH(Maker, make);

        const OutputBytes made = make(MakePlate(), [](double) { return false; });

        QCOMPARE(made.fault, OutputFault::Stopped);
        QCOMPARE(made.bytes, QByteArray());
    }

    void sizeThatTheFormatDoesNotHaveIsRefused_data()
    {
        QTest::addColumn<Maker>("make");
        QTest::addColumn<Vector3d>("end");
        QTest::addColumn<OutputFault>("fault");

        const auto add = [](const char* name, Maker make, const Vector3d& end, OutputFault fault) {
            QTest::newRow(name) << make << end << fault;
        };
        add("svg", &MakeSvg, {1e7 - 10.0, 1e7 - 10.0, 0}, OutputFault::None);
        add("svg too wide", &MakeSvg, {1e7, 0, 0}, OutputFault::TooLarge);
        add("svg too high", &MakeSvg, {0, 1e7, 0}, OutputFault::TooLarge);
        add("pdf", &MakePdf, {5070, 5070, 0}, OutputFault::None);
        add("pdf too wide", &MakePdf, {5071, 0, 0}, OutputFault::TooLarge);
        add("pdf too high", &MakePdf, {0, 5071, 0}, OutputFault::TooLarge);
    }

    void sizeThatTheFormatDoesNotHaveIsRefused()
    {
        QFETCH(Maker, make);
        QFETCH(Vector3d, end);
        QFETCH(OutputFault, fault);

        const OutputBytes made = make(ContentOf({LineShape{{0, 0, 0}, end}}), &GoOn);

        QCOMPARE(made.fault, fault);
        QCOMPARE(made.bytes.isEmpty(), fault != OutputFault::None);
    }

private:
    static void AddMakers()
    {
        QTest::addColumn<Maker>("make");
        QTest::newRow("svg") << Maker(&MakeSvg);
        QTest::newRow("pdf") << Maker(&MakePdf);
        QTest::newRow("png") << Maker(&MakePng);
    }
};

VESK_TESTS(PictureExportTest);
#include "PictureExportTest.moc"
