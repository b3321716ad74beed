#include "Drawing/ModelPicture.h"

#include "HostUi/Drawing/RowsFixture.h"
#include "Support/TestValues.h"

#include <QTransform>

#include <cmath>
#include <cstddef>

using vesk::test::RowsFixture;

namespace
{

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

    void aPictureMovesWithTheModel()
    {
        RowsFixture f;
        f.PaintAll();
        f.colour = Qt::blue;

        f.MoveDown(100);

        QCOMPARE(f.CountShown(Qt::red), Many - 100);
        QCOMPARE(f.CountShown(Qt::white), 100);
    }

    void itGrowsWithTheModel()
    {
        RowsFixture f;
        f.rowCount = 100;
        f.PaintAll();

        f.picture.Move(QTransform::fromScale(2, 2), RowsFixture::Ground());

        QVERIFY2(std::abs(f.CountShown(Qt::red) - 200) <= 1,
                 qPrintable(QString::number(f.CountShown(Qt::red))));
        QVERIFY(!f.picture.HasGaps());
    }

    void whatItLacksIsPainted()
    {
        RowsFixture f;
        f.PaintAll();
        f.colour = Qt::blue;
        f.MoveDown(-100);
        f.areas.clear();

        f.FillAllGaps();

        QCOMPARE(f.CountShown(Qt::red), Many - 100);
        QCOMPARE(f.areas.front(), QRectF(0, Many - 100, 1, 100));
        QCOMPARE(f.areas.back(), f.areas.front());
    }

    void theRestOfAMovedPictureIsLeftAsItWas()
    {
        RowsFixture f;
        f.PaintAll();
        f.colour = Qt::blue;
        f.MoveDown(100);

        f.FillAllGaps();

        QCOMPARE(f.CountShown(Qt::blue), 0);
        QCOMPARE(f.CountShown(Qt::red), Many - 100);
    }

    void gapsAreFilledWhileThePictureMovesOnAndOn()
    {
        RowsFixture f;
        f.PaintAll();
        f.MoveDown(40);
        f.shift = 0;
        f.colour = Qt::blue;

        // A slice has fewer parts than the model, and a gap keeps what was painted into it.
        for (int i = 0; i <= Many / 20; ++i)
        {
            f.FillGaps();
            f.picture.Move(QTransform::fromTranslate(0, i % 2 == 0 ? 1 : -1),
                           RowsFixture::Ground());
        }

        QVERIFY2(f.CountShown(Qt::blue) >= 38, qPrintable(QString::number(f.CountShown(Qt::blue))));
    }

    void aPictureThatIsNotWholeIsCompletedWhileItMoves()
    {
        RowsFixture f;
        f.PaintSlice();
        const auto redCount = static_cast<int>(f.paintedCount);
        f.colour = Qt::blue;

        f.MoveDown(0);
        f.FillAllGaps();

        QCOMPARE(f.CountShown(Qt::red), redCount);
        QCOMPARE(f.CountShown(Qt::blue), Many - redCount);
    }

    void theNextPictureIsPaintedWholeAfterAMove()
    {
        RowsFixture f;
        f.PaintAll();
        f.colour = Qt::blue;
        f.MoveDown(0);
        QVERIFY(!f.picture.IsFinished());
        QVERIFY(f.picture.IsBehind());

        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::blue), Many);
        QVERIFY(!f.picture.HasGaps());
    }

    void aFinishedPictureHasNoGaps()
    {
        RowsFixture f;
        f.PaintAll();
        f.MoveDown(100);
        QVERIFY(f.picture.HasGaps());

        f.PaintAll();

        QVERIFY(!f.picture.HasGaps());
    }

    void aPictureThatWasUnderWayIsGivenUpByAMove()
    {
        RowsFixture f;
        f.PaintAll();
        f.picture.Renew();
        f.colour = Qt::blue;
        f.PaintSlice();
        f.colour = Qt::green;

        f.MoveDown(0);
        QCOMPARE(f.CountShown(Qt::red), Many);
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::green), Many);
    }

    void aModelOfOneSliceIsSmall()
    {
        RowsFixture f;
        f.PaintAll();
        QVERIFY(!f.picture.IsSmall());
        f.rowCount = 3;

        f.picture.Drop();
        QVERIFY(!f.picture.IsSmall());
        f.PaintAll();

        QVERIFY(f.picture.IsSmall());
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
