#include "HostUi/InputFixture.h"

#include "Support/TestValues.h"

#include <QLabel>
#include <QMouseEvent>

using namespace vesk;
using namespace vesk::test;

/// What people see beside the editor.
class EditorNotesTest final : public QObject
{
    Q_OBJECT

private slots:
    void textThatIsTakenAsATextHasNoValueBesideIt()
    {
        TypingScript script = Linear();
        script.isRawTextInput = true;
        InputFixture f(script);

        f.Type("10cm");

        QCOMPARE(f.Note("InputValue"), QString());
        QVERIFY(!f.controller.GetValue().has_value());
    }

    void valueStandsBesideAFormulaOnly()
    {
        InputFixture f(Linear());

        QCOMPARE(f.Type("10").Note("InputValue"), QString());
        QCOMPARE(f.Type("cm").Note("InputValue"), QString("= 100 mm"));
        QCOMPARE(f.Type("x").Note("InputValue"), QString());
    }

    void stripTellsTheKeysOfTheField()
    {
        InputFixture f(Linear());

        QVERIFY(f.Type("5").Note("InputKeys").contains("角度"));
        QVERIFY(f.Press(Qt::Key_Tab).Note("InputKeys").contains("长度"));
    }

    void stripIsThereOnlyWhileItIsWanted()
    {
        InputFixture f(Linear());
        QVERIFY(f.controller.IsKeyStripShown());

        f.Type("5");
        f.controller.SetKeyStripShown(false);
        QCOMPARE(f.Note("InputKeys"), QString());
        f.Type("6");
        QCOMPARE(f.Note("InputKeys"), QString());
        f.controller.SetKeyStripShown(true);

        QVERIFY(!f.Note("InputKeys").isEmpty());
    }

    void notesVanishWithTheEditor()
    {
        InputFixture f(Linear());

        f.Type("10cm");
        TemporaryDimensionMgr::GetInstance()->EndInput();

        QCOMPARE(f.Note("InputValue"), QString());
        QCOMPARE(f.Note("InputKeys"), QString());
    }

    void notesTakeNeitherKeyboardNorMouse()
    {
        InputFixture f(Linear());

        f.Type("10cm").Type("x").Press(Qt::Key_Return);
        f.Type("10cm");

        const QList<QLabel*> notes = f.host.view.findChildren<QLabel*>();
        QCOMPARE(notes.size(), 3);
        for (const QLabel* pNote : notes)
        {
            QVERIFY(pNote->testAttribute(Qt::WA_TransparentForMouseEvents));
            QCOMPARE(pNote->focusPolicy(), Qt::NoFocus);
        }
    }

    void notesKeepOffTheCursor()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        const QPoint cursor = pStrip->geometry().center();

        QMouseEvent move(QEvent::MouseMove, cursor, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&f.host.view, &move);
        f.Type("+1m");

        QVERIFY(!pStrip->geometry().contains(cursor));
    }

    void notesFollowTheEditor()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");

        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 50)));

        QTRY_COMPARE(pStrip->pos(), QPoint(100, 80));
    }
};

QTEST_MAIN(EditorNotesTest)
#include "EditorNotesTest.moc"
