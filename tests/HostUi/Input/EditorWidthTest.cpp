#include "Input/EditorWidth.h"

#include "Support/TestValues.h"

#include <QLineEdit>

using namespace vesk;

namespace
{

/// An editor with a text, and its view.
struct Editor
{
    Editor(const QString& text, int viewWidth)
    {
        edit.setText(text);
        view.resize(viewWidth, 400);
    }

    int FindWidth() { return FindEditorWidth(edit, view); }

    QLineEdit edit;
    QWidget view;
};

}

/// How wide the editor is made for its text.
class EditorWidthTest final : public QObject
{
    Q_OBJECT

private slots:
    void shortTextNeedsNoMore_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("none") << "";
        QTest::newRow("digit") << "5";
        QTest::newRow("some digits") << "12.5";
    }

    void shortTextNeedsNoMore()
    {
        QFETCH(QString, text);
        Editor editor(text, 1000);

        QCOMPARE(editor.FindWidth(), 0);
    }

    void longTextIsShownWhole()
    {
        const QString text = "100*sqrt(2)+25.4*cos(30)";
        Editor editor(text, 1000);

        QCOMPARE(editor.FindWidth(), editor.edit.fontMetrics().horizontalAdvance(text) + 16);
    }

    void widthIsThatOfTheFontInUse()
    {
        const QString text = "1234";
        Editor editor(text, 2000);
        editor.edit.setStyleSheet("font-size: 90px");
        QFont font(editor.edit.font());
        font.setPixelSize(90);

        QCOMPARE(editor.FindWidth(), QFontMetrics(font).horizontalAdvance(text) + 16);
    }

    void viewBoundsTheWidth_data()
    {
        QTest::addColumn<int>("viewWidth");
        QTest::addColumn<int>("width");

        QTest::newRow("wide") << 300 << 292;
        QTest::newRow("one pixel wider than it opens") << 105 << 97;
        QTest::newRow("as wide as it opens") << 104 << 0;
        QTest::newRow("narrow") << 50 << 0;
        QTest::newRow("narrower than its margins") << 5 << 0;
    }

    void viewBoundsTheWidth()
    {
        QFETCH(int, viewWidth);
        Editor editor(QString(400, '8'), viewWidth);

        QTEST(editor.FindWidth(), "width");
    }

    void askingChangesNothing()
    {
        Editor editor(QString(400, '8'), 300);
        const QSize before = editor.edit.size();

        editor.FindWidth();

        QCOMPARE(editor.edit.size(), before);
        QCOMPARE(editor.edit.text(), QString(400, '8'));
        QCOMPARE(editor.view.width(), 300);
    }
};

VESK_TESTS(EditorWidthTest);
#include "EditorWidthTest.moc"
