#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/TestValues.h"

#include <QCommonStyle>
#include <QPointer>
#include <QStylePlugin>

namespace
{

int s_styleCount = 0;

}

/// Provides Qt with the style that only one system has.
class SystemStylePlugin final : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QStyleFactoryInterface" FILE "EditorStyle.json")

public:
    QStyle* create(const QString&) override
    {
        ++s_styleCount;
        return new QCommonStyle;
    }
};

Q_IMPORT_PLUGIN(SystemStylePlugin)

namespace vesk::test
{

/// The styles that an editor was given; its style sheet adds one of its own first.
QList<QStyle*> StylesOf(const QLineEdit& editor)
{
    return editor.findChildren<QStyle*>(QString(), Qt::FindDirectChildrenOnly);
}

/// The editor on a platform that has the style it asks for.
class EditorStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { s_styleCount = 0; }
    void theEditorHasAStyleOfItsOwn();
    void theNextHandlerKeepsTheStyleOfTheEditor();
    void theStyleOfAChildIsNotTheEditors();
};

void EditorStyleTest::theEditorHasAStyleOfItsOwn()
{
    HandlerFixture f;

    f.TypeLength("12");

    const QList<QStyle*> styles = StylesOf(*f.Editor());
    QCOMPARE(s_styleCount, 1);
    QCOMPARE(styles.size(), 1);
    QVERIFY(f.Editor()->testAttribute(Qt::WA_SetStyle));
    const QPointer<QStyle> pStyle = styles[0];
    delete f.Editor();
    QVERIFY(pStyle.isNull());
}

void EditorStyleTest::theNextHandlerKeepsTheStyleOfTheEditor()
{
    HandlerFixture f;
    f.TypeLength("12");
    const QList<QStyle*> before = StylesOf(*f.Editor());

    f.opHandler = f.CreateHandler();
    f.TypeLength("34");

    QCOMPARE(s_styleCount, 1);
    QCOMPARE(StylesOf(*f.Editor()), before);
    QVERIFY(f.Editor()->testAttribute(Qt::WA_SetStyle));
}

void EditorStyleTest::theStyleOfAChildIsNotTheEditors()
{
    HandlerFixture f;
    f.TypeLength("12");
    QWidget child(f.Editor());
    StylesOf(*f.Editor())[0]->setParent(&child);

    f.TypeLength("34");

    QCOMPARE(s_styleCount, 2);
    QCOMPARE(StylesOf(*f.Editor()).size(), 1);
}

}

VESK_TESTS(vesk::test::EditorStyleTest);
#include "EditorStyleTest.moc"
