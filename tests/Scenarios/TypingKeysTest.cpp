#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

/// Keys that edit the drawing, while a text is being typed.
class TypingKeysTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void keysOfATextDoNotChangeTheDrawing_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("select all") << static_cast<int>(Qt::CTRL) + Qt::Key_A;
        QTest::newRow("copy") << static_cast<int>(Qt::CTRL) + Qt::Key_C;
        QTest::newRow("cut") << static_cast<int>(Qt::CTRL) + Qt::Key_X;
        QTest::newRow("paste") << static_cast<int>(Qt::CTRL) + Qt::Key_V;
        QTest::newRow("duplicate") << static_cast<int>(Qt::CTRL) + Qt::Key_D;
        QTest::newRow("undo") << static_cast<int>(Qt::CTRL) + Qt::Key_Z;
        QTest::newRow("redo") << static_cast<int>(Qt::CTRL) + Qt::Key_Y;
        QTest::newRow("delete") << static_cast<int>(Qt::Key_Delete);
        QTest::newRow("blank") << static_cast<int>(Qt::Key_Space);
        QTest::newRow("Escape") << static_cast<int>(Qt::Key_Escape);
    }

    void keysOfATextDoNotChangeTheDrawing()
    {
        QFETCH(int, key);
        const Options options = m_pFixture->Draw();
        int recordsBefore = 0;
        int recordsAfter = 0;
        ScriptedUser user;
        user.DrawLine(-100, 0, 100, 0).Click("Sketcher.SelectAll");
        user.Do([] {
            NameField()->setFocus();
            NameField()->selectAll();
            QTest::keyClicks(NameField(), "Flange 7");
        });
        user.Do([&] { recordsBefore = CountRecords(options.journal); });
        user.Do([key] {
            const auto modifiers = static_cast<Qt::KeyboardModifiers>(key & Qt::CTRL);
            QTest::keyClick(NameField(), static_cast<Qt::Key>(key & ~int(Qt::CTRL)), modifiers);
        });
        user.Do([&] { recordsAfter = CountRecords(options.journal); });

        QCOMPARE(user.Run(options), 0);

        QCOMPARE(recordsAfter, recordsBefore);
        QCOMPARE(Model().size(), 1);
    }

    void whileADimensionIsTypedNothingIsDuplicated()
    {
        ScriptedUser user;
        user.DrawLine(-100, 0, 100, 0).Click("Sketcher.SelectAll").Click("Sketcher.Line");
        user.ClickAt(0, 50).MoveTo(40, 50).Type("12");
        user.Press(Qt::Key_D, Qt::ControlModifier).Press(Qt::Key_Return).Press(Qt::Key_Escape);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(Model().size(), 2);
    }

    void elsewhereTheKeyDuplicates()
    {
        ScriptedUser user;
        user.DrawLine(-100, 0, 100, 0).Click("Sketcher.SelectAll");
        user.Do(
            [] { QTest::keyClick(ScriptedUser::FindWindow(), Qt::Key_D, Qt::ControlModifier); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(Model().size(), 2);
    }

private:
    static QLineEdit* NameField()
    {
        return ScriptedUser::FindWindow()->findChild<QLineEdit*>("Sketcher.DrawingName");
    }

    static int CountRecords(const QString& journal) { return ReadBytes(journal).count('\n'); }
};

VESK_TESTS(TypingKeysTest);
#include "TypingKeysTest.moc"
