#include "Panes/EntityModel.h"

#include "Model/Sketch.h"

#include "Dimension/LengthUnit.h"
#include "Support/TestValues.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <numeric>
#include <vector>

using vesk::LengthUnit;

namespace
{

/// A model that is checked at every signal.
struct Fixture
{
    explicit Fixture(int lines = 0)
    {
        for (int i = 0; i < lines; ++i)
            sketch.AddLine({0, 1.0 * i, 0}, {10, 1.0 * i, 0});
        model.Refresh();
        inserted.clear();
    }

    std::vector<int> Rows() const
    {
        std::vector<int> ids;
        for (int row = 0; row < model.rowCount(); ++row)
            ids.push_back(model.GetId(row));
        return ids;
    }

    std::vector<int> Entities() const
    {
        std::vector<int> ids;
        for (const Entity& entity : sketch.GetEntities())
            ids.push_back(entity.id);
        return ids;
    }

    QString Text(int row, int column) const
    {
        return model.data(model.index(row, column), Qt::DisplayRole).toString();
    }

    Sketch sketch;
    EntityModel model{sketch, nullptr};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
    QSignalSpy inserted{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy removed{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy reset{&model, &QAbstractItemModel::modelReset};
    QSignalSpy changed{&model, &QAbstractItemModel::dataChanged};
};

}

/// The entities of a drawing as rows.
class EntityModelTest final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void anEmptyDrawingHasNoRows()
    {
        const Fixture f;

        QCOMPARE(f.model.rowCount(), 0);
        QCOMPARE(f.model.columnCount(), 3);
        QCOMPARE(f.model.GetRow(1), -1);
    }

    void columnsHaveTitles()
    {
        const Fixture f;
        const auto title = [&f](int column, Qt::Orientation orientation = Qt::Horizontal) {
            return f.model.headerData(column, orientation, Qt::DisplayRole).toString();
        };

        QCOMPARE(QStringList({title(0), title(1), title(2)}),
                 QStringList({"编号", "类型", "尺寸"}));
        QCOMPARE(title(0, Qt::Vertical), QString());
        QVERIFY(!f.model.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
    }

    void aRowTellsOfItsEntity_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("size");

        QTest::newRow("line") << 0 << "直线"
                              << "长度 5.000";
        QTest::newRow("circle") << 1 << "圆"
                                << "半径 0.123";
        QTest::newRow("arc") << 2 << "圆弧"
                             << "半径 5.000";
        QTest::newRow("rectangle") << 3 << "矩形"
                                   << "宽度 4.000，高度 3.000";
    }

    void aRowTellsOfItsEntity()
    {
        QFETCH(int, row);
        QFETCH(QString, kind);
        QFETCH(QString, size);
        Fixture f;
        f.sketch.AddLine({0, 0, 0}, {3, 4, 0});
        f.sketch.Add(CircleShape{{1, 2, 0}, 0.1234});
        f.sketch.Add(ArcShape{{1, 2, 0}, 5, {4, 6, 0}, {-4, 2, 0}});
        f.sketch.Add(RectangleShape{{{{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}}}});
        f.model.Refresh();

        QCOMPARE(f.Text(row, EntityModel::NumberColumn), QString::number(row + 1));
        QCOMPARE(f.Text(row, EntityModel::KindColumn), kind);
        QCOMPARE(f.Text(row, EntityModel::SizeColumn), size);
    }

    void sizesAreInTheUnitShown()
    {
        Fixture f;
        f.sketch.AddLine({0, 0, 0}, {30, 40, 0});
        f.model.Refresh();

        LengthUnit::SetCurrent(LengthUnit::Centimetre());

        QCOMPARE(f.Text(0, EntityModel::SizeColumn), QStringLiteral("长度 5.000"));
    }

    void aNewShapeOfAnEntityIsTold()
    {
        Fixture f(2);
        f.changed.clear();
        f.sketch.Replace({{1, LineShape{{0, 0, 0}, {3, 4, 0}}}});

        f.model.Refresh();

        QCOMPARE(f.changed.count(), 1);
        QCOMPARE(f.Text(0, EntityModel::SizeColumn), QStringLiteral("长度 5.000"));
        QCOMPARE(f.inserted.count() + f.removed.count(), 0);
    }

    void onlyRowsThatHaveChangedAreTold()
    {
        Fixture f(9);
        f.changed.clear();
        f.sketch.Replace({{3, LineShape{{0, 0, 0}, {3, 4, 0}}}});
        f.sketch.SetPen({5}, &Pen::colour, 3);

        f.model.Refresh();

        QCOMPARE(f.changed.count(), 1);
        QCOMPARE(f.changed.front().at(0).toModelIndex(), f.model.index(2, 0));
        QCOMPARE(f.changed.front().at(1).toModelIndex(), f.model.index(4, 2));
    }

    void aChangeOfManyIsToldToo()
    {
        constexpr int Many = 300;
        Fixture f(Many);
        f.changed.clear();
        std::vector<int> all = f.Entities();
        f.sketch.SetPen(all, &Pen::colour, 3);

        f.model.Refresh();

        QCOMPARE(f.changed.count(), 1);
        QCOMPARE(f.changed.front().at(0).toModelIndex(), f.model.index(0, 0));
        QCOMPARE(f.changed.front().at(1).toModelIndex(), f.model.index(Many - 1, 2));
    }

    void anotherUnitChangesAllRows()
    {
        Fixture f(4);
        f.changed.clear();

        LengthUnit::SetCurrent(LengthUnit::Inch());
        f.model.Refresh();
        f.model.Refresh();

        QCOMPARE(f.changed.count(), 1);
        QCOMPARE(f.changed.front().at(1).toModelIndex(), f.model.index(3, 2));
    }

