#include "Desktop/DesktopTest.h"
#include "Desktop/FocusMonitor.h"

namespace vesk
{

/// Keys go where the user last clicked.
class FocusTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void lineEditOfTheRibbonTakesTheKeys();
    void digitsTypedInTheLineEditOpenNoDimension();
    void startingAToolGivesTheKeysToTheView();
    void keysStayWithTheToolWhateverIsClicked_data();
    void keysStayWithTheToolWhateverIsClicked();
    void keysStayWithTheValueWhateverIsClicked_data();
    void keysStayWithTheValueWhateverIsClicked();
    void aChosenColourLeavesTheKeysWithTheTool();
    void aChosenColourLeavesTheKeysWithTheValue();
    void aChosenUnitEndsTheValueAndLeavesTheKeysWithTheTool();
    void aMenuThatIsClosedLeavesTheKeysWithTheValue();
    void keyboardIsNeverNobodysWhenTheValueIsDone_data();
    void keyboardIsNeverNobodysWhenTheValueIsDone();
    void keysComeBackFromTheLineEditToo();
    void escapeGivesTheNameBack();
    void undoAfterANameIsTheDrawings();

private:
    bool WaitForName(const QString& text);
    bool WaitForFocusInEditor();
    bool BeginValue();
    bool ChooseSecond(const QString& boxId, const QStringList& keysAfterwards);
    void AddControls() const;
};

bool FocusTest::WaitForName(const QString& text)
{
    return Session().WaitFor([&](const UiTree& tree) {
        const std::optional<UiControl> name = tree.FindControl("Sketcher.DrawingName");
        return name && name->text == text;
    });
}

bool FocusTest::WaitForFocusInEditor()
{
    return Session().WaitFor(
        [](const UiTree& tree) { return tree.GetJson()["editor"].toObject()["focus"].toBool(); });
}

/// Starts the line tool and opens the editor with a 5.
bool FocusTest::BeginValue()
{
    return Session().BeginLine() && Session().MoveInView(QPointF(80.0, 40.0)) &&
           Session().Type("5") && Session().WaitForEditor("5") && WaitForFocusInEditor();
}

/// Opens the list of a box with the mouse and selects its second item with the keys, in one stream
/// with those that follow.
bool FocusTest::ChooseSecond(const QString& boxId, const QStringList& keysAfterwards)
{
    const int before = Session().Input().CountWindows();
    return Session().Click(boxId) &&
           PollUntil([&] { return Session().Input().CountWindows() > before; }, 10000) &&
           Session().Type("", QStringList{"Down", "Return"} + keysAfterwards);
}

void FocusTest::AddControls() const
{
    QTest::addColumn<QString>("control");
    QTest::newRow("check box") << "Sketcher.Snap.Grid";
    QTest::newRow("button of the unit that is shown") << "Sketcher.Unit.mm";
    QTest::newRow("command") << "Sketcher.KeyStrip";
}

void FocusTest::lineEditOfTheRibbonTakesTheKeys()
{
    QVERIFY(Session().Click("Sketcher.DrawingName"));

    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("Plan B-12.5") +
                                   QStringList{"Return"}));

    QVERIFY(WaitForName("Plan B-12.5"));
}

void FocusTest::digitsTypedInTheLineEditOpenNoDimension()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Click("Sketcher.DrawingName"));

    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("314") +
                                   QStringList{"Return"}));

    QVERIFY(WaitForName("314"));
    QVERIFY(!Session().Tree().FindEditor());
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));
    QCOMPARE(Session().Tree().GetEntityCount(), 0);
}

