#include "Drawing.h"
#include "PaneDriver.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"

#include "HostUi/LayoutFile.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

#include <QDir>
#include <QFileInfo>
#include <QStatusBar>

using vesk::LayoutFile;

namespace
{

const QString s_hideAll = QStringLiteral("Sketcher.HideAllPanes");

/// Runs a session that must start with these panes visible, and hides one more.
void RunOnce(const ScenarioFixture& fixture, const QString& atStart, const QString& hidden)
{
    ScriptedUser user;
    // Floating panes appear after the window.
    user.Until([] { return ScriptedUser::FindWindow()->isVisible(); }).Do([=] {
        QCOMPARE(PaneDriver::Visible(), atStart);
        QCOMPARE(PaneDriver::Marked(), atStart);
        if (!hidden.isEmpty())
            PaneDriver::Dock(hidden).Hide();
    });
    QCOMPARE(user.Run(fixture.Draw()), 0);
}

void Put(const QByteArray& text)
{
    QDir().mkpath(QFileInfo(ScenarioFixture::LayoutFile()).path());
    WriteFile(ScenarioFixture::LayoutFile(), text);
}

/// The notice in the status bar once the window is on screen.
QString NoticeOf(const ScenarioFixture& fixture)
{
    QString notice;
    ScriptedUser user;
    user.Do([&notice] {
        notice = ScriptedUser::FindWindow()->statusBar()->currentMessage();
        QCOMPARE(PaneDriver::Visible(), QStringLiteral("11111"));
        QCOMPARE(PaneDriver::Marked(), QStringLiteral("11111"));
    });
    if (user.Run(fixture.Draw()) != 0)
        QTest::qFail("the session did not end well", __FILE__, __LINE__);
    return notice;
}

}

