#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/TestValues.h"

#include <QStyle>
#include <QStyleFactory>

namespace vesk::test
{

/// The styles that an editor was given; its style sheet adds one of its own first.
QList<QStyle*> StylesOf(const QLineEdit& editor)
{
    return editor.findChildren<QStyle*>(QString(), Qt::FindDirectChildrenOnly);
}

class EditorStyleWindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void theEditorHasTheStyleOfTheSystem();
    void theNextHandlerKeepsTheStyleOfTheEditor();
};

void EditorStyleWindowsTest::theEditorHasTheStyleOfTheSystem()
{
    QVERIFY(QStyleFactory::keys().contains("WindowsVista", Qt::CaseInsensitive));
    HandlerFixture f;

    f.TypeLength("12");

    const QList<QStyle*> styles = StylesOf(*f.Editor());
    QCOMPARE(styles.size(), 1);
    QCOMPARE(styles[0]->metaObject()->className(), "QWindowsVistaStyle");
    QVERIFY(f.Editor()->testAttribute(Qt::WA_SetStyle));
}

void EditorStyleWindowsTest::theNextHandlerKeepsTheStyleOfTheEditor()
{
    HandlerFixture f;
    f.TypeLength("12");
    const QList<QStyle*> before = StylesOf(*f.Editor());

    f.opHandler = f.CreateHandler();
    f.opHandler->GenerateGraphics(&f.context);
    f.TypeLength("34");

    QCOMPARE(StylesOf(*f.Editor()), before);
}

}

VESK_TESTS(vesk::test::EditorStyleWindowsTest);
#include "EditorStyleWindowsTest.moc"
