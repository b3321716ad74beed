#include "Panes/EntityList.h"

#include "Support/TestValues.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTreeView>

#include <algorithm>

namespace
{

constexpr int Rows = 200;
constexpr int Columns = 3;

/// Counts how often its rows are asked for their flags, as a header does that looks for selected
/// columns.
class CountedModel final : public QStandardItemModel
{
public:
    CountedModel() : QStandardItemModel(Rows, Columns)
    {
        for (int row = 0; row < Rows; ++row)
        {
            for (int column = 0; column < Columns; ++column)
                setItem(row, column, new QStandardItem(QString::number(row)));
        }
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        asked.push_back(index.row());
        return Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    }

    mutable std::vector<int> asked;
};

struct Fixture
{
    Fixture()
    {
        list.setModel(&model);
        list.resize(150, 300);
        list.show();
        list.setCurrentIndex(model.index(50, 1));
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&list, key, modifiers);
    }

    QVector<int> SelectedRows() const
    {
        QVector<int> rows;
        for (const QModelIndex& index : list.selectionModel()->selectedRows())
            rows.push_back(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    CountedModel model;
    EntityList list;
};

}

/// The keys and the look of a list of rows.
class EntityListTest final : public QObject
{
    Q_OBJECT

private slots:
    void keysMoveFromRowToRow_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("row");

        QTest::newRow("down") << Qt::Key_Down << 51;
        QTest::newRow("up") << Qt::Key_Up << 49;
        QTest::newRow("home") << Qt::Key_Home << 0;
        QTest::newRow("end") << Qt::Key_End << Rows - 1;
        QTest::newRow("left") << Qt::Key_Left << 50;
        QTest::newRow("right") << Qt::Key_Right << 50;
    }

    void keysMoveFromRowToRow()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, row);
        Fixture f;

        f.Press(key);

        QCOMPARE(f.list.currentIndex().row(), row);
        QCOMPARE(f.list.currentIndex().column(), 1);
        QCOMPARE(f.SelectedRows(), QVector<int>{row});
    }

    void shiftSelectsUpToTheEnd()
    {
        Fixture f;

        f.Press(Qt::Key_End, Qt::ShiftModifier);

        QCOMPARE(f.SelectedRows().size(), Rows - 50);
    }

    void rightAndLeftScroll()
    {
        Fixture f;
        QScrollBar* pBar = f.list.horizontalScrollBar();
        pBar->setValue(0);

        f.Press(Qt::Key_Right);
        QCOMPARE(pBar->value(), std::min(pBar->singleStep(), pBar->maximum()));
        QVERIFY(pBar->value() > 0);
        f.Press(Qt::Key_Left);
        QCOMPARE(pBar->value(), 0);
    }

    void tabLeavesTheList()
    {
        Fixture f;

        f.Press(Qt::Key_Tab);

        QCOMPARE(f.list.currentIndex(), f.model.index(50, 1));
    }

    void anEmptyListHasNowhereToGo()
    {
        Fixture f;
        f.model.setRowCount(0);

        f.Press(Qt::Key_End);
        f.Press(Qt::Key_Home);
        f.Press(Qt::Key_Left);

        QVERIFY(!f.list.currentIndex().isValid());
    }

    void rowsAreAsHighAsThoseOfATree_data()
    {
        QTest::addColumn<int>("points");

        QTest::newRow("as it is") << 0;
        QTest::newRow("small") << 7;
        QTest::newRow("large") << 20;
    }

    void rowsAreAsHighAsThoseOfATree()
    {
        QFETCH(int, points);
        Fixture f;
        QTreeView tree;
        tree.setModel(&f.model);
        tree.resize(300, 300);
        QFont font = tree.font();
        if (points > 0)
            font.setPointSize(points);

        f.list.setFont(font);
        tree.setFont(font);
        tree.show();

        QCOMPARE(f.list.rowHeight(3), tree.visualRect(f.model.index(3, 0)).height());
    }

    void theHeaderDoesNotLookAtEveryRow()
    {
        Fixture f;
        f.list.selectAll();
        f.model.asked.clear();

        f.list.grab();

        const int last = f.list.rowAt(f.list.viewport()->height() - 1);
        QVERIFY(last > 0 && last < Rows - 1);
        QCOMPARE(std::count_if(f.model.asked.begin(), f.model.asked.end(),
                               [last](int row) { return row > last + 1; }),
                 0);
    }

    void noLinesAreBetweenRows()
    {
        const Fixture f;

        QVERIFY(!f.list.showGrid());
    }

    void aClickOnATitleDoesNothing()
    {
        Fixture f;
        const QSignalSpy pressed(f.list.horizontalHeader(), &QHeaderView::sectionPressed);

        QTest::mouseClick(f.list.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));

        QCOMPARE(pressed.count(), 0);
        QCOMPARE(f.SelectedRows(), QVector<int>{50});
    }
};

VESK_TESTS(EntityListTest);
#include "EntityListTest.moc"
