#include "Drawing/ModelPicture.h"

#include "HostUi/Drawing/RowsFixture.h"
#include "Support/TestValues.h"

#include <cstddef>

using vesk::test::RowsFixture;

namespace
{

/// Rows below the top: they take some slices.
constexpr int Below = 100;

constexpr int Many = static_cast<int>(RowsFixture::Many);

/// A painted picture, whose model has become blue.
struct TopFixture : RowsFixture
{
    explicit TopFixture(int top = Below)
    {
        picture.SetTop(static_cast<std::size_t>(top));
        PaintAll();
        colour = Qt::blue;
    }
};

}

/// A model of which only the top changes.
class ModelPictureTopTest final : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheTopIsPaintedAgain()
    {
        TopFixture f;
        f.paintedCount = 0;

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.paintedCount, std::size_t(Many - Below));
        QCOMPARE(f.CountShown(Qt::red), Below);
        QCOMPARE(f.CountShown(Qt::blue), Many - Below);
    }

    void soItIsTheNextTime()
    {
        TopFixture f;
        f.picture.RenewTop();
        f.PaintAll();
        f.colour = Qt::green;

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::red), Below);
        QCOMPARE(f.CountShown(Qt::green), Many - Below);
    }

    void theFormerPictureIsShownUntilTheTopIsPainted()
    {
        TopFixture f;

        f.picture.RenewTop();
        f.PaintSlice();

        QCOMPARE(f.CountShown(Qt::red), Many);
    }

    void withoutATopAllIsPaintedAgain()
    {
        TopFixture f(0);

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void whatTakesOneSliceIsPaintedAgain()
    {
        TopFixture f(3);

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void anotherModelIsPaintedWhole_data()
    {
        QTest::addColumn<bool>("isTopFirst");

        QTest::newRow("after its top") << true;
        QTest::newRow("before its top") << false;
    }

    void anotherModelIsPaintedWhole()
    {
        QFETCH(bool, isTopFirst);
        TopFixture f;

        if (isTopFirst)
            f.picture.RenewTop();
        f.picture.Renew();
        if (!isTopFirst)
            f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void whatChangesWhileItIsPaintedIsNotKept()
    {
        RowsFixture f;
        f.picture.SetTop(Below);
        f.PaintSlice();
        f.colour = Qt::blue;

        f.picture.Renew();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void whatIsBelowIsKeptWhileTheTopChanges()
    {
        RowsFixture f;
        f.picture.SetTop(Below);
        while (f.paintedCount <= Below)
            f.PaintSlice();
        f.colour = Qt::blue;

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::red), Below);
        QCOMPARE(f.CountShown(Qt::blue), Many - Below);
    }

    void positionsNeedNotGrow()
    {
        // Odd ones come before even ones.
        constexpr std::size_t LastOdd = 201;
        constexpr std::size_t LastEven = 10;
        constexpr std::size_t Top = 2;
        int count = 0;
        const auto paintPart = [&count](QPainter&, const QRectF&, std::size_t begin) {
            ++count;
            if (begin == 0)
                return std::size_t(1);
            if (begin == LastOdd)
                return Top;
            return begin == LastEven ? begin : begin + 2;
        };
        vesk::ModelPicture picture;
        picture.SetTop(Top);
        picture.Begin(RowsFixture::Ground());
        while (!picture.IsFinished())
            picture.PaintSlice(paintPart);
        count = 0;

        picture.RenewTop();
        picture.Begin(RowsFixture::Ground());
        while (!picture.IsFinished())
            picture.PaintSlice(paintPart);

        QCOMPARE(count, 5);
    }

    void whatIsKeptIsAsFineAsTheScreen()
    {
        RowsFixture f;
        f.picture.SetTop(Below);
        QPixmap ground(2, 2 * Many);
        ground.setDevicePixelRatio(2.0);
        f.picture.Begin(ground);
        f.PaintAll();

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.picture.GetShown().devicePixelRatio(), 2.0);
    }

    void aMovedModelIsPaintedWhole()
    {
        TopFixture f;

        f.MoveDown(0);
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::blue), Many);
    }

    void soIsADroppedOneAndItsTopIsKnown()
    {
        TopFixture f;
        f.picture.Drop();
        f.PaintAll();
        QCOMPARE(f.CountShown(Qt::blue), Many);
        f.colour = Qt::green;

        f.picture.RenewTop();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::green), Many - Below);
    }

    void aSmallTopMakesNoSmallModel()
    {
        TopFixture f(Many - 3);

        f.picture.RenewTop();
        f.PaintAll();

        QVERIFY(!f.picture.IsSmall());
    }

    void whatIsAddedComesOnTop()
    {
        TopFixture f;
        f.picture.RenewTop();
        f.rowCount = Many - 1;
        f.PaintAll();
        f.rowCount = Many;
        f.colour = Qt::green;

        f.picture.Extend();
        f.PaintAll();

        QCOMPARE(f.CountShown(Qt::green), 1);
        QCOMPARE(f.CountShown(Qt::red), Below);
    }
};

VESK_TESTS(ModelPictureTopTest);
#include "ModelPictureTopTest.moc"
