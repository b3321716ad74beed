#include "Desktop/DesktopTest.h"

namespace vesk
{

namespace
{

const QString s_zoom = QStringLiteral("Sketcher.Zoom");
const QString s_zoomIn = QStringLiteral("Sketcher.Zoom.In");
const QString s_zoomOut = QStringLiteral("Sketcher.Zoom.Out");
const QString s_zoomWindow = QStringLiteral("Sketcher.Zoom.Window");
const QString s_double = QStringLiteral("Sketcher.Zoom.Scale.200");
const QString s_quarter = QStringLiteral("Sketcher.Zoom.Scale.25");

}

/// The menu button: its main part, its arrow and its entries.
class MenuTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void entryIsClicked();
    void entryOfTheSubMenuIsClicked();
    void menuIsUsedWithTheKeys_data();
    void menuIsUsedWithTheKeys();
    void subMenuIsUsedWithTheKeys();
    void escapeClosesOnlyTheMenu();
    void entryChosenWhileALineIsDrawnRunsAfterIt();
    void entryChosenAfterASwitchOfToolsRunsAfterTheSecond();
    void interactiveEntryRunsAfterTheLine();
    void mainPartZoomsToAll();
    void mainPartOnlyEndsTheLine();

private:
    QStringList KeysToTheButton();
    bool OpenSubMenu();
};

/// Moves the focus to the button: its own key tip would click it, so the keys go to the box behind
/// the next group and four steps back.
QStringList MenuTest::KeysToTheButton()
{
    return Session().KeysTo("Sketcher.LineStyle") +
           QStringList{"shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab"};
}

/// Moves the mouse over the last entry, which is the sub-menu, until it is open. A menu ignores the
/// first move, since the pointer may have been there when it opened; and of several queued moves a
/// busy program sees only the last.
bool MenuTest::OpenSubMenu()
{
    // Without an icon, the last entry is lower than the others.
    const QRect above = Session().Tree().FindEntry(s_zoomOut).value_or(UiControl()).rect;
    QPoint place(above.center().x(), above.bottom() + above.height() / 4);
    return Session().WaitFor([&](const UiTree& tree) {
        place.rx() ^= 1;
        return Session().Input().MoveTo(place) && tree.FindEntry(s_double).has_value();
    });
}

void MenuTest::entryIsClicked()
{
    QVERIFY(Session().OpenMenu(s_zoom, s_zoomIn));
    QVERIFY(Session().ClickEntry(s_zoomIn));
    QVERIFY(Session().WaitForScale(2.0));
    QVERIFY(!Session().Tree().FindEntry(s_zoomIn));

    QVERIFY(Session().OpenMenu(s_zoom, s_zoomOut));
    QVERIFY(Session().ClickEntry(s_zoomOut));
    QVERIFY(Session().WaitForScale(1.0));
}

void MenuTest::entryOfTheSubMenuIsClicked()
{
    QVERIFY(Session().OpenMenu(s_zoom, s_zoomOut));
    QVERIFY(OpenSubMenu());
    QVERIFY(Session().ClickEntry(s_double));

    QVERIFY(Session().WaitForScale(2.0));
}

void MenuTest::menuIsUsedWithTheKeys_data()
{
    QTest::addColumn<QString>("key");

    QTest::newRow("down") << "Down";
    QTest::newRow("alt and down") << "alt+Down";
}

void MenuTest::menuIsUsedWithTheKeys()
{
    QFETCH(QString, key);

    QVERIFY(Session().Type("", KeysToTheButton() + QStringList{key}));
    QVERIFY(Session().WaitForEntry(s_zoomIn));
    // In an empty drawing the first entry is disabled.
    QVERIFY(Session().Type("", {"Down", "Down", "Return"}));

    QVERIFY(Session().WaitForScale(2.0));
}

void MenuTest::subMenuIsUsedWithTheKeys()
{
    QVERIFY(Session().Type("", KeysToTheButton() + QStringList{"Down"}));
    QVERIFY(Session().WaitForEntry(s_zoomIn));
    QVERIFY(Session().Type("", {"Up", "Right"}));
    QVERIFY(Session().WaitForEntry(s_quarter));
    QVERIFY(Session().Type("", {"Down", "Down", "Down", "Return"}));

    QVERIFY(Session().WaitForScale(2.0));
}

