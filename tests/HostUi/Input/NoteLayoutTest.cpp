#include "Input/NoteLayout.h"

#include "Support/TestValues.h"

using namespace vesk;

namespace
{

const QSize s_view(400, 300);
const QSize s_editor(96, 26);
const QSize s_strip(220, 24);
const QSize s_value(90, 24);
const QSize s_refusal(250, 24);

}

/// The positions of the notes around an editor.
class NoteLayoutTest final : public QObject
{
    Q_OBJECT

private slots:
    void noteStandsRightBelowTheEditor()
    {
        NoteLayout layout({s_view, QRect(QPoint(50, 40), s_editor), std::nullopt, {}});

        QCOMPARE(layout.PlaceBelow(s_strip), QRect(QPoint(50, 70), s_strip));
    }

    void noteStandsRightBesideTheEditor()
    {
        NoteLayout layout({s_view, QRect(QPoint(50, 40), s_editor), std::nullopt, {}});

        QCOMPARE(layout.PlaceBeside(s_value), QRect(QPoint(150, 41), s_value));
    }

    void secondNoteStandsBelowTheFirst()
    {
        NoteLayout layout({s_view, QRect(QPoint(50, 40), s_editor), std::nullopt, {}});
        layout.PlaceBelow(s_refusal);

        QCOMPARE(layout.PlaceBelow(s_strip), QRect(QPoint(50, 98), s_strip));
    }

    void noteStandsAboveWhereThereIsNoRoomBelow()
    {
        NoteLayout layout({s_view, QRect(QPoint(50, 270), s_editor), std::nullopt, {}});

        QCOMPARE(layout.PlaceBelow(s_strip), QRect(QPoint(50, 242), s_strip));
    }

    void noteKeepsOffTheCursor()
    {
        const QPoint cursor(100, 80);
        NoteLayout layout({s_view, QRect(QPoint(50, 40), s_editor), cursor, {}});

        const QRect place = layout.PlaceBelow(s_strip);

        QVERIFY(!place.adjusted(-10, -10, 10, 10).contains(cursor));
    }

    void noteMovesNoFurtherThanItHasTo_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QPoint>("place");

        QTest::newRow("down") << QPoint(100, 80) << QPoint(50, 99);
        QTest::newRow("right") << QPoint(40, 82) << QPoint(59, 70);
        QTest::newRow("left") << QPoint(270, 82) << QPoint(32, 70);
        QTest::newRow("not at all") << QPoint(100, 109) << QPoint(50, 70);
    }

    void noteMovesNoFurtherThanItHasTo()
    {
        QFETCH(QPoint, cursor);
        NoteLayout layout({s_view, QRect(QPoint(50, 40), QSize(96, 26)), cursor, {}});

        QTEST(layout.PlaceBelow(s_strip).topLeft(), "place");
    }

    void valueMovesAboveTheCursorWhereThatIsNearer()
    {
        NoteLayout layout({s_view, QRect(QPoint(50, 40), s_editor), QPoint(190, 60), {}});

        QCOMPARE(layout.PlaceBeside(s_value), QRect(QPoint(150, 18), s_value));
    }

    void noteAtTheEdgeOfTheViewIsInside_data()
    {
        QTest::addColumn<QPoint>("editor");
        QTest::addColumn<QPoint>("below");
        QTest::addColumn<QPoint>("beside");

        QTest::newRow("top") << QPoint(50, 0) << QPoint(50, 30) << QPoint(150, 0);
        QTest::newRow("bottom") << QPoint(50, 274) << QPoint(50, 210) << QPoint(150, 240);
        QTest::newRow("left") << QPoint(-20, 40) << QPoint(0, 70) << QPoint(80, 23);
        QTest::newRow("right") << QPoint(304, 40) << QPoint(180, 70) << QPoint(180, 70);
    }

    void noteAtTheEdgeOfTheViewIsInside()
    {
        QFETCH(QPoint, editor);
        const EditorScene scene{s_view, QRect(editor, s_editor), std::nullopt, {}};
        const QSize tall(220, 60);

        QTEST(NoteLayout(scene).PlaceBelow(tall).topLeft(), "below");
        QTEST(NoteLayout(scene).PlaceBeside(tall).topLeft(), "beside");
    }

    void noteKeepsOffTheTextsOfDimensions()
    {
        const QRect text(100, 75, 50, 16);
        NoteLayout layout({s_view, QRect(QPoint(50, 40), s_editor), std::nullopt, {text}});

        const QRect place = layout.PlaceBelow(s_strip);

        QVERIFY(!place.intersects(text));
        QVERIFY(QRect(QPoint(0, 0), s_view).contains(place));
    }

    void noteCoversATextWhereThereIsNoOtherRoom()
    {
        const QSize view(240, 90);
        const QRect editor(QPoint(0, 60), s_editor);
        NoteLayout layout({view, editor, std::nullopt, {QRect(QPoint(0, 0), view)}});

        QCOMPARE(layout.PlaceBelow(s_strip), QRect(QPoint(0, 32), s_strip));
    }

    void notesStandApartInsideTheViewWhereverTheEditorIs_data()
    {
        QTest::addColumn<QPoint>("editor");
        QTest::addColumn<QPoint>("cursor");
        const QSize view(300, 200);

        for (int x = 0; x <= view.width() - s_editor.width(); x += 34)
        {
            for (int y = 0; y <= view.height() - s_editor.height(); y += 29)
            {
                for (const QPoint& cursor : {QPoint(5, 5), QPoint(150, 100), QPoint(x - 16, y + 10),
                                             QPoint(x + 60, y + 45), QPoint(x + 60, y - 16)})
                    QTest::addRow("%d,%d cursor %d,%d", x, y, cursor.x(), cursor.y())
                        << QPoint(x, y) << cursor;
            }
        }
    }

    void notesStandApartInsideTheViewWhereverTheEditorIs()
    {
        QFETCH(QPoint, editor);
        QFETCH(QPoint, cursor);
        const QRect view(0, 0, 300, 200);
        const QRect editorRect(editor, s_editor);
        NoteLayout layout({view.size(), editorRect, cursor, {QRect(30, 80, 60, 16)}});

        const QRect value = layout.PlaceBeside(s_value);
        const QRect refusal = layout.PlaceBelow(s_refusal);
        const QRect strip = layout.PlaceBelow(s_strip);

        for (const QRect& note : {value, refusal, strip})
        {
            QVERIFY(view.contains(note));
            QVERIFY(!note.contains(cursor));
            QVERIFY(!note.intersects(editorRect));
        }
        QVERIFY(!value.intersects(refusal));
        QVERIFY(!value.intersects(strip));
        QVERIFY(!refusal.intersects(strip));
    }

    void noteGreaterThanTheViewFillsIt()
    {
        NoteLayout layout({QSize(100, 20), QRect(QPoint(0, 0), s_editor), std::nullopt, {}});

        QCOMPARE(layout.PlaceBelow(s_strip), QRect(0, 0, 100, 20));
    }

    void editorFarOutsideLeavesTheNoteInside()
    {
        NoteLayout layout({s_view, QRect(QPoint(10050, 10040), s_editor), std::nullopt, {}});

        QVERIFY(QRect(QPoint(0, 0), s_view).contains(layout.PlaceBelow(s_strip)));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(NoteLayoutTest);
#include "NoteLayoutTest.moc"
