#include "View/ViewDescription.h"

#include "SketchViewFixture.h"

using namespace vesk;
using namespace vesk::test;

namespace
{

struct DescriptionFixture : SketchViewFixture
{
    QString Get()
    {
        QCoreApplication::processEvents();
        return view.accessibleDescription();
    }

    ViewDescription* pDescription = new ViewDescription(workspace, view);
};

}

/// What screen readers are told of the drawing.
class ViewDescriptionTest final : public QObject
{
    Q_OBJECT

private slots:
    void emptyDrawingSaysSo()
    {
        DescriptionFixture f;

        QCOMPARE(f.view.accessibleName(), QString("图纸"));
        QCOMPARE(f.Get(), QString("图元：0"));
    }

    void promptComesFirst()
    {
        DescriptionFixture f;

        f.view.SetViewText(L"直线");

        QCOMPARE(f.Get(), QString("直线；图元：0"));
    }

    void whatWasDrawnIsTold()
    {
        DescriptionFixture f;

        f.workspace.sketch.AddLine({0, 0, 0}, {50, 0, 0});

        QCOMPARE(f.Get(), QString("直线 #1：长度 50.000 mm，角度 0.00°；图元：1"));
    }

    void itIsNoLongerToldAfterTheNextChange()
    {
        DescriptionFixture f;
        const int line = f.workspace.sketch.AddLine({0, 0, 0}, {50, 0, 0});
        f.workspace.sketch.AddLine({0, 0, 0}, {0, 20, 0});

        f.workspace.sketch.Erase(line);

        QCOMPARE(f.Get(), QString("图元：1"));
    }

    void selectionIsTold()
    {
        DescriptionFixture f;
        const int line = f.workspace.sketch.AddLine({0, 0, 0}, {50, 0, 0});
        f.Get();
        f.workspace.selection.Select({line});

        QVERIFY(f.Get().endsWith("；已选 1 个图元；图元：1"));
    }

    void cursorIsToldWhereTheArrowKeysPutIt()
    {
        DescriptionFixture f;
        f.workspace.sketch.AddLine({10, -50, 0}, {10, 50, 0});
        f.MoveTo(-20, 4);
        QVERIFY(!f.Get().contains("X"));

        f.Press(Qt::Key_Right);
        QVERIFY(f.Get().contains("X -10.000，Y 0.000 mm；"));
        f.Press(Qt::Key_Right);
        f.Press(Qt::Key_Right);

        QVERIFY(f.Get().contains("X 10.000，Y 0.000 mm，直线 #1"));
    }

    void changesAreToldOnce()
    {
        DescriptionFixture f;
        f.Get();

        f.workspace.sketch.AddLine({0, 0, 0}, {50, 0, 0});
        f.view.SetViewText(L"直线");

        QCOMPARE(f.view.accessibleDescription(), QString("图元：0"));
        QVERIFY(f.Get().startsWith("直线；"));
    }
};

VESK_TESTS(ViewDescriptionTest);
#include "ViewDescriptionTest.moc"
