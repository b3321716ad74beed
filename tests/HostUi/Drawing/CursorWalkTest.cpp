#include "Drawing/CursorWalk.h"

#include "Support/TestValues.h"

using namespace vesk;

/// Where an arrow key moves the cursor.
class CursorWalkTest final : public QObject
{
    Q_OBJECT

private slots:
    void arrowsHaveADirection_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");

        QTest::newRow("left") << int(Qt::Key_Left) << -1.0 << 0.0;
        QTest::newRow("right") << int(Qt::Key_Right) << 1.0 << 0.0;
        QTest::newRow("up") << int(Qt::Key_Up) << 0.0 << 1.0;
        QTest::newRow("down") << int(Qt::Key_Down) << 0.0 << -1.0;
    }

    void arrowsHaveADirection()
    {
        QFETCH(int, key);
        QFETCH(double, x);
        QFETCH(double, y);

        QCOMPARE(WayOf(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)),
                 std::optional(Vector3d(x, y, 0)));
        QVERIFY(!WayOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier)).has_value());
    }

    void cursorGoesToTheNextMultipleOfTheStep_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("sign");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("to");

        QTest::newRow("between") << 3.0 << 1.0 << 10.0 << 10.0;
        QTest::newRow("on one") << 10.0 << 1.0 << 10.0 << 20.0;
        QTest::newRow("nearly on one") << 9.9999999999 << 1.0 << 10.0 << 20.0;
        QTest::newRow("back") << 13.0 << -1.0 << 10.0 << 10.0;
        QTest::newRow("back from one") << 10.0 << -1.0 << 10.0 << 0.0;
        QTest::newRow("beyond zero") << 0.0 << -1.0 << 10.0 << -10.0;
        QTest::newRow("tenths") << 0.2 << 1.0 << 0.1 << 0.3;
        QTest::newRow("fifths") << 0.4 << 1.0 << 0.2 << 0.6;
        QTest::newRow("any step") << 2.5 << 1.0 << 2.5 << 5.0;
    }

    void cursorGoesToTheNextMultipleOfTheStep()
    {
        QFETCH(double, from);
        QFETCH(double, sign);
        QFETCH(double, step);
        QFETCH(double, to);

        QCOMPARE(NextGridPoint({from, 7, 0}, {sign, 0, 0}, step), Vector3d(to, 7, 0));
        QCOMPARE(NextGridPoint({7, from, 0}, {0, sign, 0}, step), Vector3d(7, to, 0));
        QVERIFY(NextGridPoint({from, 7, 0}, {sign, 0, 0}, step).x() == to);
    }

    void zeroIsNeverNegative()
    {
        const Vector3d point = NextGridPoint({5, -0.1, 0}, {-1, 0, 0}, 10.0);

        QVERIFY(!std::signbit(point.x()));
        QVERIFY(!std::signbit(OnGrid(point, {1, 0, 0}, 10.0).y()));
    }

    void firstStepGoesAlongTheNearestGridLine()
    {
        QCOMPARE(OnGrid({13, 26, 0}, {1, 0, 0}, 10.0), Vector3d(13, 30, 0));
        QCOMPARE(OnGrid({13, 26, 0}, {0, -1, 0}, 10.0), Vector3d(10, 26, 0));
    }
};

VESK_TESTS(CursorWalkTest);
#include "CursorWalkTest.moc"
