#include "Clipboard/ClipboardCommands.h"

#include "Clipboard/ContentEdit.h"
#include "Model/DocumentFile.h"
#include "Model/KeptContent.h"
#include "Model/Workspace.h"
#include "RecordedLines.h"
#include "Ribbon/CommandTable.h"
#include "ShapeValues.h"
#include "WhileReplaying.h"

#include "Command/ActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Support/FileBytes.h"
#include "Support/HostFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace vesk;

namespace
{

const QString s_drawingType = QStringLiteral("application/x-vesk-drawing");

QClipboard& SystemClipboard()
{
    return *QGuiApplication::clipboard();
}

/// A drawing of a line and a circle, both selected, and a second line.
struct Fixture
{
    Fixture()
    {
        SystemClipboard().clear();
        KeptContent::Get().Forget();
        workspace.sketch.AddLine({0, 0, 0}, {40, 0, 0});
        workspace.sketch.Add(CircleShape{{100, 100, 0}, 30});
        workspace.sketch.AddLine({0, 50, 0}, {40, 50, 0});
        workspace.selection.Select({2, 1});
        RegisterCommands(commands.MakeCommands());
    }
    ~Fixture() { KeptContent::Get().Forget(); }

    void Run(const wchar_t* commandId) { ActionManager::RunCommand(commandId, {}); }

    static bool IsEnabled(const wchar_t* commandId)
    {
        return ICommandManager::Get()->GetCommand(commandId)->IsEnabled();
    }

    static void Offer(const QByteArray& bytes)
    {
        auto* pData = new QMimeData;
        pData->setData(s_drawingType, bytes);
        SystemClipboard().setMimeData(pData);
    }

    std::size_t Count() const { return workspace.sketch.GetEntities().size(); }
    Shape ShapeOf(int id) const { return workspace.sketch.Find(id)->shape; }

    test::HostFixture host;
    Workspace workspace;
    QStringList notices;
    ClipboardCommands commands{workspace, [this](const QString& text) { notices << text; }};
};

}

class ClipboardCommandsTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsCutIsOnTheClipboardAndGoneInOneStep()
    {
        Fixture f;

        f.Run(L"Sketcher.Cut");

        QCOMPARE(f.Count(), std::size_t{1});
        QVERIFY(SystemClipboard().mimeData()->hasFormat(s_drawingType));
        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"剪切"));
        f.Run(L"Sketcher.Paste");
        QCOMPARE(f.Count(), std::size_t{3});
        QCOMPARE(f.ShapeOf(4), Shape(LineShape{{0, 0, 0}, {40, 0, 0}}));
        QCOMPARE(f.ShapeOf(5), Shape(CircleShape{{100, 100, 0}, 30}));
    }

    void whatIsCopiedStaysAndIsPastedBesideItself()
    {
        Fixture f;

        f.Run(L"Sketcher.Copy");
        QCOMPARE(f.Count(), std::size_t{3});
        f.Run(L"Sketcher.Paste");
        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.Count(), std::size_t{7});
        const double step = std::get<LineShape>(f.ShapeOf(4)).start.x();
        QVERIFY(step > 0.0);
        QCOMPARE(f.ShapeOf(4), Shape(LineShape{{step, -step, 0}, {40 + step, -step, 0}}));
        QCOMPARE(std::get<LineShape>(f.ShapeOf(6)).start, Vector3d(2 * step, -2 * step, 0));
        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{6, 7}));
        QVERIFY(f.notices.isEmpty());
    }

    void aPasteIsOneStep()
    {
        Fixture f;
        f.Run(L"Sketcher.Copy");
        const std::string digest = f.workspace.sketch.GetDigest();

        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"粘贴"));
        f.workspace.sketch.Undo();
        QCOMPARE(f.workspace.sketch.GetDigest(), digest);
    }

    void theCursorIsBusyWhileMuchIsPasted_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("isBusy");

        QTest::newRow("much") << 6000 << true;
        QTest::newRow("little") << 6 << false;
    }

    void theCursorIsBusyWhileMuchIsPasted()
    {
        QFETCH(int, count);
        QFETCH(bool, isBusy);
        Fixture f;
        std::vector<int> ids;
        for (int i = 0; i < count; ++i)
            ids.push_back(f.workspace.sketch.AddLine({0.1 * i, 200, 0}, {0.1 * i, 300, 0}));
        f.workspace.selection.Select(ids);
        f.Run(L"Sketcher.Copy");
        bool wasBusy = false;
        QObject::connect(&f.workspace.sketch, &Sketch::changed,
                         [&wasBusy] { wasBusy = QGuiApplication::overrideCursor() != nullptr; });

        f.Run(L"Sketcher.Paste");

        QCOMPARE(wasBusy, isBusy);
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    }

    void thePasteIsRecordedByTheDigestOfItsBytes()
    {
        Fixture f;
        f.Run(L"Sketcher.Copy");
        const QByteArray bytes = SystemClipboard().mimeData()->data(s_drawingType);
        const QString digest = *KeptContent::Get().Keep(bytes);
        const RecordedLines lines;

        f.Run(L"Sketcher.Paste");

        const QString record = lines.Get().filter("Sketcher.PasteContent").join(QString());
        QVERIFY2(record.contains(digest), qPrintable(record));
        QCOMPARE(*KeptContent::Get().Find(digest), bytes);
    }

    void aDuplicateIsBesideItsOriginalAndSelected()
    {
        Fixture f;

        f.Run(L"Sketcher.Duplicate");

        QCOMPARE(f.Count(), std::size_t{5});
        const double step = std::get<LineShape>(f.ShapeOf(4)).start.x();
        QVERIFY(step > 0.0);
        QCOMPARE(f.ShapeOf(5), Shape(CircleShape{{100 + step, 100 - step, 0}, 30}));
        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{4, 5}));
        const QMimeData* pData = SystemClipboard().mimeData();
        QVERIFY(pData == nullptr || pData->formats().isEmpty());
        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"再制"));
    }

    void withNothingSelectedOnlyPastingIsPossible()
    {
        Fixture f;

        f.workspace.selection.Select({});

        QVERIFY(!f.IsEnabled(L"Sketcher.Cut"));
        QVERIFY(!f.IsEnabled(L"Sketcher.Copy"));
        QVERIFY(!f.IsEnabled(L"Sketcher.Duplicate"));
        QVERIFY(f.IsEnabled(L"Sketcher.Paste"));
    }

    void whatCannotBePastedIsToldInOneNotice_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("notice");

        const QString damaged = "剪贴板中的图元已损坏，未粘贴";
        const QByteArray whole =
            QByteArray::fromStdString(DocumentFile::ToText(Sketch().GetContent()));
        QTest::newRow("nothing") << QByteArray() << damaged;
        QTest::newRow("no text") << QByteArray("\xff\xfe\0\x01", 4) << damaged;
        QTest::newRow("no drawing") << QByteArray("{\"format\":\"other\"}") << damaged;
        QTest::newRow("cut short") << whole.left(whole.size() / 2) << damaged;
        QTest::newRow("newer") << QByteArray(whole).replace("\"version\":1", "\"version\":99")
                               << "剪贴板中的图元来自更新的版本，未粘贴";
        QTest::newRow("empty drawing") << whole << "剪贴板中没有图元";
        QTest::newRow("deep") << QByteArray(1000000, '[') << damaged;
        QTest::newRow("huge") << QByteArray(64 * 1024 * 1024 + 1, ' ')
                              << "剪贴板中的图元太多，未粘贴";
    }

    void whatCannotBePastedIsToldInOneNotice()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, notice);
        Fixture f;
        f.Offer(bytes);
        const std::string digest = f.workspace.sketch.GetDigest();

        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.notices, QStringList{notice});
        QCOMPARE(f.workspace.sketch.GetDigest(), digest);
        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{2, 1}));
    }

    void whatCannotBeKeptBesideTheJournalIsNotPasted()
    {
        Fixture f;
        const QTemporaryDir folder;
        QVERIFY(WriteBytes(folder.filePath("journal.kept"), "no folder"));
        KeptContent::Get().SetJournal(folder.filePath("journal"));
        f.Run(L"Sketcher.Copy");

        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.notices, QStringList{"剪贴板中的图元无法存于日志旁，未粘贴"});
        QCOMPARE(f.Count(), std::size_t{3});
    }

    void aReplayLeavesTheClipboardAlone()
    {
        Fixture f;
        SystemClipboard().setText("12.5");

        const WhileReplaying replay([&f] { f.Run(L"Sketcher.Cut"); });

        QCOMPARE(SystemClipboard().text(), QString("12.5"));
        QCOMPARE(f.Count(), std::size_t{1});
    }

    void aReplayPastesAndDuplicatesWhatItsJournalSays_data()
    {
        QTest::addColumn<QString>("command");

        QTest::newRow("paste") << "Sketcher.Paste";
        QTest::newRow("duplicate") << "Sketcher.Duplicate";
    }

    void aReplayPastesAndDuplicatesWhatItsJournalSays()
    {
        QFETCH(QString, command);
        Fixture f;
        f.Run(L"Sketcher.Copy");

        const WhileReplaying replay([&] { f.Run(command.toStdWString().c_str()); });

        QCOMPARE(f.Count(), std::size_t{3});
    }

    void whatIsPastedOnALockedLayerIsNotSelected()
    {
        Fixture f;
        const int walls = f.workspace.sketch.AddLayer(L"walls");
        f.workspace.sketch.SetPen({1}, &Pen::layer, walls);
        f.Run(L"Sketcher.Copy");
        Layer locked = *f.workspace.sketch.FindLayer(walls);
        locked.isLocked = true;
        f.workspace.sketch.SetLayer(locked);

        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.workspace.selection.GetIds(), (std::vector<int>{5}));
    }

    void aTextOnTheClipboardIsNoDrawing()
    {
        Fixture f;
        SystemClipboard().setText(QStringLiteral("12.5"));

        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.notices, QStringList{"剪贴板中没有图元"});
    }

    void layersOfTheSameNameAreTheSame()
    {
        Fixture f;
        f.workspace.sketch.SetPen({1}, &Pen::layer, f.workspace.sketch.AddLayer(L"walls"));
        f.Run(L"Sketcher.Copy");
        f.workspace.sketch.Clear();
        f.workspace.sketch.AddLayer(L"axes");
        const int walls = f.workspace.sketch.AddLayer(L"walls");

        f.Run(L"Sketcher.Paste");

        QCOMPARE(f.workspace.sketch.Find(1)->pen.layer, walls);
        QCOMPARE(f.workspace.sketch.Find(2)->pen.layer, int(Layer::BaseId));
        QCOMPARE(f.workspace.sketch.GetLayers().size(), std::size_t{3});
    }

    void othersGetThePicture()
    {
        Fixture f;
        f.commands.SetPicture([](const SketchContent& content) {
            return QByteArray("picture of ") + QByteArray::number(int(content.entities.size()));
        });

        f.Run(L"Sketcher.Copy");

        QVERIFY(SystemClipboard().mimeData()->hasFormat(QStringLiteral("image/svg+xml")));
        QCOMPARE(SystemClipboard().mimeData()->data(QStringLiteral("image/svg+xml")),
                 QByteArray("picture of 2"));
    }

    void withoutAPainterThereIsNoPicture()
    {
        Fixture f;

        f.Run(L"Sketcher.Copy");

        QCOMPARE(SystemClipboard().mimeData()->formats(), QStringList{s_drawingType});
    }

    void contentThatIsNotKeptCannotBePasted()
    {
        Fixture f;
        const ContentPasting pasting{std::wstring(64, L'0'), {1, 2, 0}};

        QVERIFY(!pasting.IsPossible());
        QVERIFY(!pasting.Apply(f.workspace));
        QCOMPARE(f.Count(), std::size_t{3});
    }

    void contentThatCannotBeDrawnThereIsNotPasted()
    {
        Fixture f;
        f.Run(L"Sketcher.Copy");
        const QString digest =
            *KeptContent::Get().Keep(SystemClipboard().mimeData()->data(s_drawingType));
        const ContentPasting pasting{digest.toStdWString(), {qInf(), 0, 0}};

        QVERIFY(!pasting.IsPossible());
        QVERIFY(!pasting.Apply(f.workspace));
        QVERIFY((ContentPasting{digest.toStdWString(), {1, 0, 0}}.IsPossible()));
    }

    void parametersAreReadBack()
    {
        const ContentPasting pasting{L"ab12", {0.1, -1.0 / 3.0, 0}};
        const SelectionDuplication duplication{{7.5, 1e-9, 0}};

        QCOMPARE(ContentPasting::From(pasting.ToParameters())->digest, pasting.digest);
        QCOMPARE(ContentPasting::From(pasting.ToParameters())->way, pasting.way);
        QCOMPARE(SelectionDuplication::From(duplication.ToParameters())->way, duplication.way);
        QVERIFY(!ContentPasting::From(duplication.ToParameters()).has_value());
        QVERIFY(!SelectionDuplication::From({}).has_value());
        CommandParameters parameters;
        parameters.Add(L"x", CommandParameterValue(1.5));
        QVERIFY(!SelectionDuplication::From(parameters).has_value());
        parameters.Add(L"digest", CommandParameterValue(std::wstring(L"ab12")));
        QVERIFY(!ContentPasting::From(parameters).has_value());
    }
};

VESK_TESTS(ClipboardCommandsTest);
#include "ClipboardCommandsTest.moc"
