#include "Desktop/DesktopTest.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace vesk
{

namespace
{

const QString s_entities = QStringLiteral("Entities");
const QString s_properties = QStringLiteral("PropertyWidget");
const QString s_journal = QStringLiteral("Journal");
const QString s_inspector = QStringLiteral("Inspector");

const QString s_length = QStringLiteral("Sketcher.Property.length");

const QString s_menu = QStringLiteral("Sketcher.Panes");
const QString s_hideAll = QStringLiteral("Sketcher.HideAllPanes");
const QString s_default = QStringLiteral("Sketcher.DefaultLayout");

QString CommandOf(const QString& pane)
{
    return QStringLiteral("Sketcher.Pane.") + pane;
}

QRect RectOf(const QJsonObject& json)
{
    const QJsonArray rect = json["rect"].toArray();
    return {rect[0].toInt(), rect[1].toInt(), rect[2].toInt(), rect[3].toInt()};
}

QJsonObject FindPane(const UiTree& tree, const QString& name)
{
    for (const QJsonValue& pane : tree.GetJson()["docks"].toArray())
    {
        if (pane["name"].toString() == name)
            return pane.toObject();
    }
    return {};
}

QJsonArray PanesOf(const UiTree& tree)
{
    return tree.GetJson()["docks"].toArray();
}

QStringList ToLines(const QJsonArray& panes)
{
    QStringList lines;
    for (const QJsonValue& pane : panes)
        lines << QString::fromUtf8(QJsonDocument(pane.toObject()).toJson(QJsonDocument::Compact));
    return lines;
}

}

/// Panes, dragged, tabbed, floated, closed and brought back by a real user.
class PaneTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void theViewHasRoomBesideThePanes();
    void arrangedPanesComeBackInTheNextRun();
    void aPaneDraggedOutOfTheBottomFloatsAtASizeOfItsOwn();
    void aFloatingPaneComesIntoReachWhenTheScreenShrinks();
    void allAreHiddenAndComeBackAsTheyWere();
    void theFactoryLayoutComesBack();
    void thePanesFollowTheDrawing();
    void aValueIsEditedInThePane();
    void aFormulaWithAUnitIsEditedInThePane();
    void escapeGivesAValueBackInThePane();
    void undoAfterAValueIsTheDrawings();
    void theButtonShowsAllPanesAndEndsTheTool();
    void aDamagedLayoutFileIsSurvived();

private:
    QJsonObject Pane(const QString& name) { return FindPane(Session().Tree(), name); }
    QJsonArray Layout();
    bool Drag(const QString& pane, QPoint to);
    bool WaitForArea(const QString& pane, const QString& area);
    bool WaitForPane(const QString& pane, const char* property, bool is);
    bool ClickTitle(const QString& pane, int fromTheRight);
    bool Restart();
    void CompareLayout(const QJsonArray& expected);
    bool ShowLengthOfALine();
};

/// What a user would consider the layout.
QJsonArray PaneTest::Layout()
{
    Session().WaitForRest();
    return PanesOf(Session().Tree());
}

/// Waits for a layout: panes that float come to their place when the window manager has got round
/// to them. Says which pane differs.
void PaneTest::CompareLayout(const QJsonArray& expected)
{
    Session().WaitFor([&expected](const UiTree& tree) { return PanesOf(tree) == expected; });
    QCOMPARE(ToLines(PanesOf(Session().Tree())), ToLines(expected));
}

/// Drags a pane by its title.
bool PaneTest::Drag(const QString& pane, QPoint to)
{
    const QRect rect = RectOf(Pane(pane));
    return Session().Input().Drag(QPoint(rect.left() + 60, rect.top() + 9), to);
}

bool PaneTest::WaitForArea(const QString& pane, const QString& area)
{
    return Session().WaitFor([&](const UiTree& tree) {
        const QJsonObject json = FindPane(tree, pane);
        return json["area"] == area && !json["floating"].toBool();
    });
}

