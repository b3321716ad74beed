#include "HostUi/UiTreeWriter.h"

#include "HostUi/PaneRun.h"
#include "HostUi/RibbonFocusFixture.h"
#include "HostUi/WarningReader.h"
#include "Support/JsonValues.h"

#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include <cstddef>

namespace vesk::test
{

using Json = nlohmann::json;

/// The description of everything but controls: views, the value being typed, and the texts shown.
class UiTreeTest : public QObject
{
    Q_OBJECT

private slots:
    void aViewIsToldWithWhatItShows();
    void anOpenEditorIsToldWithItsValue();
    void aTextWithoutAValueIsToldWithTheReason();
    void aPointBeingTypedIsTold();
    void lockedValuesAreTold();
    void theHintIsThatOfTheCurrentView();
    void theRunningActionIsTold();
    void entitiesAreCounted();
    void aWarningOnScreenIsTold();
    void panesAreTold();
    void whatABelongingWindowHoldsIsToldOnce();

private:
    static Json Tell(const DimensionInputController& input)
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("ui"));
        UiTreeWriter writer(file.fileName(), input, [] { return 7; });
        if (!writer.Write() || !file.open(QIODevice::ReadOnly))
            return {};
        return Json::parse(file.readAll().toStdString());
    }

    static Json PlaceOf(const QWidget& widget)
    {
        const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
        return {corner.x(), corner.y(), widget.width(), widget.height()};
    }
};

void UiTreeTest::aViewIsToldWithWhatItShows()
{
    RibbonFocusFixture f;
    f.pView->Fit({10.0, 20.0, 0.0}, {30.0, 60.0, 0.0});
    f.pView->SetPixelsPerUnit(4.0);

    const Json views = Tell(f.input)["views"];

    QCOMPARE(views.size(), std::size_t(1));
    QCOMPARE(views[0], Json({{"id", 2},
                             {"rect", PlaceOf(*f.pView)},
                             {"worldPerPixel", 0.25},
                             {"centre", {20.0, 40.0, 0.0}}}));
}

void UiTreeTest::anOpenEditorIsToldWithItsValue()
{
    RibbonFocusFixture f;
    f.BeginAction();
    QVERIFY(Tell(f.input)["editor"].is_null());
    QLineEdit* pEditor = f.OpenEditor();
    pEditor->setText("12+5");
    pEditor->setSelection(0, 2);
    pEditor->setFocus();
    QTRY_VERIFY(pEditor->hasFocus());

    const Json editor = Tell(f.input)["editor"];

    QCOMPARE(editor, Json({{"text", "12+5"},
                           {"selectedText", "12"},
                           {"rect", PlaceOf(*pEditor)},
                           {"visible", true},
                           {"focus", true},
                           {"state", static_cast<int>(InputState::IS_Length)},
                           {"locked", Json::array()},
                           {"value", 17.0},
                           {"message", ""}}));
}

void UiTreeTest::aTextWithoutAValueIsToldWithTheReason()
{
    RibbonFocusFixture f;
    f.BeginAction();
    QLineEdit* pEditor = f.OpenEditor();

    QTest::keyClick(pEditor, Qt::Key_X);
    QTest::keyClick(pEditor, Qt::Key_Return);

    const Json editor = Tell(f.input)["editor"];
    QVERIFY(editor["value"].is_null());
    QVERIFY(!f.input.GetMessage().isEmpty());
    QCOMPARE(editor["message"], Json(f.input.GetMessage().toStdString()));
}

void UiTreeTest::aPointBeingTypedIsTold()
{
    RibbonFocusFixture f;
    QVERIFY(Tell(f.input)["point"].is_null());
    QTest::keyClick(f.TypePoint(), Qt::Key_Tab);
    QTest::keyClicks(f.input.GetOpenField(), "x");
    QTest::keyClick(f.input.GetOpenField(), Qt::Key_Return);

    const Json tree = Tell(f.input);

    QVERIFY(tree["editor"].is_null());
    QCOMPARE(tree["point"], Json({{"x", "5"},
                                  {"y", "x"},
                                  {"field", "PointY"},
                                  {"rect", PlaceOf(*f.input.GetOpenField())},
                                  {"focus", true},
                                  {"message", f.input.GetTypedPoint()->message.toStdString()}}));
    QVERIFY(!f.input.GetTypedPoint()->message.isEmpty());
}

void UiTreeTest::lockedValuesAreTold()
{
    RibbonFocusFixture f;
    f.BeginAction();
    f.OpenEditor();

    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Angle, true, 30.0);

    QCOMPARE(Tell(f.input)["editor"]["locked"], Json({static_cast<int>(InputState::IS_Angle)}));
}

void UiTreeTest::theHintIsThatOfTheCurrentView()
{
    RibbonFocusFixture f;
    f.pView->SetViewText(L"指定起点");
    QCOMPARE(Tell(f.input)["hint"], Json("指定起点"));

    f.host.core.GetViewManager().SetCurrentView(&f.host.view);

    QCOMPARE(Tell(f.input)["hint"], Json(""));
}

void UiTreeTest::theRunningActionIsTold()
{
    RibbonFocusFixture f;
    QVERIFY(Tell(f.input)["action"].is_null());

    f.BeginAction();

    QCOMPARE(Tell(f.input)["action"], Json("Test"));
}

void UiTreeTest::entitiesAreCounted()
{
    const RibbonFocusFixture f;

    QCOMPARE(Tell(f.input)["entities"], Json(7));
}

void UiTreeTest::aWarningOnScreenIsTold()
{
    RibbonFocusFixture f;
    WarningReader reader;
    DebugMessageMgr& manager = *DebugMessageMgr::GetDebugMessageMgr();
    manager.SetAttended(true);
    Json shown;
    reader.whileShown = [&] { shown = Tell(f.input)["warning"]; };
    QVERIFY(Tell(f.input)["warning"].is_null());

    manager.ShowDebugWarn("File.cpp", 1, "vesk::F::G", L"消息", L"vesk-ui", L"2026-11-21");
    QTRY_VERIFY(!shown.is_null());

    QCOMPARE(shown, Json({{"function", "vesk::F::G"}, {"message", "消息"}, {"suppressed", 0}}));
    f.host.warnings.TakeAny();
}

void UiTreeTest::panesAreTold()
{
    Run run({"A", "B"});
    const DimensionInputController input;

    const Json panes = Tell(input)["docks"];

    QCOMPARE(panes.size(), std::size_t(2));
    QCOMPARE(panes[1]["name"], Json("B"));
    QCOMPARE(panes[1]["rect"], PlaceOf(*run.Pane("B")));
}

void UiTreeTest::whatABelongingWindowHoldsIsToldOnce()
{
    RibbonFocusFixture f;
    auto* pDialog = new QWidget(&f.host.window, Qt::Dialog);
    auto* pButton = new QPushButton(pDialog);
    pButton->setProperty("IsDefinition", true);

    QCOMPARE(Tell(f.input)["controls"].size(), std::size_t(1));
}

}

VESK_TESTS(vesk::test::UiTreeTest);
#include "UiTreeTest.moc"
