#include "Drawing.h"
#include "ScenarioFixture.h"
#include "ScriptedUser.h"
#include "SketchView.h"
#include "SketcherProcess.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/TestValues.h"

#include <QLabel>
#include <QLineEdit>

#include <cmath>
#include <memory>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_strip = QStringLiteral("Sketcher.KeyStrip");

bool IsInputting()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->IsInputting();
}

QString EditorText()
{
    const auto* pEditor = ScriptedUser::FindView()->findChild<QLineEdit*>("ViewInputLineEdit");
    return pEditor != nullptr ? pEditor->text() : QString();
}

/// Whether a note beside the editor is on screen.
bool IsShown(const char* name)
{
    const auto* pNote = ScriptedUser::FindView()->findChild<QLabel*>(QLatin1String(name));
    return pNote != nullptr && pNote->isVisible();
}

}

/// Lengths and angles as people type them, in the whole program.
class TypedValueTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFixture = std::make_unique<ScenarioFixture>(); }

    void cleanup()
    {
        QCOMPARE(m_pFixture->GetWarnings(), QStringList());
        m_pFixture.reset();
    }

    void clearTextIsDrawnToTheLastBit_data()
    {
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("angle");
        QTest::addColumn<double>("millimetres");
        QTest::addColumn<double>("degrees");

        QTest::newRow("units") << "10cm"
                               << "0d" << 100.0 << 0.0;
        QTest::newRow("comma") << "3,5"
                               << "90" << 3.5 << 90.0;
        QTest::newRow("point first") << ".5"
                                     << "0" << 0.5 << 0.0;
        QTest::newRow("formula") << "sqrt(2)*50"
                                 << "2*45" << std::sqrt(2.0) * 50.0 << 90.0;
        QTest::newRow("parentheses first") << "(2+3)*4"
                                           << "(30+60)d" << 20.0 << 90.0;
        QTest::newRow("feet and inches") << "10'6\""
                                         << "-(90)" << 3200.4 << -90.0;
        QTest::newRow("feet and inches, rounded once") << "1'6\""
                                                       << "asin(sqrt(3)/2)" << 457.2 << 60.0;
        QTest::newRow("decimals, rounded once") << "0.1+0.2"
                                                << "-0" << 0.3 << 0.0;
        QTest::newRow("half an inch") << "1/2in"
                                      << "atan(1)*4" << 12.7 << 180.0;
    }

    void clearTextIsDrawnToTheLastBit()
    {
        QFETCH(QString, length);
        QFETCH(QString, angle);
        QFETCH(double, millimetres);
        QFETCH(double, degrees);
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type(length).Press(Qt::Key_Tab).Type(angle);
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(2));
        QCOMPARE(QString::fromStdWString(values[0].text), length);
        QCOMPARE_EXACTLY(values[0].value, millimetres);
        QCOMPARE(QString::fromStdWString(values[1].text), angle);
        QCOMPARE_EXACTLY(values[1].value, degrees);
        QCOMPARE(ReadModel(m_pFixture->File("model")).size(), 1);
    }

    void lineAtThirtyDegreesEndsHalfAsHigh()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Press(Qt::Key_Tab).Type("30");
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadModel(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines[0].Way(1) == 25.0);
    }

    void lockedAngleIsShownAsItWasTyped()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Press(Qt::Key_Tab).Type("270");
        user.Press(Qt::Key_Tab).Press(Qt::Key_Tab);
        user.Do([] { QCOMPARE(EditorText(), QString("270.00")); }).Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QVERIFY(!values.empty());
        QVERIFY(values.back().value == 270.0);
        QCOMPARE(ReadModel(m_pFixture->File("model")).size(), 1);
    }

    void replayGoesByTheValue()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.inch").Click(s_line).ClickAt(3, 7).Type("sqrt(2)*3cm");
        user.Press(Qt::Key_Tab).Type("atan(3/4)").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QString replayed = m_pFixture->File("replayed");
        const Outcome outcome = RunSketcher({"--replay", Journal(), "--model", replayed});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(ReadModel(replayed).size(), 1);
        QCOMPARE(ReadFile(replayed), ReadFile(m_pFixture->File("model")));
    }

    void spaceTakesAFormula()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("20+2").Press(Qt::Key_Space);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadModel(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].Length(), 22.0);
    }

    void confirmedValueAfterAFormulaIsNotRounded()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).MoveTo(70, 30).Type("100/2").Press(Qt::Key_Tab);
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(2));
        QCOMPARE(values[0].value, 50.0);
        const double degrees = std::atan2(30.0, 70.0) * 180.0 / std::acos(-1.0);
        QVERIFY(qAbs(values[1].value - degrees) < 1.0);
        QVERIFY(QString::fromStdWString(values[1].text).toDouble() != values[1].value);
    }

    void clickTakesAFormulaAndKeepsWhatIsUnclear()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("1,000").ClickAt(0, 100);
        user.Do([] { QVERIFY(IsInputting()); });
        user.Type("2*30").ClickAt(0, 100);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadModel(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].Way(1) - 60.0) <= 1e-9);
    }

    void stripIsThereFromTheStart()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Do([] { QVERIFY(IsShown("InputKeys")); });
        user.Press(Qt::Key_Escape).Do([] { QVERIFY(!IsShown("InputKeys")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void commandHidesTheStripAndShowsItAgain()
    {
        ScriptedUser user;

        user.Click(s_strip).Click(s_line).ClickAt(0, 0).Type("5").Do([] {
            QVERIFY(IsInputting());
            QVERIFY(!IsShown("InputKeys"));
        });
        user.Press(Qt::Key_Escape).Click(s_strip).Click(s_line).ClickAt(0, 0).Type("5");
        user.Do([] { QVERIFY(IsShown("InputKeys")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

private:
    QString Journal() const { return m_pFixture->File("journal"); }

    std::unique_ptr<ScenarioFixture> m_pFixture;
};

QTEST_MAIN(TypedValueTest)
#include "TypedValueTest.moc"