bool PaneTest::WaitForPane(const QString& pane, const char* property, bool is)
{
    return Session().WaitFor(
        [&](const UiTree& tree) { return FindPane(tree, pane)[property].toBool() == is; });
}

bool PaneTest::ClickTitle(const QString& pane, int fromTheRight)
{
    const QRect rect = RectOf(Pane(pane));
    return Session().Input().Click(QPoint(rect.right() - fromTheRight, rect.top() + 9));
}

bool PaneTest::Restart()
{
    return Session().Close() == 0 && Session().Start();
}

/// A selected line of length 100, with the keyboard focus in its length field.
bool PaneTest::ShowLengthOfALine()
{
    const bool isDrawn = Session().BeginLine() && Session().Type("100", {"Return", "Escape"}) &&
                         Session().WaitForAction(QString()) && Session().Type("", {"Escape"});
    const QRect list = RectOf(Pane(s_entities));
    return isDrawn && Session().Input().Click(QPoint(list.left() + 30, list.top() + 54)) &&
           Session().WaitForText(s_length, "100.000") && Session().Click(s_length);
}

void PaneTest::theViewHasRoomBesideThePanes()
{
    const UiView view = Session().Tree().FindView().value_or(UiView());

    QVERIFY(view.rect.width() >= 600);
    QVERIFY(view.rect.height() >= 500);
    for (const QString& name : {s_entities, s_properties, s_journal, s_inspector})
        QVERIFY2(Pane(name)["visible"].toBool(), qPrintable(name));
    for (const QString& id : {s_menu, s_hideAll, s_default})
    {
        const std::optional<UiControl> control = Session().Tree().FindControl(id);
        QVERIFY2(control && control->isVisible && control->isEnabled, qPrintable(id));
    }
}

void PaneTest::arrangedPanesComeBackInTheNextRun()
{
    constexpr int CloseButton = 9;
    const QRect properties = RectOf(Pane(s_properties));

    // To another area, below the pane already there.
    QVERIFY(Drag(s_entities, QPoint(properties.center().x(), properties.bottom() - 20)));
    QVERIFY(WaitForArea(s_entities, "right"));
    QVERIFY(Session().WaitForRest());
    QVERIFY(Pane(s_entities)["tabbedWith"].toArray().isEmpty());

    // Onto another pane: a tab.
    QVERIFY(Drag(s_entities, RectOf(Pane(s_properties)).center()));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        return FindPane(tree, s_entities)["tabbedWith"] == QJsonArray{s_properties};
    }));

    // A window of its own.
    QVERIFY(Session().WaitForRest());
    QVERIFY(Drag(s_journal, QPoint(500, 400)));
    QVERIFY(WaitForPane(s_journal, "floating", true));

    // Closed, and reopened through the menu.
    QVERIFY(Session().WaitForRest());
    QVERIFY(ClickTitle(s_inspector, CloseButton));
    QVERIFY(WaitForPane(s_inspector, "visible", false));
    QVERIFY(Session().OpenMenu(s_menu, CommandOf(s_inspector)));
    QCOMPARE(Session().Tree().FindEntry(CommandOf(s_inspector))->isChecked,
             std::make_optional(false));
    QVERIFY(Session().ClickEntry(CommandOf(s_inspector)));
    QVERIFY(WaitForPane(s_inspector, "visible", true));

    // And one hidden through the menu.
    QVERIFY(Session().OpenMenu(s_menu, CommandOf(s_properties)));
    QCOMPARE(Session().Tree().FindEntry(CommandOf(s_properties))->isChecked,
             std::make_optional(true));
    QVERIFY(Session().ClickEntry(CommandOf(s_properties)));
    QVERIFY(WaitForPane(s_properties, "visible", false));

    const QJsonArray before = Layout();
    QVERIFY(Restart());
    CompareLayout(before);
}

