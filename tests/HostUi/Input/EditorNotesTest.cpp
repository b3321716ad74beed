#include "HostUi/InputFixture.h"

#include "Support/TestValues.h"

#include <QLabel>
#include <QMouseEvent>

#include <memory>

using namespace vesk;
using namespace vesk::test;

namespace
{

void MoveCursor(QWidget& widget, const QPoint& point)
{
    QMouseEvent move(QEvent::MouseMove, point, widget.mapToGlobal(point), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

}

/// What users see beside the editor.
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

        MoveCursor(f.host.view, cursor);
        f.Type("+1m");

        QVERIFY(!pStrip->geometry().contains(cursor));
    }

    void cursorThatHasLeftIsNotKeptOff()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        const QPoint place = pStrip->pos();
        const QPoint cursor = pStrip->geometry().center();
        MoveCursor(f.host.view, cursor);
        f.Type("+1m");
        QVERIFY(pStrip->pos() != place);

        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&f.host.view, &leave);
        f.Type("+2m");

        QCOMPARE(pStrip->pos(), place);
    }

    void onlyTheCursorInTheViewIsKeptOff()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        const QPoint place = pStrip->pos();

        MoveCursor(f.host.window, pStrip->geometry().center());
        f.Type("+1m");

        QCOMPARE(pStrip->pos(), place);
    }

    void otherEventsOfTheViewLeaveTheCursorWhereItIs()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        const QPoint cursor = pStrip->geometry().center();
        MoveCursor(f.host.view, cursor);

        QEvent other(QEvent::ToolTipChange);
        QCoreApplication::sendEvent(&f.host.view, &other);
        f.Type("+1m");

        QVERIFY(!pStrip->geometry().contains(cursor));
    }

    void notesGoWithTheController()
    {
        HostFixture host;
        TypingScript script = Linear();
        const TypingHandlerFactory factory(host.view, script);
        TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
        auto pController = std::make_unique<DimensionInputController>();
        manager.SetContext(MakeLinear());
        manager.OnKeyDown('5', false, false, false);
        auto* pEditor = host.view.findChild<QLineEdit*>("Editor");
        pEditor->setText("x");
        QVERIFY(!pController->Commit());
        pEditor->setText("10cm");
        QCOMPARE(host.view.findChildren<QLabel*>().size(), 3);

        pController.reset();

        QCOMPARE(host.view.findChildren<QLabel*>().size(), 0);
        manager.Drop();
    }

    void notesFollowTheEditor()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");

        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 50)));

        QTRY_COMPARE(pStrip->pos(), QPoint(100, 80));
        const auto* pValue = f.host.view.findChild<QLabel*>("InputValue");
        QCOMPARE(pValue->pos(), QPoint(200, 50 + (26 - pValue->height()) / 2));
        QCOMPARE(pValue->size(), pValue->sizeHint());
    }

    void refusalStandsAboveTheStrip()
    {
        InputFixture f(Linear());
        f.host.view.resize(600, 400);
        f.Type("10x").Press(Qt::Key_Return);

        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 50)));

        const auto* pRefusal = f.host.view.findChild<QLabel*>("InputRefusal");
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        QTRY_COMPARE(pRefusal->pos(), QPoint(100, 80));
        QCOMPARE(pStrip->pos(), QPoint(100, 80 + pRefusal->height() + 4));
    }

    void notesKeepOffTheTextsOfDimensions()
    {
        TypingScript script = Linear();
        script.dimensionText = L"12.500";
        InputFixture f(script);
        f.host.view.resize(600, 400);
        f.host.view.GetCamera().SetSize(240, 200);
        f.Type("5");

        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 62)));

        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        QTRY_VERIFY(pStrip->y() > 62);
        QVERIFY(!pStrip->geometry().contains(120, 100));
    }

    void notesKeepOffATextThatWasDrawnElsewhereMeanwhile()
    {
        TypingScript script = Linear();
        script.dimensionText = L"12.500";
        InputFixture f(script);
        f.host.view.resize(600, 400);
        f.host.view.GetCamera().SetSize(600, 400);
        f.Type("5");
        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 50)));
        const auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        QTRY_COMPARE(pStrip->pos(), QPoint(100, 80));
        const QPoint text = pStrip->geometry().center();

        f.host.view.GetCamera().Pan(text.x() - 300, text.y() - 200);
        TemporaryDimensionMgr::GetInstance()->Regenerate();
        f.Editor()->move(f.host.view.mapToGlobal(QPoint(100, 50)));
        f.Type("6");

        QVERIFY(!pStrip->geometry().contains(text));
    }

    void notesAreAsLargeAsTheirTexts_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("number") << "10";
        QTest::newRow("formula") << "10+2";
        QTest::newRow("formula that is a number again") << "10+2\b\b";
        QTest::newRow("formula once more") << "10+2\b\b+3";
    }

    void notesAreAsLargeAsTheirTexts()
    {
        QFETCH(QString, typed);
        InputFixture f(Linear());
        f.host.view.resize(600, 400);

        for (const QChar character : typed)
            f.Press(Qt::Key_Backspace, character == '\b' ? QString() : QString(character));

        for (const QLabel* pNote : f.host.view.findChildren<QLabel*>())
            QVERIFY(!pNote->isVisible() || pNote->size() == pNote->sizeHint());
    }

    void notesGrowWithTheirFont()
    {
        InputFixture f(Linear());
        f.host.view.resize(600, 400);
        f.Type("10+2");
        auto* pStrip = f.host.view.findChild<QLabel*>("InputKeys");
        const QSize before = pStrip->size();

        QFont font = pStrip->font();
        font.setPointSize(2 * font.pointSize());
        pStrip->setFont(font);
        f.Type("3");

        QVERIFY(pStrip->height() > before.height());
        QCOMPARE(pStrip->size(), pStrip->sizeHint());
    }

    void eachNoteHasItsLook_data()
    {
        QTest::addColumn<QByteArray>("note");
        QTest::addColumn<QColor>("ground");

        const QPalette palette;
        QTest::newRow("refusal") << QByteArray("InputRefusal") << QColor("#992f2c");
        QTest::newRow("value") << QByteArray("InputValue") << palette.color(QPalette::Base);
        QTest::newRow("keys") << QByteArray("InputKeys") << palette.color(QPalette::Window);
    }

    void eachNoteHasItsLook()
    {
        QFETCH(QByteArray, note);
        QFETCH(QColor, ground);
        InputFixture f(Linear());
        f.host.view.resize(600, 400);
        f.Type("10cm").Press(Qt::Key_A, "x").Press(Qt::Key_Return);
        f.Editor()->setText("10cm");

        auto* pNote = f.host.view.findChild<QLabel*>(note.constData());

        QVERIFY(pNote != nullptr);
        QCOMPARE(pNote->grab().toImage().pixelColor(4, 4), ground);
    }

    void notesAreAboveWhatElseIsInTheView()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        auto* pLater = new QWidget(&f.host.view);
        pLater->show();

        f.Type("+1");

        QCOMPARE(f.host.view.children().last()->objectName(), QString("InputKeys"));
    }

    void aNoteThatStaysIsTheSameLabel()
    {
        InputFixture f(Linear());
        f.Type("10cm");
        const auto* pValue = f.host.view.findChild<QLabel*>("InputValue");

        f.Type("+1m");

        QCOMPARE(f.host.view.findChildren<QLabel*>("InputValue"),
                 QList<QLabel*>{const_cast<QLabel*>(pValue)});
    }
};

VESK_TESTS(EditorNotesTest);
#include "EditorNotesTest.moc"
