#include "VeskUiQtImpl/DebugWarningDialogDisplayer.h"

#include "Foundation/IPublishConfig.h"
#include "Host/Warnings/LogFile.h"
#include "Support/HostFixture.h"
#include "Support/MemberAccess.h"
#include "Support/Platform/BreakCounter.h"
#include "Support/Platform/Debugger.h"
#include "Support/TestValues.h"
#include "Warnings/Assert.h"
#include "Warnings/NqUiInterfaceFactory.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <type_traits>

namespace vesk::test
{
namespace
{

/// Shows a warning as the host does.
bool Display()
{
    return NqUiInterfaceFactory::m_pFactory->CreateDebugWarningDialogDisplayer()->Display(
        "File.cpp", 12, "vesk::F::G", L"pDock是空指针", L"vesk-ui", L"2026-11-21");
}

/// Simulates a user action as soon as the dialog is shown.
void WhenShown(std::function<void(QDialog&)> act)
{
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (pDialog != nullptr)
            act(*pDialog);
    });
}

void Click(const QDialog& dialog, const QString& text)
{
    for (QPushButton* pButton : dialog.findChildren<QPushButton*>())
        if (pButton->text() == text)
            return pButton->click();
}

/// Runs this program with another task; see the end of the file.
struct Child
{
    Child(const QString& program, const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Leaks are checked only in the process of the tests themselves.
        environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        hasFinished = process.waitForFinished(60000);
        errors = process.readAllStandardError().replace("\r\n", "\n");
    }

    QProcess process;
    bool hasFinished = false;
    QByteArray errors;
};

}

class DebugWarningDialogDisplayerTest : public QObject
{
    Q_OBJECT

private slots:
    void operationsHaveTheirSlotsAndThereAreNoMembers();
    void answersAreTold_data();
    void answersAreTold();
    void leavingIsToIgnoreOnce_data();
    void leavingIsToIgnoreOnce();
    void theDialogShowsTheWarning();
    void nothingIsAssertedOrLoggedBesidesADialog_data();
    void nothingIsAssertedOrLoggedBesidesADialog();
    void theDialogStandsOnTheMainWindow();
    void theDialogStandsAloneWithoutAMainWindow();
    void theDialogStandsAloneWhenTheWindowIsUnknown();
    void theDialogStandsWhereAMaximisedWindowWillBe_data();
    void theDialogStandsWhereAMaximisedWindowWillBe();
    void theDialogStandsOverAWindowThatStandsAnywhere();
    void nothingOfADialogSurvives();
    void aPublishedProgramHasOneButton();
    void debuggingBreaksOnce();
    void withoutADebuggerTheProcessEnds();
    void aDebuggerStopsTheProcessAndLetsItGoOn();
    void withoutAnApplicationTheFactIsAsserted_data();
    void withoutAnApplicationTheFactIsAsserted();
    void withoutAnApplicationTheFactIsLogged_data();
    void withoutAnApplicationTheFactIsLogged();
};

void DebugWarningDialogDisplayerTest::operationsHaveTheirSlotsAndThereAreNoMembers()
{
    QCOMPARE(SlotOf(&IDebugWarningDisplayer::Display), std::ptrdiff_t(0));
    QCOMPARE(sizeof(DebugWarningDialogDisplayer), sizeof(void*));
    QVERIFY((std::is_base_of_v<IDebugWarningDisplayer, IDebugWarningDialogDisplayer>));
    QVERIFY((std::is_base_of_v<IDebugWarningDialogDisplayer, DebugWarningDialogDisplayer>));
}

void DebugWarningDialogDisplayerTest::answersAreTold_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isToBeShownAgain");
    QTest::newRow("ignored once") << 0 << true;
    QTest::newRow("ignored for good") << 1 << false;
    QTest::newRow("reported") << 2 << true;
    QTest::newRow("another") << 7 << true;
    QTest::newRow("negative") << -1 << true;
}