void PaneTest::aPaneDraggedOutOfTheBottomFloatsAtASizeOfItsOwn()
{
    const QRect docked = RectOf(Pane(s_journal));
    const QPoint held(docked.left() + docked.width() * 3 / 4, docked.top() + 9);

    QVERIFY(Session().Input().Drag(held, QPoint(held.x(), 420)));
    QVERIFY(WaitForPane(s_journal, "floating", true));

    QVERIFY(Session().WaitFor([&held](const UiTree& tree) {
        const QRect floating = RectOf(FindPane(tree, s_journal));
        return floating.width() == 480 && floating.contains(QPoint(held.x(), 420));
    }));
    QCOMPARE(RectOf(Pane(s_journal)).height(), docked.height());
}

/// Makes the screen smaller during its lifetime.
struct SmallScreen
{
    SmallScreen(const InputDriver& hand, QSize size) : input(hand), isSet(hand.ResizeScreen(size))
    {}
    ~SmallScreen() { input.ResizeScreen(QSize(1400, 1000)); }
    SmallScreen(const SmallScreen&) = delete;
    SmallScreen& operator=(const SmallScreen&) = delete;

    const InputDriver& input;
    const bool isSet;
};

void PaneTest::aFloatingPaneComesIntoReachWhenTheScreenShrinks()
{
    const QRect docked = RectOf(Pane(s_journal));
    QVERIFY(Session().Input().Drag(QPoint(docked.right() - 120, docked.top() + 9),
                                   QPoint(docked.right() - 300, 600)));
    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        const QRect floating = RectOf(FindPane(tree, s_journal));
        return floating.width() == 480 && floating.right() > 800;
    }));

    const SmallScreen screen(Session().Input(), QSize(800, 600));
    QVERIFY(screen.isSet);

    QVERIFY(Session().WaitFor([](const UiTree& tree) {
        return QRect(0, 0, 800, 600).contains(RectOf(FindPane(tree, s_journal)));
    }));
    QVERIFY(Pane(s_journal)["floating"].toBool());
    QVERIFY(ClickTitle(s_journal, 9));
    QVERIFY(WaitForPane(s_journal, "visible", false));
}

void PaneTest::allAreHiddenAndComeBackAsTheyWere()
{
    QVERIFY(Session().OpenMenu(s_menu, CommandOf(s_entities)));
    QVERIFY(Session().ClickEntry(CommandOf(s_entities)));
    QVERIFY(WaitForPane(s_entities, "visible", false));
    const QJsonArray before = Layout();

    QVERIFY(Session().Click(s_hideAll));
    QVERIFY(WaitForPane(s_journal, "visible", false));
    for (const QString& name : {s_entities, s_properties, s_inspector})
        QVERIFY2(!Pane(name)["visible"].toBool(), qPrintable(name));
    // If the program is closed now, the next run has the previous layout.
    QVERIFY(Restart());
    CompareLayout(before);

    QVERIFY(Session().Click(s_hideAll));
    QVERIFY(WaitForPane(s_journal, "visible", false));
    QVERIFY(Session().Click(s_hideAll));
    QVERIFY(WaitForPane(s_journal, "visible", true));
    CompareLayout(before);
}

void PaneTest::theFactoryLayoutComesBack()
{
    const QJsonArray factory = Layout();
    QVERIFY(Drag(s_entities, QPoint(500, 400)));
    QVERIFY(WaitForPane(s_entities, "floating", true));
    QVERIFY(Session().OpenMenu(s_menu, CommandOf(s_journal)));
    QVERIFY(Session().ClickEntry(CommandOf(s_journal)));
    QVERIFY(WaitForPane(s_journal, "visible", false));

    QVERIFY(Session().Click(s_default));

    QVERIFY(WaitForPane(s_journal, "visible", true));
    CompareLayout(factory);
}

