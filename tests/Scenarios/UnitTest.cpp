#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "View/SketchView.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/TestValues.h"

#include <QAbstractButton>

#include <vector>

namespace
{

constexpr double Tolerance = 1e-9;

const QString s_line = QStringLiteral("Sketcher.Line");

bool IsInputting()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->IsInputting();
}

}

/// Lengths typed in a unit other than that of the model.
class UnitTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void typedLengthIsOfTheChosenUnit_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("millimetres");

        QTest::newRow("mm") << "Sketcher.Unit.mm"
                            << "12" << 12.0;
        QTest::newRow("cm") << "Sketcher.Unit.cm"
                            << "12" << 120.0;
        QTest::newRow("m") << "Sketcher.Unit.m"
                           << "0.25" << 250.0;
        QTest::newRow("inch") << "Sketcher.Unit.inch"
                              << "2" << 50.8;
    }

    void typedLengthIsOfTheChosenUnit()
    {
        QFETCH(QString, unit);
        QFETCH(QString, typed);
        QFETCH(double, millimetres);
        ScriptedUser user;

        user.Click(unit).Do([unit] { QVERIFY(ScriptedUser::FindButton(unit)->isChecked()); });
        user.Click(s_line).ClickAt(0, 0).Type(typed).Press(Qt::Key_Tab).Type("30");
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetLength() - millimetres) <= Tolerance);
        QVERIFY(qAbs(lines[0].GetAngle() - 30.0) <= Tolerance);
    }

    void typedNumberIsRoundedOnceInTheModel_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("millimetres");

        // Each would be another double if the number were read first and then converted.
        QTest::newRow("number") << "1.2" << 30.48;
        QTest::newRow("sum") << "1+0.3" << 33.02;
        QTest::newRow("millimetre") << "1mm" << 1.0;
    }

    void typedNumberIsRoundedOnceInTheModel()
    {
        QFETCH(QString, typed);
        QFETCH(double, millimetres);
        ScriptedUser user;

        user.Click("Sketcher.Unit.inch").Click(s_line).ClickAt(0, 0).Type(typed);
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(1));
        QCOMPARE(QString::fromStdWString(values[0].text), typed);
        QVERIFY(values[0].value == millimetres);
    }

    void journalHoldsWhatWasTypedAndTheModelsValue()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.cm").Click(s_line).ClickAt(0, 0).Type("12");
        user.Press(Qt::Key_Tab).Type("45").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t{2});
        QCOMPARE(QString::fromStdWString(values[0].text), QString("12"));
        QCOMPARE(values[0].value, 120.0);
        QCOMPARE(values[1].value, 45.0);
    }

    void replayInAnotherUnitGivesTheSameModel()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.inch").Click(s_line).ClickAt(3, 7).Type("1.7");
        user.Press(Qt::Key_Tab).Type("12.5").Press(Qt::Key_Return);
        user.Click("Sketcher.Unit.m").ClickAt(-60, 90).Type("0.0333").Press(Qt::Key_Return);

        // A replay shows millimetres.
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 3);
        VerifyReplay();
    }

    void otherUnitEndsWhatIsBeingTyped()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("12").Do([] { QVERIFY(IsInputting()); });
        user.Click("Sketcher.Unit.cm").Do([] {
            QVERIFY(!IsInputting());
            QVERIFY(ScriptedUser::IsRunning(s_line));
        });
        user.ClickAt(80, 60).ClickAt(200, 60);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 2);
        QVERIFY(qAbs(lines[0].GetLength() - 100.0) <= 1.0);
        QCOMPARE(RecordsOf<vesk::ValueRecord>(ReadJournal(Journal())).size(), std::size_t{0});
    }

    void sameUnitAgainKeepsWhatIsBeingTyped()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.cm").Click(s_line).ClickAt(0, 0).Type("12");
        user.Click("Sketcher.Unit.cm").Do([] { QVERIFY(IsInputting()); });
        user.ClickAt(0, 200);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetLength() - 120.0) <= Tolerance);
    }

    void lengthLockedBeforeTheUnitWasChangedStays()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Press(Qt::Key_Tab).Press(Qt::Key_Escape);
        user.Click("Sketcher.Unit.cm").ClickAt(0, 200);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = Model();
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetLength() - 50.0) <= Tolerance);
    }
};

VESK_TESTS(UnitTest);
#include "UnitTest.moc"