/// Keeping the layout of the panes from one session to the next.
class PaneLayoutTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void theLayoutComesBackInTheNextSession()
    {
        RunOnce(*m_pFixture, "11111", "Journal");
        RunOnce(*m_pFixture, "11101", "Entities");
        RunOnce(*m_pFixture, "10101", QString());
    }

    void aSessionThatEndsWithAllHiddenSavesWhatWasBefore()
    {
        ScriptedUser user;
        user.Do([] { PaneDriver::Dock("Entities").Hide(); }).Click(s_hideAll);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        RunOnce(*m_pFixture, "10111", QString());
    }

    void placesAndSizesComeBack()
    {
        QRect before;
        QSize window;
        ScriptedUser user;
        user.Do([] {
                ScriptedUser::FindWindow()->setAnimated(false);
                PaneDriver::Manager().TabifyDock(&PaneDriver::Dock("Entities"),
                                                 &PaneDriver::Dock("Journal"));
                ScriptedUser::FindWindow()->resizeDocks({&PaneDriver::Widget("Entities")}, {270},
                                                        Qt::Horizontal);
            })
            .Until([] { return PaneDriver::Widget("Journal").width() == 270; })
            .Do([&] {
                before = PaneDriver::Widget("Journal").geometry();
                window = ScriptedUser::FindWindow()->size();
            });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY(before.isValid());

        ScriptedUser next;
        next.Until([&window] { return ScriptedUser::FindWindow()->size() == window; });
        next.Do([&before] { QCOMPARE(PaneDriver::Widget("Journal").geometry(), before); });
        QCOMPARE(next.Run(m_pFixture->Draw()), 0);
    }

    void aFloatingPaneFloatsAgainAndIsMarked()
    {
        const QRect place(60, 70, 300, 200);
        ScriptedUser user;
        user.Do([place] {
            PaneDriver::Dock("Journal").SetFloating(true);
            PaneDriver::Widget("Journal").setGeometry(place);
        });
        user.Click(s_hideAll).Click(s_hideAll);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        ScriptedUser next;
        next.Until([] { return PaneDriver::Visible() == "11111"; }).Do([place] {
            QVERIFY(PaneDriver::Dock("Journal").IsFloating());
            QCOMPARE(PaneDriver::Widget("Journal").geometry(), place);
            QCOMPARE(PaneDriver::Marked(), QStringLiteral("11111"));
        });
        next.Click(s_hideAll).Do([] { QCOMPARE(PaneDriver::Visible(), QStringLiteral("00000")); });
        QCOMPARE(next.Run(m_pFixture->Draw()), 0);

        RunOnce(*m_pFixture, "11111", QString());
    }

    void theLayoutThatEitherQtWroteIsRestored_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("Qt 5") << QStringLiteral(VESK_LAYOUTS "/qt5.json");
        QTest::newRow("Qt 6") << QStringLiteral(VESK_LAYOUTS "/qt6.json");
    }

    void theLayoutThatEitherQtWroteIsRestored()
    {
        QFETCH(QString, file);
        Put(vesk::ReadBytes(file));

        ScriptedUser user;
        user.Until([] { return PaneDriver::Visible() == "10111"; }).Do([] {
            QVERIFY(PaneDriver::Dock("Journal").IsFloating());
            QCOMPARE(PaneDriver::Widget("Journal").geometry(), QRect(60, 70, 300, 200));
        });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void withoutAFileTheFactoryLayoutStandsAndNothingIsSaid()
    {
        QVERIFY(!QFileInfo::exists(ScenarioFixture::LayoutFile()));

        QCOMPARE(NoticeOf(*m_pFixture), QString());

        QVERIFY(LayoutFile::Read(ScenarioFixture::LayoutFile()).content ==
                LayoutFile::Content::Layout);
    }

    void aFileThatCannotBeUsedIsToldOfAndKept_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("notice");

        const QString damaged = QStringLiteral("面板布局文件已损坏，已用默认布局");
        QTest::newRow("empty") << QByteArray() << damaged;
        QTest::newRow("noise") << QByteArray("\0\1\2{", 4) << damaged;
        QTest::newRow("torn") << QByteArray("{\"version\": 1, \"layout\": \"AAA") << damaged;
        QTest::newRow("newer") << QByteArray("{\"version\": 2}")
                               << QStringLiteral("面板布局来自更新的版本，已用默认布局");
    }

    void aFileThatCannotBeUsedIsToldOfAndKept()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, notice);
        Put(text);

        QCOMPARE(NoticeOf(*m_pFixture), notice);

        QCOMPARE(ReadBytes(ScenarioFixture::LayoutFile() + ".kept"), text);
        QCOMPARE(NoticeOf(*m_pFixture), QString());
    }

    void aSavedLayoutThatIsNoneOfAWindowIsToldOf()
    {
        QVERIFY(LayoutFile::Write(ScenarioFixture::LayoutFile(), "no state of a window"));

        QCOMPARE(NoticeOf(*m_pFixture), QStringLiteral("面板布局文件已损坏，已用默认布局"));
    }

    void aReplayNeitherReadsNorWritesALayout_data()
    {
        QTest::addColumn<bool>("hasLayout");

        QTest::newRow("with a layout") << true;
        QTest::newRow("without one") << false;
    }

    void aReplayNeitherReadsNorWritesALayout()
    {
        QFETCH(bool, hasLayout);
        RunOnce(*m_pFixture, "11111", "Journal");
        if (!hasLayout)
            QVERIFY(QFile::remove(ScenarioFixture::LayoutFile()));
        const QByteArray before = ReadBytes(ScenarioFixture::LayoutFile());
        const QString tree = m_pFixture->File("tree");

        const Outcome outcome =
            RunSketcher({"--replay", m_pFixture->File("journal"), "--ui-tree", tree});

        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(QFileInfo::exists(ScenarioFixture::LayoutFile()), hasLayout);
        QCOMPARE(ReadBytes(ScenarioFixture::LayoutFile()), before);
        const auto docks = nlohmann::json::parse(ReadBytes(tree).toStdString())["docks"];
        QCOMPARE(docks.size(), std::size_t{5});
        for (const nlohmann::json& dock : docks)
            QVERIFY2(dock["visible"].get<bool>(), dock.dump().c_str());
    }
};

VESK_TESTS(PaneLayoutTest);
#include "PaneLayoutTest.moc"