void MenuTest::escapeClosesOnlyTheMenu()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().OpenMenu(s_zoom, s_zoomIn));

    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().WaitFor([](const UiTree& tree) { return !tree.FindEntry(s_zoomIn); }));
    QCOMPARE(Session().Tree().GetAction(), QString("Sketcher.Line"));
    QVERIFY(Session().Type("12.5", {"Return"}));

    QVERIFY(Session().WaitForEntities(1));
}

void MenuTest::entryChosenWhileALineIsDrawnRunsAfterIt()
{
    constexpr int Times = 3;
    for (int i = 1; i <= Times; ++i)
    {
        QVERIFY(Session().BeginLine(QPointF(0.0, 5.0 * i)));
        QVERIFY(Session().Type("10", {"Return"}));
        QVERIFY(Session().WaitForEntities(i));
        QVERIFY(Session().OpenMenu(s_zoom, s_zoomIn));
        QVERIFY(Session().ClickEntry(s_zoomIn));
        QVERIFY(Session().WaitForAction(QString()));
        QVERIFY(Session().WaitForScale(1 << i));
    }

    QCOMPARE(CloseAndReadLines().size(), Times);
    const QByteArray journal = ReadBytes(Session().PathOf("journal"));
    QCOMPARE(journal.count("\"id\":\"Sketcher.Zoom.In\""), Times);
    QCOMPARE(journal.count("\"result\":\"done\""), 2 * Times);
}

void MenuTest::entryChosenAfterASwitchOfToolsRunsAfterTheSecond()
{
    QVERIFY(Session().Click("Sketcher.Erase"));
    QVERIFY(Session().WaitForAction("Sketcher.Erase"));
    QVERIFY(Session().BeginLine());

    QVERIFY(Session().OpenMenu(s_zoom, s_zoomOut));
    QVERIFY(OpenSubMenu());
    QVERIFY(Session().ClickEntry(s_double));

    QVERIFY(Session().WaitForAction(QString()));
    QVERIFY(Session().WaitForScale(2.0));
    QCOMPARE(CloseAndReadLines().size(), 0);
    const QByteArray journal = ReadBytes(Session().PathOf("journal"));
    QCOMPARE(journal.count("\"id\":\"Sketcher.Zoom.Scale.200\""), 1);
    QCOMPARE(journal.count("\"result\":\"done\""), 3);
}

void MenuTest::interactiveEntryRunsAfterTheLine()
{
    QVERIFY(Session().BeginLine());

    QVERIFY(Session().OpenMenu(s_zoom, s_zoomWindow));
    QVERIFY(Session().ClickEntry(s_zoomWindow));
    QVERIFY(Session().WaitForAction(s_zoomWindow));
    QVERIFY(Session().ClickView(QPointF(-30.0, -30.0)));
    QVERIFY(Session().ClickView(QPointF(30.0, 30.0)));

    QVERIFY(Session().WaitForAction(QString()));
    QVERIFY(
        Session().WaitFor([](const UiTree& tree) { return tree.FindView()->worldPerPixel < 0.5; }));
}

void MenuTest::mainPartZoomsToAll()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("20", {"Return"}));
    QVERIFY(Session().WaitForEntities(1));
    QVERIFY(Session().Type("", {"Escape"}));
    QVERIFY(Session().WaitForAction(QString()));

    QVERIFY(Session().Click(s_zoom));

    QVERIFY(
        Session().WaitFor([](const UiTree& tree) { return tree.FindView()->worldPerPixel < 0.5; }));
}

void MenuTest::mainPartOnlyEndsTheLine()
{
    QVERIFY(Session().BeginLine());
    QVERIFY(Session().Type("20", {"Return"}));
    QVERIFY(Session().WaitForEntities(1));

    QVERIFY(Session().Click(s_zoom));

    QVERIFY(Session().WaitForAction(QString()));
    QVERIFY(Session().Click("Sketcher.Erase"));
    QVERIFY(Session().WaitForAction("Sketcher.Erase"));
    QVERIFY(Session().WaitForScale(1.0));
    QCOMPARE(CloseAndReadLines().size(), 1);
    QCOMPARE(ReadBytes(Session().PathOf("journal")).count("Sketcher.ZoomAll"), 0);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::MenuTest);
#include "MenuTest.moc"
