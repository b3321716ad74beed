#include "Desktop/DesktopTest.h"

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

private:
    bool WaitForName(const QString& text);
};

bool FocusTest::WaitForName(const QString& text)
{
    return Session().WaitFor([&](const UiTree& tree) {
        const std::optional<UiControl> name = tree.FindControl("Sketcher.DrawingName");
        return name && name->text == text;
    });
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

}

QTEST_GUILESS_MAIN(vesk::FocusTest)
#include "FocusTest.moc"
