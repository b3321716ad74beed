#include "TemporaryDimensionHandlersImpl/EditorCalls.h"
#include "Command/ActionManager.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScopedPointer>
#include <QStringList>
#include <QStyle>
#include <QStyleFactory>

namespace vesk::test
{

/// A handler for a segment in a view of its own, which is no longer the current one.
struct CallsFixture : HandlerFixture
{
    CallsFixture() : other(2, &host.window) { host.BeginAction(); }
    ~CallsFixture()
    {
        ActionManager::Reset();
        host.core.GetViewManager().RemoveView(&other);
    }

    void MakeOtherCurrent()
    {
        host.core.GetViewManager().AddView(&other);
        host.core.GetViewManager().SetCurrentView(&other);
    }

    TestView other;
};

/// In which order handlers act on their editor and call the host.
class EditorCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void newEditorIsMadeStyledAndShown();
    void editorThatIsThereKeepsNameAndFlags();
    void onlyTheLookThatDiffersIsSetAgain_data();
    void onlyTheLookThatDiffersIsSetAgain();
    void aBackgroundWhichIsWhiteByChanceBecomesTheEditorsOwn();
    void openEditorIsFilledShownAndPlaced();
    void inputEndsWithoutFocusAndHidden();
    void returnJudgesEndsAndDelivers();
    void returnDeliversToTheCurrentView();
    void returnRefusesAndSelects();
    void tabDeliversToTheHandlersViewAndShowsTheOtherField();
    void rawTextIsDeliveredWithoutValidators();
    void nothingElseTouchesTheEditor();
    void inputMethodLearnsThatItIsOffAndOn();
    void viewKeysReachTheObjectWithTheirModifiers_data();
    void viewKeysReachTheObjectWithTheirModifiers();
};

void EditorCallsTest::newEditorIsMadeStyledAndShown()
{
    CallsFixture f;
    const EditorCalls calls;

    f.SendToHandler('5');

    const QStringList expected{"name ViewInputLineEdit",
                               "flags 0x803",
                               "the handler filters the editor",
                               EditorCalls::Numbers("size",
                                                    TemporaryDimensionStyle().GetEditorWidth(),
                                                    TemporaryDimensionStyle().GetEditorHeight()),
                               "show",
                               "activate",
                               "focus for reason 7",
                               "the editor filters view 1",
                               "style sheet",
                               "palette",
                               "journal 3 0",
                               "text 5",
                               "show",
                               "focus for reason 7",
                               "move",
                               "refresh view 1"};
    QCOMPARE(calls.Get(), expected);
}

void EditorCallsTest::editorThatIsThereKeepsNameAndFlags()
{
    CallsFixture f;
    f.TypeLength("5");
    f.opHandler = f.CreateHandler();
    const EditorCalls calls;

    f.SendToHandler('6');

    QCOMPARE(calls.Get().mid(0, 6),
             QStringList({"the handler filters the editor",
                          EditorCalls::Numbers("size", TemporaryDimensionStyle().GetEditorWidth(),
                                               TemporaryDimensionStyle().GetEditorHeight()),
                          "show", "activate", "focus for reason 7", "the editor filters view 1"}));
    QCOMPARE(calls.Get().mid(6), QStringList({"journal 3 0", "text 6", "show", "focus for reason 7",
                                              "move", "refresh view 1"}));
}

void EditorCallsTest::onlyTheLookThatDiffersIsSetAgain_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QString>("style");
    QTest::addColumn<int>("group");
    QTest::addColumn<QStringList>("expected");
    const QString original;
    const QString red = "QLineEdit{ color:red; }";
    const int none = QPalette::NColorGroups;
    QTest::newRow("nothing") << original << original << none << QStringList();
    // A new sheet or style computes the palette anew.
    QTest::newRow("sheet") << red << original << none << QStringList({"style sheet", "palette"});
    QTest::newRow("style") << original << "Windows" << none << QStringList({"style", "palette"});
    QTest::newRow("sheet and style")
        << red << "Windows" << none << QStringList({"style sheet", "style", "palette"});
    QTest::newRow("active background")
        << original << original << int(QPalette::Active) << QStringList("palette");
    QTest::newRow("inactive background")
        << original << original << int(QPalette::Inactive) << QStringList("palette");
    QTest::newRow("disabled background")
        << original << original << int(QPalette::Disabled) << QStringList("palette");
}

void EditorCallsTest::onlyTheLookThatDiffersIsSetAgain()
{
    QFETCH(QString, styleSheet);
    QFETCH(QString, style);
    QFETCH(int, group);
    QFETCH(QStringList, expected);
    CallsFixture f;
    const QScopedPointer<QStyle> opStyle(QStyleFactory::create("Windows"));
    f.TypeLength("5");
    const QImage firstPicture = f.Editor()->grab().toImage();
    const QPalette firstPalette = f.Editor()->palette();
    if (!styleSheet.isEmpty())
        f.Editor()->setStyleSheet(styleSheet);
    if (!style.isEmpty())
        f.Editor()->setStyle(opStyle.get());
    if (group != QPalette::NColorGroups)
    {
        QPalette palette = firstPalette;
        palette.setColor(QPalette::ColorGroup(group), QPalette::Base, Qt::red);
        f.Editor()->setPalette(palette);
    }
    f.opHandler = f.CreateHandler();
    const EditorCalls calls;

    f.SendToHandler('5');

    QCOMPARE(calls.Get().filter(QRegularExpression("^(style|palette)")), expected);
    QVERIFY(!f.Editor()->testAttribute(Qt::WA_SetStyle));
    QVERIFY(f.Editor()->palette() == firstPalette);
    QCOMPARE(f.Editor()->grab().toImage(), firstPicture);
}

