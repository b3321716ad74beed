#include "Panes/EntityPane.h"

#include "Foundation/TranslatorManager.h"
#include "Model/Workspace.h"
#include "RecordedLines.h"
#include "Support/TestValues.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QSignalSpy>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

using Ids = std::vector<int>;

namespace
{

/// A drawing of lines, the first three of them erased, so that ids differ from rows.
struct Fixture
{
    explicit Fixture(int lines = 8)
    {
        for (int i = 0; i < lines + 3; ++i)
            workspace.sketch.AddLine({0, 1.0 * i, 0}, {10, 1.0 * i, 0});
        for (const int id : {1, 2, 3})
            workspace.sketch.Erase(id);
        pPane = std::make_unique<EntityPane>(workspace);
        pList = pPane->findChild<QAbstractItemView*>("Entities");
        pPane->resize(240, 300);
        pPane->show();
        pPane->UpdateStatus();
        pLines = std::make_unique<RecordedLines>();
    }

    void ClickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QModelIndex index = pList->model()->index(row, 1);
        QTest::mouseClick(pList->viewport(), Qt::LeftButton, modifiers,
                          pList->visualRect(index).center());
        pPane->UpdateStatus();
    }

    void PressInList(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(pList, key, modifiers);
        pPane->UpdateStatus();
    }

    /// The ids in the selected rows, ascending.
    Ids SelectedInList() const
    {
        Ids ids;
        for (const QModelIndex& index : pList->selectionModel()->selectedRows())
            ids.push_back(index.data().toInt());
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    Ids SelectedInDrawing() const
    {
        Ids ids = workspace.selection.GetIds();
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    bool IsSeen(int row) const
    {
        const QRect place = pList->visualRect(pList->model()->index(row, 0));
        return place.isValid() && pList->viewport()->rect().contains(place);
    }

    Workspace workspace;
    std::unique_ptr<EntityPane> pPane;
    QAbstractItemView* pList = nullptr;
    std::unique_ptr<RecordedLines> pLines;
};

/// A language in which every text is four times as long; installed while it lives.
class LongTexts final : public vesk::ITranslator
{
public:
    LongTexts() { vesk::TranslatorManager::Get()->SetTranslator(this); }
    ~LongTexts() override { vesk::TranslatorManager::Get()->SetTranslator(nullptr); }

    std::wstring Translate(const std::wstring&, const std::wstring& text) const override
    {
        return text + text + text + text;
    }
};

/// How often the list's selection changes during a step.
int CountChanges(const QAbstractItemView& list, const std::function<void()>& step)
{
    const QSignalSpy changes(list.selectionModel(), &QItemSelectionModel::selectionChanged);
    step();
    return changes.count();
}

}

/// Entities selected in the list and in the drawing.
class EntityPaneTest final : public QObject
{
    Q_OBJECT

private slots:
    void clickedRowIsSelectedInTheDrawing()
    {
        Fixture f;

        f.ClickRow(2);

        QCOMPARE(f.workspace.selection.GetIds(), Ids{6});
        QCOMPARE(f.pLines->Get(), QStringList(R"({"kind":"selection","entities":[6]})"));
        QCOMPARE(f.SelectedInList(), Ids{6});
    }

    void aClickOnTheSelectedRowIsNothing()
    {
        Fixture f;
        f.ClickRow(2);

        f.ClickRow(2);

        QCOMPARE(f.pLines->Get().size(), 1);
    }

    void rowsThatAreApartAreSelectedTogether()
    {
        Fixture f;

        f.ClickRow(5);
        f.ClickRow(0, Qt::ControlModifier);
        f.ClickRow(1, Qt::ControlModifier);
        f.ClickRow(3, Qt::ControlModifier);

        QCOMPARE(f.SelectedInDrawing(), (Ids{4, 5, 7, 9}));
        QCOMPARE(f.SelectedInList(), (Ids{4, 5, 7, 9}));
        QCOMPARE(f.pLines->Get().size(), 4);
    }

    void aRangeIsOneRecord()
    {
        Fixture f;
        f.ClickRow(1);

        f.ClickRow(6, Qt::ShiftModifier);

        QCOMPARE(f.SelectedInDrawing(), (Ids{5, 6, 7, 8, 9, 10}));
        QCOMPARE(f.pLines->Get().size(), 2);
    }

    void keysSelectToo()
    {
        Fixture f;
        f.ClickRow(1);

        f.PressInList(Qt::Key_Down);
        QCOMPARE(f.SelectedInDrawing(), Ids{6});
        f.PressInList(Qt::Key_A, Qt::ControlModifier);

        QCOMPARE(f.SelectedInDrawing().size(), std::size_t{8});
        QCOMPARE(f.pLines->Get().size(), 3);
    }

    void aRowTakenOutOfTheMiddleLeavesTheOthers()
    {
        Fixture f;
        f.PressInList(Qt::Key_A, Qt::ControlModifier);

        f.ClickRow(4, Qt::ControlModifier);

        QCOMPARE(f.SelectedInDrawing(), (Ids{4, 5, 6, 7, 9, 10, 11}));
        QCOMPARE(f.SelectedInList(), (Ids{4, 5, 6, 7, 9, 10, 11}));
        QCOMPARE(f.pLines->Get().size(), 2);
    }

    void theDrawingsSelectionIsTakenOverAndNotRecordedAgain_data()
    {
        QTest::addColumn<QVector<int>>("ids");

        QTest::newRow("one") << QVector<int>{9};
        QTest::newRow("neighbours") << QVector<int>{5, 4, 6};
        QTest::newRow("apart, as picked") << QVector<int>{11, 4, 8};
        QTest::newRow("all") << QVector<int>{4, 5, 6, 7, 8, 9, 10, 11};
        QTest::newRow("none") << QVector<int>{};
    }

