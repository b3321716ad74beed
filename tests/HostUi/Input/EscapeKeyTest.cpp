#include "Input/EscapeKey.h"

#include "Support/TestValues.h"

#include <QKeyEvent>

using namespace vesk;

namespace
{

/// A key being used, with the timestamps of the window system.
struct Finger
{
    bool Press(unsigned long time, bool isMarked = false)
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, isMarked);
        press.setTimestamp(time);
        return key.Press(press);
    }

    void Release(unsigned long time, bool isMarked = false, int which = Qt::Key_Escape)
    {
        QKeyEvent release(QEvent::KeyRelease, which, Qt::NoModifier, {}, isMarked);
        release.setTimestamp(time);
        key.Release(release);
    }

    EscapeKey key;
};

}

/// Which presses of Escape are new ones.
class EscapeKeyTest final : public QObject
{
    Q_OBJECT

private slots:
    void pressIsNewOnceTheKeyWasReleased()
    {
        Finger f;

        QVERIFY(f.Press(1000));
        f.Release(1080);
        QVERIFY(f.Press(1400));
    }

    void markedRepetitionsAreNone()
    {
        Finger f;
        f.Press(1000);

        f.Release(1500, true);
        QVERIFY(!f.Press(1500, true));
        f.Release(1540, true);
        QVERIFY(!f.Press(1540, true));
    }

    void repetitionIsNoneWhenItsReleaseCameAtTheSameTime()
    {
        Finger f;
        f.Press(1000);

        f.Release(1500);
        QVERIFY(!f.Press(1500));
        f.Release(1540);
        QVERIFY(!f.Press(1540));
    }

    void repetitionsAreNoneWhenTheirReleasesWereLost()
    {
        Finger f;
        f.Press(1000);

        QVERIFY(!f.Press(1500));
        QVERIFY(!f.Press(1530));
        QVERIFY(!f.Press(1560));
    }

    void pressThatIsHandedOnIsNone()
    {
        Finger f;
        f.Press(1000);

        QVERIFY(!f.Press(1000));
        f.Release(1080);
        QVERIFY(f.Press(1100));
    }

    void secondPressIsNewThoughTheReleaseOfTheFirstWasLost_data()
    {
        QTest::addColumn<int>("interval");

        QTest::newRow("sooner than any repetition") << 120;
        QTest::newRow("later than any repetition") << 1100;
    }

    void secondPressIsNewThoughTheReleaseOfTheFirstWasLost()
    {
        QFETCH(int, interval);
        Finger f;
        f.Press(1000);

        QVERIFY(f.Press(1000 + static_cast<unsigned long>(interval)));
    }

    void pressThatIsHandedOnIsNoSignOfARepetition()
    {
        Finger f;
        f.Press(1000);
        f.Press(1000);

        QVERIFY(f.Press(1120));
    }

    void releaseOfAnotherKeyIsNotItsOwn()
    {
        Finger f;
        f.Press(1000);

        f.Release(1400, false, Qt::Key_Return);

        QVERIFY(!f.Press(1500));
    }

    void pressesWithoutATimeAreNewAfterARelease()
    {
        Finger f;
        f.Press(0);
        f.Release(0);

        QVERIFY(f.Press(0));
    }
};

VESK_TESTS(EscapeKeyTest);
#include "EscapeKeyTest.moc"