void DebugWarningDialogDisplayerTest::answersAreTold()
{
    QFETCH(int, answer);
    HostFixture host;
    const BreakCounter breaks;
    WhenShown([=](QDialog& dialog) { dialog.done(answer); });

    QTEST(Display(), "isToBeShownAgain");

    QCOMPARE(breaks.GetCount(), 0);
}

void DebugWarningDialogDisplayerTest::leavingIsToIgnoreOnce_data()
{
    QTest::addColumn<bool>("isEscape");
    QTest::newRow("Escape") << true;
    QTest::newRow("closed") << false;
}

void DebugWarningDialogDisplayerTest::leavingIsToIgnoreOnce()
{
    QFETCH(bool, isEscape);
    HostFixture host;
    bool hasAnswered = false;
    WhenShown([&](QDialog& dialog) {
        hasAnswered = true;
        if (isEscape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            dialog.close();
    });

    QVERIFY(Display());

    QVERIFY(hasAnswered);
}

void DebugWarningDialogDisplayerTest::theDialogShowsTheWarning()
{
    HostFixture host;
    QStringList shown;
    bool isModal = false;
    WhenShown([&](QDialog& dialog) {
        isModal = dialog.isModal() && dialog.isVisible();
        for (const QTextEdit* pBox : dialog.findChildren<QTextEdit*>())
            shown << pBox->toPlainText();
        for (const QLineEdit* pLine : dialog.findChildren<QLineEdit*>())
            shown << pLine->text();
        dialog.done(0);
    });

    Display();

    QVERIFY(isModal);
    QCOMPARE(shown, (QStringList{QString::fromUtf8("pDock是空指针"), "File.cpp", "vesk::F::G", "",
                                 "", "12", "vesk-ui", "2026-11-21"}));
}

void DebugWarningDialogDisplayerTest::nothingIsAssertedOrLoggedBesidesADialog_data()
{
    QTest::addColumn<bool>("isAsserting");
    QTest::newRow("assertions on") << true;
    QTest::newRow("assertions off") << false;
}

void DebugWarningDialogDisplayerTest::nothingIsAssertedOrLoggedBesidesADialog()
{
    QFETCH(bool, isAsserting);
    const LogFile log;
    const QStringList path{QString::fromStdString(log.GetPath())};

    const Child child(QCoreApplication::applicationFilePath(),
                      QStringList("--ignore") + (isAsserting ? QStringList() : path));

    QVERIFY(child.hasFinished);
    QCOMPARE(child.process.exitCode(), 1);
    QVERIFY2(!child.errors.contains("DBG_WARN"), child.errors.constData());
    QCOMPARE(log.ReadRecords().size(), 0);
}

/// The parent widget of a dialog shown now.
QWidget* FindDialogsParent(bool* pWasShown)
{
    QWidget* pParent = nullptr;
    WhenShown([&](QDialog& dialog) {
        *pWasShown = true;
        pParent = dialog.parentWidget();
        dialog.done(0);
    });
    Display();
    return pParent;
}

void DebugWarningDialogDisplayerTest::theDialogStandsOnTheMainWindow()
{
    HostFixture host;
    TestWindow another;
    host.application.SetMainWindow(&another);
    bool wasShown = false;

    QCOMPARE(FindDialogsParent(&wasShown), static_cast<QWidget*>(&another));
    QVERIFY(wasShown);
}

void DebugWarningDialogDisplayerTest::theDialogStandsAloneWithoutAMainWindow()
{
    HostFixture host;
    bool wasShown = false;

    QVERIFY(FindDialogsParent(&wasShown) == nullptr);
    QVERIFY(wasShown);
}

void DebugWarningDialogDisplayerTest::theDialogStandsAloneWhenTheWindowIsUnknown()
{
    HostFixture host;
    host.application.SetMainWindow(&host.window);
    host.window.SetWindowId(0);
    bool wasShown = false;

    QVERIFY(FindDialogsParent(&wasShown) == nullptr);
    QVERIFY(wasShown);
}

/// The geometry of a dialog shown now.
QRect FindDialogsPlace()
{
    QRect place;
    WhenShown([&](QDialog& dialog) {
        place = dialog.geometry();
        dialog.done(0);
    });
    Display();
    return place;
}

/// The distance between the centres of two rectangles.
int DistanceOf(const QRect& first, const QRect& second)
{
    return (first.center() - second.center()).manhattanLength();
}

void DebugWarningDialogDisplayerTest::theDialogStandsWhereAMaximisedWindowWillBe_data()
{
    QTest::addColumn<Qt::WindowState>("state");
    QTest::newRow("maximised") << Qt::WindowMaximized;
    QTest::newRow("on the full screen") << Qt::WindowFullScreen;
}

void DebugWarningDialogDisplayerTest::theDialogStandsWhereAMaximisedWindowWillBe()
{
    QFETCH(Qt::WindowState, state);
    HostFixture host;
    TestWindow window;
    host.application.SetMainWindow(&window);
    // Not shown yet: it still has the geometry from which it will be maximised.
    window.setGeometry(0, 0, 100, 80);
    window.setWindowState(state);

    const QRect place = FindDialogsPlace();

    QVERIFY(DistanceOf(place, window.screen()->availableGeometry()) < 40);
    QCOMPARE(place.size(), QSize(485, 393));
}

void DebugWarningDialogDisplayerTest::theDialogStandsOverAWindowThatStandsAnywhere()
{
    HostFixture host;
    TestWindow window;
    host.application.SetMainWindow(&window);
    window.setGeometry(200, 150, 500, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, vesk::test::PatienceMs));

    const QRect place = FindDialogsPlace();

    QVERIFY(DistanceOf(place, window.geometry()) < 40);
}