    void theDrawingsSelectionIsTakenOverAndNotRecordedAgain()
    {
        QFETCH(QVector<int>, ids);
        Fixture f;
        f.ClickRow(6);
        const Ids picked(ids.begin(), ids.end());

        f.workspace.selection.Select(picked);
        f.pPane->UpdateStatus();
        f.pPane->UpdateStatus();

        QCOMPARE(f.SelectedInList(), f.SelectedInDrawing());
        QCOMPARE(f.workspace.selection.GetIds(), picked);
        QCOMPARE(f.pLines->Get().size(), 2);
    }

    void anErasedEntityLeavesTheListAndTheSelection()
    {
        Fixture f;
        f.PressInList(Qt::Key_A, Qt::ControlModifier);

        f.workspace.sketch.Erase(7);
        f.pPane->UpdateStatus();

        QCOMPARE(f.pList->model()->rowCount(), 7);
        QCOMPARE(f.SelectedInList(), (Ids{4, 5, 6, 8, 9, 10, 11}));
        QCOMPARE(f.SelectedInDrawing(), (Ids{4, 5, 6, 8, 9, 10, 11}));
        QCOMPARE(f.pLines->Get().size(), 1);
    }

    void anEntityThatComesBackIsNotSelected()
    {
        Fixture f;
        f.ClickRow(3);
        f.workspace.sketch.Erase(7);
        f.pPane->UpdateStatus();

        f.workspace.sketch.Undo();
        f.pPane->UpdateStatus();

        QCOMPARE(f.pList->model()->rowCount(), 8);
        QCOMPARE(f.SelectedInList(), Ids{});
        QCOMPARE(f.SelectedInDrawing(), Ids{});
        QCOMPARE(f.pLines->Get().size(), 1);
    }

    void aNewEntityLeavesTheSelectionAlone()
    {
        Fixture f;
        f.ClickRow(3);

        f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        f.pPane->UpdateStatus();

        QCOMPARE(f.SelectedInList(), Ids{7});
        QCOMPARE(f.pLines->Get().size(), 1);
    }

    void aRowWhoseEntityIsGoneAlreadySelectsNothing()
    {
        Fixture f;
        f.workspace.sketch.Erase(6);

        f.ClickRow(2);

        QCOMPARE(f.SelectedInDrawing(), Ids{});
        QCOMPARE(f.SelectedInList(), Ids{});
        QCOMPARE(f.pLines->Get().size(), 0);
    }

    void whatIsSelectedInTheDrawingComesIntoSight()
    {
        Fixture f(500);
        QVERIFY(!f.IsSeen(400));

        f.workspace.selection.Select({404});
        f.pPane->UpdateStatus();

        QVERIFY(f.IsSeen(400));
    }

    void theListStaysWhereItsReaderScrolledTo()
    {
        Fixture f(500);
        f.workspace.selection.Select({404});
        f.pPane->UpdateStatus();

        f.pList->scrollToTop();
        f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        f.pPane->UpdateStatus();

        QVERIFY(f.IsSeen(0));
    }

    void whatTheUserSelectsInTheListDoesNotMoveIt()
    {
        Fixture f(500);
        Ids ids;
        for (const Entity& entity : f.workspace.sketch.GetEntities())
            ids.push_back(entity.id);
        ids.erase(ids.begin() + 450);
        f.workspace.selection.Select(ids);
        f.pPane->UpdateStatus();
        f.pList->scrollToTop();

        f.ClickRow(5, Qt::ControlModifier);

        QVERIFY(f.IsSeen(0));
        QCOMPARE(f.SelectedInDrawing().size(), std::size_t{498});
    }

    void tenThousandEntitiesAreListedAndSelectedAtOnce()
    {
        constexpr int Count = 10000;
        Fixture f(Count);
        Ids all;
        for (const Entity& entity : f.workspace.sketch.GetEntities())
            all.push_back(entity.id);

        const int changesByList =
            CountChanges(*f.pList, [&f] { f.PressInList(Qt::Key_A, Qt::ControlModifier); });
        const Ids selectedByList = f.SelectedInDrawing();
        f.workspace.selection.Select({});
        f.pPane->UpdateStatus();
        const int changesByDrawing = CountChanges(*f.pList, [&f, &all] {
            f.workspace.selection.Select(all);
            f.pPane->UpdateStatus();
        });

        QCOMPARE(selectedByList, all);
        QCOMPARE(changesByList, 1);
        QCOMPARE(f.SelectedInList(), all);
        QCOMPARE(changesByDrawing, 1);
        f.pList->scrollToBottom();
        QVERIFY(f.IsSeen(Count - 1));
    }

    void columnOfKindsHasRoomForThemInAnyLanguage()
    {
        constexpr int KindColumn = 1;
        const LongTexts language;

        Fixture f;
        f.pPane->resize(300, 300);

        const QString kind = f.pList->model()->index(0, KindColumn).data().toString();
        QCOMPARE(kind.size(), 8);
        const int width = f.pList->visualRect(f.pList->model()->index(0, KindColumn)).width();
        QVERIFY(width > f.pList->fontMetrics().horizontalAdvance(kind));
        QTRY_VERIFY(!f.pList->horizontalScrollBar()->isVisible());
    }
};

VESK_TESTS(EntityPaneTest);
#include "EntityPaneTest.moc"
