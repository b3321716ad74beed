#include "Inspection/PaneDescription.h"
#include "HostUi/PaneRun.h"

#include <nlohmann/json.hpp>

namespace vesk::test
{

using Json = nlohmann::ordered_json;

/// The description of panes.
class PaneDescriptionTest : public QObject
{
    Q_OBJECT

private slots:
    void panesAreToldInTheOrderOfTheirNames();
    void aPaneIsWhereItStands();
    void theFrontOfTabbedPanesIsTold();
    void aPaneBehindATabIsWhereTheFrontIs();
    void aFloatingPaneReturnsToItsArea();
    void aHiddenPaneIsNotVisible();
    void panesThatTheManagerDoesNotKnowAreLeftOut();

private:
    static Json Describe(Run& run)
    {
        Run::Settle();
        Json panes = Json::array();
        DescribePanes(run.window, panes);
        return panes;
    }
};

void PaneDescriptionTest::panesAreToldInTheOrderOfTheirNames()
{
    Run run({"C", "A", "B"});
    run.manager.GetDock(L"A")->SetTitle(L"图元");

    const Json panes = Describe(run);

    QCOMPARE(panes.size(), std::size_t(3));
    QCOMPARE(panes[0]["name"].get<std::string>(), std::string("A"));
    QCOMPARE(panes[0]["title"].get<std::string>(), std::string("图元"));
    QCOMPARE(panes[2]["name"].get<std::string>(), std::string("C"));
}

void PaneDescriptionTest::aPaneIsWhereItStands()
{
    Run run;

    const Json pane = Describe(run)[3];

    const QRect place(run.Pane("D")->mapToGlobal(QPoint()), run.Pane("D")->size());
    QCOMPARE(pane["rect"].dump(),
             Json({place.x(), place.y(), place.width(), place.height()}).dump());
    QCOMPARE(pane["area"].get<std::string>(), std::string("right"));
    QVERIFY(pane["visible"].get<bool>());
    QVERIFY(pane["current"].get<bool>());
    QVERIFY(!pane["floating"].get<bool>());
    QVERIFY(pane["tabbedWith"].empty());
}

void PaneDescriptionTest::theFrontOfTabbedPanesIsTold()
{
    Run run;
    run.Arrange();

    const Json panes = Describe(run);

    QVERIFY(panes[0]["current"].get<bool>());
    QVERIFY(!panes[1]["current"].get<bool>());
    QVERIFY(panes[1]["visible"].get<bool>());
    QCOMPARE(panes[0]["tabbedWith"].dump(), std::string(R"(["B","C"])"));
}

void PaneDescriptionTest::aPaneBehindATabIsWhereTheFrontIs()
{
    Run run;
    run.Arrange();

    const Json panes = Describe(run);

    QCOMPARE(panes[1]["rect"].dump(), panes[0]["rect"].dump());
}

void PaneDescriptionTest::aFloatingPaneReturnsToItsArea()
{
    Run run;
    run.Arrange();

    const Json pane = Describe(run)[3];

    QVERIFY(pane["floating"].get<bool>());
    QVERIFY(pane["current"].get<bool>());
    QCOMPARE(pane["area"].get<std::string>(), std::string("right"));
}

void PaneDescriptionTest::aHiddenPaneIsNotVisible()
{
    Run run;
    run.Arrange();

    const Json pane = Describe(run)[4];

    QVERIFY(!pane["visible"].get<bool>());
    QVERIFY(pane["rect"].is_null());
}

void PaneDescriptionTest::panesThatTheManagerDoesNotKnowAreLeftOut()
{
    Run run;
    run.manager.DeleteDock(L"A");
    run.window.addDockWidget(Qt::TopDockWidgetArea, new QDockWidget(QStringLiteral("other")));

    const Json panes = Describe(run);

    QCOMPARE(panes.size(), std::size_t(5));
    QCOMPARE(panes[0]["name"].get<std::string>(), std::string("B"));
}

}

VESK_TESTS(vesk::test::PaneDescriptionTest);
#include "PaneDescriptionTest.moc"
