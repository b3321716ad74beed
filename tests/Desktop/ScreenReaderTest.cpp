#include "Desktop/ScreenReader.h"
#include "Desktop/AccessibilityBus.h"
#include "Desktop/DesktopTest.h"

#include <memory>

namespace vesk
{

/// Drawing by ear: the user knows only what the program tells on the accessibility bus, and has
/// only the keyboard.
class ScreenReaderTest : public DesktopTest
{
    Q_OBJECT

protected:
    DesktopSession::Environment PrepareEnvironment() override
    {
        m_pReader.reset();
        m_pBus = std::make_unique<AccessibilityBus>();
        return m_pBus->Start(Server().GetDisplay()) ? m_pBus->GetEnvironment()
                                                    : DesktopSession::Environment();
    }

private slots:
    void rectangleIsDrawnByWhatIsTold();
    void refusalIsTold();
    void viewTellsWhatItIs();

private:
    bool Listen();
    bool Key(const QString& key) { return Session().Input().Keys({key}); }

    std::unique_ptr<AccessibilityBus> m_pBus;
    std::unique_ptr<ScreenReader> m_pReader;
};

bool ScreenReaderTest::Listen()
{
    m_pReader = std::make_unique<ScreenReader>();
    return m_pReader->Start(m_pBus->GetEnvironment());
}

void ScreenReaderTest::rectangleIsDrawnByWhatIsTold()
{
    const QString changed = "property-change:accessible-description";
    QVERIFY(Listen());

    QVERIFY(m_pReader->Press("矩形", "push button"));
    QVERIFY(m_pReader->Hears(
        "property-change:accessible-name",
        {{"description", "提示"}, {"name", "矩形：单击第一个角点，或键入坐标；Esc 结束"}}));
    QVERIFY(!m_pReader->Find({{"role", "canvas"}, {"focused", true}}).isEmpty());
    QVERIFY(Session().Type("10"));
    QVERIFY(m_pReader->Hears("state-changed:focused", {{"name", "X 坐标"}, {"role", "text"}}));
    QVERIFY(Key("Tab"));
    QVERIFY(m_pReader->Hears("state-changed:focused", {{"name", "Y 坐标"}, {"role", "text"}}));
    QVERIFY(Session().Type("20", {"Return"}));
    QVERIFY(m_pReader->Hears(
        changed,
        {{"role", "canvas"},
         {"description", "矩形：单击对角点，或键入宽度（Tab 切换到高度）；Esc 结束；图元：0"}}));
    QVERIFY(Session().Type("120"));
    QVERIFY(m_pReader->Hears("state-changed:focused", {{"name", "宽度"}, {"role", "text"}}));
    QVERIFY(Key("Tab"));
    QVERIFY(
        m_pReader->Hears("property-change:accessible-name", {{"name", "高度"}, {"role", "text"}}));
    QVERIFY(Session().Type("80", {"Return"}));
    QVERIFY(m_pReader->Hears(
        changed, {{"role", "canvas"},
                  {"description", "矩形：单击第一个角点，或键入坐标；Esc 结束；矩形 #1：宽度 "
                                  "120.000 mm，高度 80.000 mm；图元：1"}}));
    QVERIFY(Key("Escape"));

    QCOMPARE(m_pReader->GetRows("图元"),
             (QJsonArray{QJsonArray{"1", "矩形", "宽度 120.000，高度 80.000"}}));
    QVERIFY(CloseProgram());
    QCOMPARE(ReadCorners(), (QVector<QPointF>{{10, 20}, {130, 20}, {130, 100}, {10, 100}}));
}

void ScreenReaderTest::refusalIsTold()
{
    QVERIFY(Listen());
    QVERIFY(m_pReader->Press("直线", "push button"));
    QVERIFY(!m_pReader->Find({{"role", "canvas"}, {"focused", true}}).isEmpty());

    QVERIFY(Session().Type("1,000", {"Return"}));

    QVERIFY(m_pReader->Hears("state-changed:showing",
                             {{"role", "alert"}, {"name", "逗号有歧义，小数点请用“.”"}}));
    const QJsonObject field = m_pReader->Find({{"focused", true}, {"role", "text"}});
    QCOMPARE(field["name"].toString(), QString("X 坐标"));
    QCOMPARE(field["description"].toString(), QString("逗号有歧义，小数点请用“.”"));
    QCOMPARE(field["text"].toString(), QString("1,000"));
}

void ScreenReaderTest::viewTellsWhatItIs()
{
    QVERIFY(Listen());

    const QJsonObject view = m_pReader->Find({{"role", "canvas"}});

    QCOMPARE(view["name"].toString(), QString("图纸"));
    QCOMPARE(view["description"].toString(), QString("图元：0"));
    QCOMPARE(view["focused"].toBool(), true);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ScreenReaderTest);
#include "ScreenReaderTest.moc"
