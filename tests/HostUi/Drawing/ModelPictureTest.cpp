#include "Drawing/ModelPicture.h"

#include "Support/TestValues.h"

#include <QImage>
#include <QPainter>

#include <cstddef>

using namespace vesk;

namespace
{

/// A model of rows of pixels, one part each, and its picture.
struct RowsFixture
{
    /// Many more than one slice has.
    static constexpr std::size_t Many = 300;

    void PaintSlice()
    {
        if (!picture.IsBegun())
        {
            QPixmap ground(1, static_cast<int>(Many));
            ground.fill(Qt::white);
            picture.Begin(ground);
        }
        picture.PaintSlice([this](QPainter& painter, std::size_t begin) {
            if (begin >= rowCount)
                return begin;
            painter.fillRect(0, static_cast<int>(begin), 1, 1, colour);
            ++paintedCount;
            return begin + 1;
        });
    }

    void PaintAll()
    {
        while (!picture.IsFinished())
            PaintSlice();
    }

    /// How many rows are shown in a colour.
    int CountShown(const QColor& shown) const
    {
        const QImage image = picture.GetShown().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            count += image.pixelColor(0, y) == shown ? 1 : 0;
        return count;
    }

    std::size_t rowCount = Many;
    QColor colour = Qt::red;
    std::size_t paintedCount = 0;
    ModelPicture picture;
};

constexpr int Many = static_cast<int>(RowsFixture::Many);

}

class ModelPictureTest final : public QObject
{
    Q_OBJECT

private slots:
    void aSmallModelIsFinishedAtOnce()
    {
        RowsFixture f;
        f.rowCount = 3;

        f.PaintSlice();

        QVERIFY(f.picture.IsFinished());
        QCOMPARE(f.CountShown(Qt::red), 3);
    }

    void aSliceIsBounded()
    {
        RowsFixture f;

        f.PaintSlice();

        QVERIFY(!f.picture.IsFinished());
        QVERIFY(f.paintedCount > 0 && f.paintedCount <= 20);
        QCOMPARE(f.CountShown(Qt::red), static_cast<int>(f.paintedCount));
    }

    void slicesPaintEachPartOnce()
    {
        RowsFixture f;

        f.PaintAll();

        QCOMPARE(f.paintedCount, RowsFixture::Many);
        QCOMPARE(f.CountShown(Qt::red), Many);
    }

    void whatLaterComesLastIsAdded()
    {
        RowsFixture f;
        f.rowCount = 3;
        f.PaintAll();
        f.rowCount = 5;

        f.picture.Extend();
        f.PaintAll();

        QCOMPARE(f.paintedCount, std::size_t(5));
        QCOMPARE(f.CountShown(Qt::red), 5);
    }

    void theFormerPictureIsShownUntilTheNextIsFinished()
    {
        RowsFixture f;
        f.PaintAll();
        f.colour = Qt::blue;

        f.picture.Renew();
        f.PaintSlice();
        QCOMPARE(f.CountShown(Qt::red), Many);

        f.PaintAll();
        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void aDroppedPictureIsNotShownAgain()
    {
        RowsFixture f;
        f.PaintAll();
        f.colour = Qt::blue;

        f.picture.Drop();
        QVERIFY(f.picture.GetShown().isNull());
        f.PaintSlice();

        QCOMPARE(f.CountShown(Qt::red), 0);
        QVERIFY(f.CountShown(Qt::blue) > 0);
    }

    void neitherIsOneThatWaitsForTheNext()
    {
        RowsFixture f;
        f.PaintAll();
        f.picture.Renew();
        f.PaintSlice();
        f.colour = Qt::blue;

        f.picture.Drop();
        f.PaintSlice();

        QCOMPARE(f.CountShown(Qt::red), 0);
    }

    void aPictureThatIsOutdatedIsFinishedAndThenPaintedAgain()
    {
        RowsFixture f;
        f.PaintSlice();
        const auto redCount = static_cast<int>(f.paintedCount);
        f.colour = Qt::blue;

        f.picture.Renew();
        while (f.paintedCount < RowsFixture::Many)
            f.PaintSlice();
        f.PaintSlice();
        QCOMPARE(f.CountShown(Qt::red), redCount);
        QVERIFY(!f.picture.IsFinished());

        f.PaintAll();
        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void aModelThatChangesAllTheTimeIsShownNevertheless()
    {
        RowsFixture f;
        f.PaintAll();
        f.picture.Renew();
        f.colour = Qt::blue;

        for (int i = 0; i <= Many; ++i)
        {
            f.PaintSlice();
            f.picture.Renew();
        }

        QCOMPARE(f.CountShown(Qt::blue), Many);
    }
};

VESK_TESTS(ModelPictureTest);
#include "ModelPictureTest.moc"