void PaneTest::thePanesFollowTheDrawing()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("100", {"Return"}));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().WaitForAction(QString()));

    // The first row of the list, below its header.
    const QRect list = RectOf(Pane(s_entities));
    QVERIFY(Session().Input().Click(QPoint(list.left() + 30, list.top() + 54)));

    QVERIFY(Session().WaitForText("Sketcher.Property.length", "100.000"));
    CloseProgram();
    QVERIFY(ReadBytes(Session().PathOf("journal")).contains("\"selection\""));
}

void PaneTest::aValueIsEditedInThePane()
{
    QVERIFY(ShowLengthOfALine());
    QVERIFY(Session().Type("", {"ctrl+a"}));
    QVERIFY(Session().Type("62.5", {"Return"}));
    QVERIFY(Session().WaitForRest());

    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].GetLength(), 62.5);
    QVERIFY(ReadBytes(Session().PathOf("journal")).contains("Sketcher.SetProperty"));
}

void PaneTest::aFormulaWithAUnitIsEditedInThePane()
{
    QVERIFY(ShowLengthOfALine());

    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("1m-5cm") +
                                   QStringList{"Return"}));

    QVERIFY(Session().WaitForText(s_length, "950.000"));
    const QVector<DrawnLine> lines = CloseAndReadLines();
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].GetLength(), 950.0);
}

void PaneTest::escapeGivesAValueBackInThePane()
{
    QVERIFY(ShowLengthOfALine());
    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("62")));
    QVERIFY(Session().WaitForText(s_length, "62"));

    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().WaitForText(s_length, "100.000"));
    QVERIFY(Session().Type("", {"Return", "Tab"}));
    QVERIFY(Session().WaitForRest());

    QCOMPARE(CloseAndReadLines().value(0).GetLength(), 100.0);
    QVERIFY(!ReadBytes(Session().PathOf("journal")).contains("Sketcher.SetProperty"));
}

void PaneTest::undoAfterAValueIsTheDrawings()
{
    QVERIFY(ShowLengthOfALine());
    QVERIFY(Session().Type("", QStringList{"ctrl+a"} + InputDriver::Text("62.500") +
                                   QStringList{"Return"}));
    QVERIFY(Session().WaitForText("Sketcher.Property.end.x", "62.500"));

    QVERIFY(Session().Type("", {"ctrl+z"}));

    QVERIFY(Session().WaitForText(s_length, "100.000"));
    QVERIFY(Session().WaitForText("Sketcher.Property.end.x", "100.000"));
    QCOMPARE(CloseAndReadLines().value(0).GetLength(), 100.0);
    QCOMPARE(ReadBytes(Session().PathOf("journal")).count("\"id\":\"Sketcher.Undo\""), 1);
}

void PaneTest::theButtonShowsAllPanesAndEndsTheTool()
{
    QVERIFY(Session().Click(s_hideAll));
    QVERIFY(WaitForPane(s_journal, "visible", false));
    QVERIFY(Session().BeginLine());

    QVERIFY(Session().Click(s_menu));

    QVERIFY(Session().WaitForAction(QString()));
    for (const QString& name : {s_entities, s_properties, s_journal, s_inspector})
        QVERIFY2(WaitForPane(name, "visible", true), qPrintable(name));
}

void PaneTest::aDamagedLayoutFileIsSurvived()
{
    const QJsonArray factory = Layout();
    QCOMPARE(Session().Close(), 0);
    const QString path = Session().PathOf("config/sketcher/layout.json");
    QByteArray text = ReadBytes(path);
    QVERIFY(!text.isEmpty());
    text[text.size() / 2] = '!';
    QVERIFY(WriteBytes(path, text));

    QVERIFY(Session().Start());

    CompareLayout(factory);
    QCOMPARE(Session().Close(), 0);
    QVERIFY(Session().Start());
    QCOMPARE(ReadBytes(path + ".kept"), text);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::PaneTest);
#include "PaneTest.moc"