void DebugWarningDialogDisplayerTest::nothingOfADialogSurvives()
{
    HostFixture host;
    host.application.SetMainWindow(&host.window);
    QPointer<QDialog> pDialog;
    WhenShown([&](QDialog& dialog) {
        pDialog = &dialog;
        dialog.done(1);
    });

    QVERIFY(!Display());

    QVERIFY(pDialog.isNull());
    QVERIFY(host.window.findChildren<QDialog*>().isEmpty());
}

void DebugWarningDialogDisplayerTest::aPublishedProgramHasOneButton()
{
    HostFixture host;
    IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, false);
    QStringList visible;
    WhenShown([&](QDialog& dialog) {
        for (const QPushButton* pButton : dialog.findChildren<QPushButton*>())
            if (!pButton->visibleRegion().isEmpty())
                visible << pButton->text();
        Click(dialog, QString::fromUtf8("确定"));
    });

    QVERIFY(!Display());

    QCOMPARE(visible, QStringList(QString::fromUtf8("确定")));
}

void DebugWarningDialogDisplayerTest::debuggingBreaksOnce()
{
    HostFixture host;
    const BreakCounter breaks;
    WhenShown([](QDialog& dialog) { Click(dialog, QString::fromUtf8("调试")); });

    QVERIFY(Display());

    QCOMPARE(breaks.GetCount(), 1);
}