void FocusTest::startingAToolGivesTheKeysToTheView()
{
    QVERIFY(Session().Click("Sketcher.DrawingName"));
    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("A")));
    QVERIFY(WaitForName("A"));
    QVERIFY(Session().BeginLine());

    QVERIFY(Session().Type("64", {"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(WaitForName("A"));
}

void FocusTest::keysStayWithTheToolWhateverIsClicked_data()
{
    AddControls();
}

void FocusTest::keysStayWithTheToolWhateverIsClicked()
{
    QFETCH(QString, control);
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Click(control));

    QVERIFY(Session().Type("64", {"Return"}));

    QVERIFY(DrawsOneLine(64.0));
}

void FocusTest::keysStayWithTheValueWhateverIsClicked_data()
{
    AddControls();
}

void FocusTest::keysStayWithTheValueWhateverIsClicked()
{
    QFETCH(QString, control);
    QVERIFY(BeginValue());
    QVERIFY(Session().Click(control));

    QVERIFY(WaitForFocusInEditor());
    QVERIFY(Session().Type("2", {"Return"}));

    QVERIFY(DrawsOneLine(52.0));
}

void FocusTest::aChosenColourLeavesTheKeysWithTheTool()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));

    QVERIFY(ChooseSecond("Sketcher.LineColour", InputDriver::Text("64") + QStringList{"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(qAbs(lines[0].GetLength() - 64.0) <= 1e-9);
    QCOMPARE(lines[0].colour, QString("red"));
}

void FocusTest::aChosenColourLeavesTheKeysWithTheValue()
{
    QVERIFY(BeginValue());

    QVERIFY(ChooseSecond("Sketcher.LineColour", InputDriver::Text("2") + QStringList{"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QVERIFY(qAbs(lines[0].GetLength() - 52.0) <= 1e-9);
    QCOMPARE(lines[0].colour, QString("red"));
}

void FocusTest::aChosenUnitEndsTheValueAndLeavesTheKeysWithTheTool()
{
    QVERIFY(BeginValue());
    QVERIFY(Session().Click("Sketcher.Unit.cm"));
    QVERIFY(Session().WaitForNoEditor());

    QVERIFY(Session().Type("3", {"Return"}));

    QVERIFY(DrawsOneLine(30.0));
}

void FocusTest::aMenuThatIsClosedLeavesTheKeysWithTheValue()
{
    QVERIFY(BeginValue());
    QVERIFY(Session().OpenMenu("Sketcher.Zoom", "Sketcher.Zoom.In"));
    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(
        Session().WaitFor([](const UiTree& tree) { return !tree.FindEntry("Sketcher.Zoom.In"); }));

    QVERIFY(WaitForFocusInEditor());
    QVERIFY(Session().Type("2", {"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(qAbs(CloseAndReadLines().value(0).GetLength() - 52.0) <= 1e-9);
}

void FocusTest::keyboardIsNeverNobodysWhenTheValueIsDone_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("taken") << "Return";
    QTest::newRow("taken with the blank") << "space";
    QTest::newRow("given up") << "Escape";
}

void FocusTest::keyboardIsNeverNobodysWhenTheValueIsDone()
{
    QFETCH(QString, key);
    const QString window = Session().Input().GetKeyboardOwner();
    FocusMonitor monitor(Server().GetDisplay(), window);
    // The monitor receives nothing at first.
    QTRY_VERIFY(BeginValue() && !monitor.Take().isEmpty());
    QTRY_VERIFY(Session().Input().GetKeyboardOwner() != window);
    monitor.Take();

    // The reaction of the window manager to a closed editor comes too late for keys typed next.
    Server().PauseWindowManager();
    const bool isDone = Session().Type("", {key}) && Session().WaitForNoEditor() &&
                        PollUntil([&] { return Session().Input().GetKeyboardOwner() == window; });
    const QStringList events = monitor.Take();
    Server().ResumeWindowManager();

    QVERIFY(isDone);
    QCOMPARE(events, QStringList{"FocusIn NotifyNonlinear"});
}

void FocusTest::keysComeBackFromTheLineEditToo()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().MoveInView(QPointF(80.0, 40.0)));
    QVERIFY(Session().Click("Sketcher.DrawingName"));
    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("A")));
    QVERIFY(WaitForName("A"));
    QVERIFY(Session().Click("Sketcher.Snap.Grid"));

    QVERIFY(Session().Type("64", {"Return"}));

    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(WaitForName("A"));
    QCOMPARE(CloseAndReadLines().size(), 1);
    QVERIFY(ReadBytes(Session().PathOf("journal")).contains("\"value\":\"A\""));
}

void FocusTest::escapeGivesTheNameBack()
{
    QVERIFY(Session().Click("Sketcher.DrawingName"));
    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("A") +
                                   QStringList{"Return"} + InputDriver::Text("B")));
    QVERIFY(WaitForName("AB"));

    QVERIFY(Session().Type("", {"Escape"}));

    QVERIFY(WaitForName("A"));
    QVERIFY(Session().Type("", {"Return"}));
    QVERIFY(Session().WaitForRest());
    QVERIFY(WaitForName("A"));
    QVERIFY(CloseProgram());
    QCOMPARE(ReadBytes(Session().PathOf("journal")).count("\"kind\":\"property\""), 1);
}

void FocusTest::undoAfterANameIsTheDrawings()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("64", {"Return", "Escape"}));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().WaitForAction(QString()));
    QVERIFY(Session().Click("Sketcher.DrawingName"));
    QVERIFY(
        Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("A") + QStringList{"Return"}));
    QVERIFY(WaitForName("A"));

    QVERIFY(Session().Type("", {"ctrl+z"}));
    QVERIFY(WaitForName("未命名"));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().Type("", {"ctrl+z"}));

    QVERIFY(Session().WaitForEntities(0));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::FocusTest);
#include "FocusTest.moc"
