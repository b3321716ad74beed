#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Support/TestValues.h"

#include <QAbstractButton>

#include <array>
#include <cmath>
#include <vector>

namespace
{

constexpr double Tolerance = 1e-9;

using Point = std::array<double, 3>;

Point MiddleOf(const DrawnLine& line)
{
    return {(line.start[0] + line.end[0]) / 2, (line.start[1] + line.end[1]) / 2, 0.0};
}

bool IsOn(const QString& snap)
{
    return ScriptedUser::FindButton("Sketcher.Snap." + snap)->isChecked();
}

}

/// Snapping the cursor to points of the drawing.
class SnapTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void onlyEndIsOnAtFirst()
    {
        QStringList on;
        ScriptedUser user;

        user.Do([&on] {
            for (const char* snap : {"End", "Middle", "Centre", "Intersection", "Grid"})
                on << (IsOn(snap) ? QStringList(snap) : QStringList());
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(on, QStringList("End"));
    }

    void endIsCaughtExactly()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).DrawLine(106, 6, 150, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1].start, lines[0].end);
        QCOMPARE(RecordedPoint(2), lines[0].end);
    }

    void nothingIsCaughtFartherThanTenPixels()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).DrawLine(108, 8, 150, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QVERIFY(qAbs(lines[1].start[0] - lines[0].end[0] - 8.0) <= Tolerance);
        QVERIFY(qAbs(lines[1].start[1] - lines[0].end[1] - 8.0) <= Tolerance);
    }

    void nothingIsCaughtWithoutSnaps()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).Click("Sketcher.Snap.End").DrawLine(106, 6, 150, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QVERIFY(qAbs(lines[1].start[0] - lines[0].end[0] - 6.0) <= Tolerance);
    }

    void middleIsNotCaughtBeforeItIsSwitchedOn()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 71, 33).DrawLine(-12, 20, -12, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[1].start != MiddleOf(lines[0]));
    }

    void middleIsCaughtExactly()
    {
        ScriptedUser user;

        user.Click("Sketcher.Snap.Middle").DrawLine(-100, 0, 71, 33).DrawLine(-12, 20, 60, 120);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1].start, MiddleOf(lines[0]));
        QCOMPARE(RecordedPoint(2), lines[1].start);
    }

    void intersectionIsCaughtExactly()
    {
        ScriptedUser user;

        user.Click("Sketcher.Snap.Intersection").DrawLine(-100, 0, 100, 0);
        user.DrawLine(25, -90, 25, 60).DrawLine(30, 5, 120, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 3);
        QVERIFY(qAbs(lines[2].start[0] - lines[1].start[0]) <= Tolerance);
        QVERIFY(qAbs(lines[2].start[1] - lines[0].start[1]) <= Tolerance);
        QCOMPARE(RecordedPoint(4), lines[2].start);
    }

    void gridIsCaughtExactly()
    {
        ScriptedUser user;

        user.Click("Sketcher.Snap.Grid").DrawLine(-98, 3, 43, 57);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].start, Point({-100.0, 0.0, 0.0}));
        QCOMPARE(lines[0].end, Point({40.0, 60.0, 0.0}));
        QCOMPARE(RecordedPoint(1), lines[0].end);
    }

    void endComesBeforeNearerPoints()
    {
        ScriptedUser user;

        user.DrawLine(-7, 0, 7, 0).Click("Sketcher.Snap.Middle").Click("Sketcher.Snap.Grid");
        user.DrawLine(2, 1, 120, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1].start, lines[0].end);
    }

    void gridComesAfterAllOthers()
    {
        ScriptedUser user;

        user.Click("Sketcher.Snap.Middle").DrawLine(-56, 4, 44, 4);
        user.Click("Sketcher.Snap.Grid").DrawLine(-1, 0, 120, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1].start, MiddleOf(lines[0]));
    }

    void typedLengthRunsTowardsTheCaughtPoint()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).Click("Sketcher.Line").ClickAt(0, -90);
        user.MoveTo(95, 7).Type("20").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        const double wayX = lines[0].end[0] - lines[1].start[0];
        const double wayY = lines[0].end[1] - lines[1].start[1];
        QVERIFY(qAbs(lines[1].GetLength() - 20.0) <= Tolerance);
        QVERIFY(qAbs(lines[1].GetWay(0) * wayY - lines[1].GetWay(1) * wayX) <= Tolerance * 100.0);
        QVERIFY(lines[1].GetWay(0) > 0.0);
    }

    void snapSwitchedWhileALineIsDrawnHoldsForItsNextPoint()
    {
        ScriptedUser user;

        user.Click("Sketcher.Line").ClickAt(-93, 4).Click("Sketcher.Snap.Grid").ClickAt(52, 58);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 1);
        QVERIFY(std::remainder(lines[0].start[0], 10.0) != 0.0);
        QCOMPARE(lines[0].end, Point({50.0, 60.0, 0.0}));
    }

private:
    /// Point records are counted from 0.
    Point RecordedPoint(std::size_t index) const
    {
        const auto points = RecordsOf<vesk::PointRecord>(ReadJournal(m_pFixture->File("journal")));
        if (index >= points.size())
            return {};
        const vesk::Vector3d& point = points[index].point;
        return {point.x(), point.y(), point.z()};
    }
};

VESK_TESTS(SnapTest);
#include "SnapTest.moc"