void DebugWarningDialogDisplayerTest::withoutADebuggerTheProcessEnds()
{
    const Child child(QCoreApplication::applicationFilePath(), {"--debug"});

    QVERIFY(child.hasFinished);
    QCOMPARE(child.process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(child.process.exitCode(), GetExitCodeOfBreak());
}

void DebugWarningDialogDisplayerTest::aDebuggerStopsTheProcessAndLetsItGoOn()
{
    const QStringList events =
        RunInDebugger(QCoreApplication::applicationFilePath(), {"--debug"}, "answer");

    QCOMPARE(events, (QStringList{"break", "answer 1", "exit"}));
}

static void AddTimesWithoutApplication()
{
    QTest::addColumn<QString>("task");

    QTest::newRow("before it exists") << "--before-application";
    QTest::newRow("after it is gone") << "--after-application";
}

void DebugWarningDialogDisplayerTest::withoutAnApplicationTheFactIsAsserted_data()
{
    AddTimesWithoutApplication();
}

void DebugWarningDialogDisplayerTest::withoutAnApplicationTheFactIsAsserted()
{
    QFETCH(QString, task);
    const Child child(QCoreApplication::applicationFilePath(), {task});

    QVERIFY(child.hasFinished);
    QCOMPARE(child.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.process.exitCode(), 1);
    QVERIFY2(child.errors.endsWith("VeskUiQtImpl/DebugWarningDialogDisplayer.cpp:58: assertion "
                                   "failed: false && \"A DBG_WARN is triggered.\"\n"),
             child.errors.constData());
    QCOMPARE(child.errors.count('\n'), 1);
}

void DebugWarningDialogDisplayerTest::withoutAnApplicationTheFactIsLogged_data()
{
    AddTimesWithoutApplication();
}

void DebugWarningDialogDisplayerTest::withoutAnApplicationTheFactIsLogged()
{
    QFETCH(QString, task);
    const LogFile log;

    const Child child(QCoreApplication::applicationFilePath(),
                      {task, QString::fromStdString(log.GetPath())});

    QVERIFY(child.hasFinished);
    QCOMPARE(child.process.exitCode(), 1);
    QCOMPARE(child.errors, QByteArray());
    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0]["condition"].toString(), QString("false && \"A DBG_WARN is triggered.\""));
    QVERIFY(records[0]["file"].toString().endsWith("VeskUiQtImpl/DebugWarningDialogDisplayer.cpp"));
    QCOMPARE(records[0]["line"].toInt(), 58);
    QCOMPARE(records[0]["function"].toString(),
             QString("vesk::DebugWarningDialogDisplayer::Display"));
}

namespace
{

/// Shows a warning and returns the answer as an exit code. Given the path of a log, assertions are
/// off.
int DisplayAndAnswer(int argc, char* argv[])
{
    if (argc > 1)
    {
        SetAssertEnabled(false);
        DebugMessageMgr::GetDebugMessageMgr()->OpenLog(argv[1]);
    }
    const int answer = Display() ? 1 : 0;
    DebugMessageMgr::GetDebugMessageMgr()->CloseLog();
    return answer;
}

/// The same without an application, after one has been created and destroyed.
int DisplayAfterApplication(int argc, char* argv[])
{
    // What Qt finds missing in the system is not part of the report.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    {
        // As in a real session: without it Qt would create a folder.
        const QTemporaryDir runtimeFolder;
        qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toUtf8());
        const QApplication application(argc, argv);
        const HostFixture host;
    }
    qInstallMessageHandler(nullptr);
    return DisplayAndAnswer(argc, argv);
}

/// Shows a warning, chooses to debug it and reports the answer.
int DebugWarningInApplication(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    HostFixture host;
    EndQuietlyAtBreak();
    WhenShown([](QDialog& dialog) { Click(dialog, QString::fromUtf8("调试")); });
    std::printf("answer %d\n", Display() ? 1 : 0);
    return 0;
}

/// The same with an application, whose user ignores the warning once.
int IgnoreWarningInApplication(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    HostFixture host;
    WhenShown([](QDialog& dialog) { dialog.done(0); });
    return DisplayAndAnswer(argc, argv);
}

const TestEntry s_displayBeforeApplication{"--before-application", &DisplayAndAnswer};
const TestEntry s_displayAfterApplication{"--after-application", &DisplayAfterApplication};
const TestEntry s_ignoreWarning{"--ignore", &IgnoreWarningInApplication};
const TestEntry s_debugWarning{"--debug", &DebugWarningInApplication};

}

}

VESK_TESTS(vesk::test::DebugWarningDialogDisplayerTest);
#include "DebugWarningDialogDisplayerTest.moc"