    void neighboursComeAndGoTogether()
    {
        Fixture f(9);
        f.sketch.Erase({2, 4, 5, 9});
        f.model.Refresh();
        QCOMPARE(f.removed.count(), 3);

        f.sketch.Undo();
        f.model.Refresh();

        QCOMPARE(f.inserted.count(), 3);
        QCOMPARE(f.Rows(), f.Entities());
    }

    void oneChangeMovesOneRow_data()
    {
        QTest::addColumn<int>("id");

        QTest::newRow("first") << 1;
        QTest::newRow("middle") << 3;
        QTest::newRow("last") << 5;
    }

    void oneChangeMovesOneRow()
    {
        QFETCH(int, id);
        Fixture f(5);

        f.sketch.Erase(id);
        f.model.Refresh();
        QCOMPARE(f.removed.count(), 1);
        QCOMPARE(f.removed.front().at(1).toInt(), id - 1);
        QCOMPARE(f.removed.front().at(2).toInt(), id - 1);
        QCOMPARE(f.model.GetRow(id), -1);

        f.sketch.Undo();
        f.model.Refresh();
        QCOMPARE(f.inserted.count(), 1);
        QCOMPARE(f.inserted.front().at(1).toInt(), id - 1);
        QCOMPARE(f.inserted.front().at(2).toInt(), id - 1);
        QCOMPARE(f.model.GetRow(id), id - 1);
    }

    void untilTheRefreshNothingIsToldAndWhatIsGoneIsEmpty()
    {
        Fixture f(2);
        f.sketch.Erase(2);
        f.sketch.AddLine({0, 9, 0}, {9, 9, 0});

        QCOMPARE(f.model.rowCount(), 2);
        QCOMPARE(f.Text(0, EntityModel::NumberColumn), QStringLiteral("1"));
        QCOMPARE(f.Text(1, EntityModel::NumberColumn), QString());
        QCOMPARE(f.removed.count() + f.inserted.count(), 0);
    }

    void nothingChangedMovesNoRow()
    {
        Fixture f(3);

        f.changed.clear();
        f.model.Refresh();

        QCOMPARE(f.removed.count() + f.inserted.count() + f.changed.count(), 0);
    }

    void aNewDrawingHasNoRows()
    {
        Fixture f(3);

        f.sketch.Clear();
        f.model.Refresh();

        QCOMPARE(f.model.rowCount(), 0);
        QCOMPARE(f.reset.count(), 0);
    }

    /// Persistent indexes of remaining rows stay valid.
    void rowsFollowAnySequenceOfChangesWithoutAReset()
    {
        constexpr int Rounds = 600;
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        const QByteArray text = "seed " + QByteArray::number(seed);
        Fixture f(20);

        for (int round = 0; round < Rounds; ++round)
        {
            const std::vector<QPersistentModelIndex> held = Hold(f.model);
            const std::vector<int> before = f.Rows();
            ChangeSomething(f.sketch, random);
            f.model.Refresh();
            QVERIFY2(f.Rows() == f.Entities(), text);
            for (std::size_t i = 0; i < held.size(); ++i)
                QVERIFY2(held[i].row() == f.model.GetRow(before[i]), text);
        }
        QCOMPARE(f.reset.count(), 0);
    }

    void aLargeChangeMovesOnlyTheRowsBetween()
    {
        Fixture f(300);
        std::vector<int> between(200);
        std::iota(between.begin(), between.end(), 51);

        f.sketch.Erase(between);
        f.model.Refresh();
        f.sketch.Undo();
        f.model.Refresh();

        const QVariantList rows{QModelIndex(), 50, 249};
        QCOMPARE(f.removed.count(), 1);
        QCOMPARE(f.removed.first(), rows);
        QCOMPARE(f.inserted.count(), 1);
        QCOMPARE(f.inserted.first(), rows);
    }

    void manyChangesAtOnceAreFollowedToo()
    {
        constexpr int Rounds = 200;
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        const QByteArray text = "seed " + QByteArray::number(seed);
        Fixture f(20);

        for (int round = 0; round < Rounds; ++round)
        {
            for (int change = random.bounded(8); change > 0; --change)
                ChangeSomething(f.sketch, random);
            f.model.Refresh();
            QVERIFY2(f.Rows() == f.Entities(), text);
        }
        QCOMPARE(f.reset.count(), 0);
    }

private:
    static std::vector<QPersistentModelIndex> Hold(const EntityModel& model)
    {
        std::vector<QPersistentModelIndex> held;
        for (int row = 0; row < model.rowCount(); ++row)
            held.emplace_back(model.index(row, 0));
        return held;
    }

    static void ChangeSomething(Sketch& sketch, QRandomGenerator& random)
    {
        const int count = static_cast<int>(sketch.GetEntities().size());
        switch (random.bounded(4))
        {
        case 0:
            sketch.AddLine({0, 0, 0}, {1.0 + random.bounded(100), 0, 0});
            break;
        case 1:
            sketch.Undo();
            break;
        case 2:
            if (count > 0)
                sketch.Erase(
                    sketch.GetEntities()[static_cast<std::size_t>(random.bounded(count))].id);
            break;
        default:
            if (count > 0)
                sketch.Replace({{sketch.GetEntities().back().id,
                                 CircleShape{{0, 0, 0}, 1.0 + random.bounded(9)}}});
        }
    }
};

VESK_TESTS_WITHOUT_WINDOWS(EntityModelTest);
#include "EntityModelTest.moc"
