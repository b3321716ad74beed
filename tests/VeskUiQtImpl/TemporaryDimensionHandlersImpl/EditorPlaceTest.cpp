#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"
#include "View/UiViewUtility.h"

namespace vesk::test
{

/// The position of the editor.
class EditorPlaceTest : public QObject
{
    Q_OBJECT

private slots:
    void theEditorIsCentredOnItsPoint_data();
    void theEditorIsCentredOnItsPoint();
    void theEditorStandsInTheViewOfTheHandler();
    void theEditorOfAnEmbeddedViewIsParkedFarOff();
    void theEditorOfAViewInAPanelOfAnotherIsNot();
    void placingDoesNothingElse();
    void placingWithoutAnEditorDoesNothing();
    void placingWithoutAViewDoesNothing();
    void placingWithoutAViewWidgetIsReported();
    void placingWithoutInputEndsIt();
    void placingInAnUnknownStateIsReported();
};

void EditorPlaceTest::theEditorIsCentredOnItsPoint_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("length") << 1;
    QTest::newRow("angle") << 2;
    QTest::newRow("radius") << 3;
    QTest::newRow("central angle") << 4;
    QTest::newRow("width") << 5;
    QTest::newRow("height") << 6;
}

/// Where the top left corner of the editor belongs for a world point.
QPoint CornerFor(const TestView& view, const Vector3d& world, const QSize& size)
{
    int x = 0;
    int y = 0;
    float depth = 0;
    UiViewUtility::WorldPositionToScreenPosition(&view, world, x, y, depth);
    return view.mapToGlobal(QPoint(0, 0)) + QPoint(x - size.width() / 2, y - size.height() / 2);
}

void EditorPlaceTest::theEditorIsCentredOnItsPoint()
{
    QFETCH(int, state);
    HandlerFixture f;
    f.host.view.move(30, 20);
    f.TypeLength("5");
    f.Editor()->setFixedSize(97, 27);
    const Vector3d world(10.0 * state, -7.0 * state, 0);
    f.Data()[InputState(state)].textPosition = world;
    f.SetState(InputState(state));

    QVERIFY(QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition"));

    QCOMPARE(f.Editor()->pos(), CornerFor(f.host.view, world, QSize(97, 27)));
    QCOMPARE(f.State(), InputState(state));
}

void EditorPlaceTest::theEditorStandsInTheViewOfTheHandler()
{
    HandlerFixture f;
    f.TypeLength("5");
    const Vector3d world(12, 34, 0);
    f.Data()[InputState::IS_Length].textPosition = world;
    TestView other(2, &f.host.window);
    other.move(50, 60);
    f.host.core.GetViewManager().AddView(&other);
    f.host.core.GetViewManager().SetCurrentView(&other);

    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");

    QCOMPARE(f.Editor()->pos(), CornerFor(f.host.view, world, f.Editor()->size()));
    f.host.core.GetViewManager().RemoveView(&other);
}

void EditorPlaceTest::theEditorOfAnEmbeddedViewIsParkedFarOff()
{
    HandlerFixture f;
    TestView embedded(2, &f.host.view);
    f.host.core.GetViewManager().AddView(&embedded);
    f.host.core.GetViewManager().SetCurrentView(&embedded);
    const Vector3d world(12, 34, 0);
    f.Data()[InputState::IS_Length].textPosition = world;

    f.TypeLength("5");

    const auto* pEditor = embedded.findChild<QLineEdit*>("ViewInputLineEdit");
    QCOMPARE(pEditor->pos(), CornerFor(embedded, world, pEditor->size()) + QPoint(10000, 10000));
    f.host.core.GetViewManager().RemoveView(&embedded);
}

void EditorPlaceTest::theEditorOfAViewInAPanelOfAnotherIsNot()
{
    HandlerFixture f;
    QWidget panel(&f.host.view);
    TestView inner(2, &panel);
    f.host.core.GetViewManager().AddView(&inner);
    f.host.core.GetViewManager().SetCurrentView(&inner);
    const Vector3d world(12, 34, 0);
    f.Data()[InputState::IS_Length].textPosition = world;

    f.TypeLength("5");

    const auto* pEditor = inner.findChild<QLineEdit*>("ViewInputLineEdit");
    QCOMPARE(pEditor->pos(), CornerFor(inner, world, pEditor->size()));
    f.host.core.GetViewManager().RemoveView(&inner);
}

void EditorPlaceTest::placingDoesNothingElse()
{
    HandlerFixture f;
    f.TypeLength("56");
    f.Editor()->setSelection(0, 1);
    f.Editor()->hide();
    const int redrawCount = f.host.view.GetRedrawCount();
    const QPoint position = f.Editor()->pos();
    f.Data()[InputState::IS_Length].textPosition = Vector3d(99, 99, 0);

    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");

    QVERIFY(f.Editor()->pos() != position);
    QVERIFY(f.Editor()->isHidden());
    QCOMPARE(f.Editor()->text(), QString("56"));
    QCOMPARE(f.Editor()->selectedText(), QString("5"));
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void EditorPlaceTest::placingWithoutAnEditorDoesNothing()
{
    HandlerFixture f;
    f.SetState(InputState::IS_Length);
    f.host.view.SetWindowId(0);

    f.Handler().metaObject()->invokeMethod(&f.Object(), "ResetEditorPosition");

    QCOMPARE(f.State(), InputState::IS_Length);
}

void EditorPlaceTest::placingWithoutAViewDoesNothing()
{
    HandlerFixture f;
    f.TypeLength("5");
    const QPoint position = f.Editor()->pos();
    f.Data()[InputState::IS_Length].textPosition = Vector3d(99, 99, 0);
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");

    QCOMPARE(f.Editor()->pos(), position);
}

void EditorPlaceTest::placingWithoutAViewWidgetIsReported()
{
    HandlerFixture f;
    f.TypeLength("5");
    const QPoint position = f.Editor()->pos();
    f.Data()[InputState::IS_Length].textPosition = Vector3d(99, 99, 0);
    f.host.view.SetWindowId(0);

    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");

    EXPECT_WARNING(f.host.warnings, L"pNqView为空。", std::string(BaseClass) + "SetEditorPosition");
    QCOMPARE(f.Editor()->pos(), position);
}

void EditorPlaceTest::placingWithoutInputEndsIt()
{
    HandlerFixture f;
    f.TypeLength("5");
    f.SetState(InputState::IS_None);

    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");

    QVERIFY(f.Editor()->isHidden());
}

void EditorPlaceTest::placingInAnUnknownStateIsReported()
{
    HandlerFixture f;
    f.TypeLength("5");
    const QPoint position = f.Editor()->pos();
    f.SetState(InputState(7));

    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");

    EXPECT_WARNING(f.host.warnings, L"不该运行至此。",
                   std::string(BaseClass) + "ResetEditorPosition");
    QCOMPARE(f.Editor()->pos(), position);
    QVERIFY(f.Editor()->isVisible());
}

}

VESK_TESTS(vesk::test::EditorPlaceTest);
#include "EditorPlaceTest.moc"