void EditorCallsTest::aBackgroundWhichIsWhiteByChanceBecomesTheEditorsOwn()
{
    CallsFixture f;
    const QPalette before = QApplication::palette();
    const auto restored = qScopeGuard([&before] { QApplication::setPalette(before); });
    QPalette white = before;
    white.setColor(QPalette::Base, Qt::white);
    QApplication::setPalette(white);
    f.TypeLength("5");
    f.Editor()->setPalette(QPalette());
    f.opHandler = f.CreateHandler();

    f.SendToHandler('5');

    QVERIFY(f.Editor()->palette().isBrushSet(QPalette::Active, QPalette::Base));
    QVERIFY(f.Editor()->testAttribute(Qt::WA_SetPalette));
}

void EditorCallsTest::openEditorIsFilledShownAndPlaced()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const EditorCalls calls;

    f.Handler().ShowInputWidget(InputState::IS_Angle, true, true, L"7");

    QCOMPARE(calls.Get(), QStringList({"text 7", "select all", "show", "focus for reason 7", "move",
                                       "refresh view 1"}));
}

void EditorCallsTest::inputEndsWithoutFocusAndHidden()
{
    CallsFixture f;
    f.TypeLength("5");
    const EditorCalls calls;

    f.opHandler->EndInput();

    QCOMPARE(calls.Get(), QStringList({"no focus", "hide"}));
}

void EditorCallsTest::returnJudgesEndsAndDelivers()
{
    CallsFixture f;
    f.TypeLength("5");
    const EditorCalls calls;

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(calls.Get(),
             QStringList({"validator", "no focus", "hide", "value of kind and view 8 1"}));
}

void EditorCallsTest::returnDeliversToTheCurrentView()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const EditorCalls calls;

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(calls.Get().last(), QString("value of kind and view 8 2"));
}

void EditorCallsTest::returnRefusesAndSelects()
{
    CallsFixture f;
    f.TypeLength("x");
    f.MakeOtherCurrent();
    const EditorCalls calls;

    f.opHandler->OnEditorReturnPressed();
    QCOMPARE(calls.Get(), QStringList({"validator", "select all"}));

    f.SendToHandler(Qt::Key_F5);
    QCOMPARE(calls.Get().mid(2, 1), QStringList("refresh view 1"));
}

void EditorCallsTest::tabDeliversToTheHandlersViewAndShowsTheOtherField()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const EditorCalls calls;

    f.FilterKey(Qt::Key_Tab);

    QCOMPARE(calls.Get(),
             QStringList({"validator", "value of kind and view 1 1", "no validator", "text 53.13",
                          "select all", "show", "focus for reason 7", "move", "refresh view 1"}));
}

void EditorCallsTest::rawTextIsDeliveredWithoutValidators()
{
    CallsFixture f;
    f.Handler().SetRawTextInput(true);
    f.TypeLength("x");
    const EditorCalls calls;

    f.FilterKey(Qt::Key_Tab);
    f.FilterKey(Qt::Key_Return);

    QCOMPARE(calls.Get(), QStringList({"value of kind and view 1 1", "text 53.13", "select all",
                                       "show", "focus for reason 7", "move", "refresh view 1",
                                       "no focus", "hide", "value of kind and view 9 1"}));
}

void EditorCallsTest::nothingElseTouchesTheEditor()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const EditorCalls calls;

    f.opHandler->GenerateGraphics(&f.context);
    f.opHandler->UpdateConfig(&f.context);
    f.opHandler->IsInputting();
    f.opHandler->HasEditorFocus();
    f.opHandler->OnKeyDown(Qt::Key_F5, false, false, false);
    f.Handler().SetRawTextInput(true);

    QCOMPARE(calls.Get(), QStringList());
    QVERIFY(f.IsValidatedLive());
}

void EditorCallsTest::inputMethodLearnsThatItIsOffAndOn()
{
    CallsFixture f;
    f.opHandler.Reset();
    const int count = EditorCalls::GetInputMethodUpdateCount();

    auto opHandler = f.CreateHandler();
    QCOMPARE(EditorCalls::GetInputMethodUpdateCount(), count + 1);

    opHandler.Reset();
    QCOMPARE(EditorCalls::GetInputMethodUpdateCount(), count + 2);
}

void EditorCallsTest::viewKeysReachTheObjectWithTheirModifiers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("flag");
    QTest::addColumn<QString>("modifiers");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        const char* name = AllKinds()[kind].name;
        QTest::addRow("%s, none", name) << int(kind) << 0 << "0x0";
        QTest::addRow("%s, Ctrl", name) << int(kind) << 1 << "0x4000000";
        QTest::addRow("%s, Alt", name) << int(kind) << 2 << "0x8000000";
        QTest::addRow("%s, Shift", name) << int(kind) << 3 << "0x2000000";
    }
}

/// A key during an input is handled as by a plain QObject; only kinds with letters give it its
/// text.
void EditorCallsTest::viewKeysReachTheObjectWithTheirModifiers()
{
    FETCH_KIND(rules);
    QFETCH(int, flag);
    QFETCH(QString, modifiers);
    KindFixture f(rules.pCreateContext());
    f.Type(rules.StartState(), "5");
    const EditorCalls calls;

    f.opHandler->OnKeyDown('7', flag == 1, flag == 2, flag == 3);

    const QString text = rules.Has(OpensWithLetters) ? "7" : "";
    const QString key = QString("key 55, modifiers %1, text '%2'").arg(modifiers, text);
    QCOMPARE(calls.Get(), QStringList({"refresh view 1", key}));
}

}

VESK_TESTS(vesk::test::EditorCallsTest);
#include "EditorCallsTest.moc"
