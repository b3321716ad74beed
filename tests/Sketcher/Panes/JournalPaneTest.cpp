#include "Panes/JournalPane.h"

#include "Journal/JournalManager.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QListView>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace vesk;

namespace
{

constexpr int MostRecords = 10000;

struct Fixture
{
    Fixture()
    {
        JournalManager::GetInstance().Close();
        pane.resize(300, 200);
        pane.show();
        pList = pane.findChild<QListView*>("JournalRecords");
        pList->setFocus();
        pane.activateWindow();
        if (!QTest::qWaitForWindowActive(&pane, vesk::test::PatienceMs))
            qFatal("the pane does not become active");
    }

    ~Fixture() { JournalManager::GetInstance().Close(); }

    void Add(int count)
    {
        for (int i = 0; i < count; ++i)
            JournalManager::GetInstance().Add(UndoRecord{i});
        pane.UpdateStatus();
    }

    QModelIndex Row(int row) const { return pList->model()->index(row, 0); }

    QString TopText() const { return pList->indexAt({3, 3}).data().toString(); }

    bool IsSeen(int row) const
    {
        return pList->viewport()->rect().contains(pList->visualRect(Row(row)));
    }

    void Click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(pList->viewport(), Qt::LeftButton, modifiers,
                          pList->visualRect(Row(row)).center());
    }

    JournalPane pane;
    QListView* pList;
};

}

/// The journal as the user sees it.
class JournalPaneTest final : public QObject
{
    Q_OBJECT

private slots:
    void theListGoesAlongWithTheNewest()
    {
        Fixture f;

        f.Add(100);
        QVERIFY(f.IsSeen(99));
        f.Add(1);

        QVERIFY(f.IsSeen(100));
    }

    void theListStaysWhereItsReaderScrolledTo_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");

        QTest::newRow("room for more") << 200 << 50;
        QTest::newRow("full") << MostRecords << 50;
        QTest::newRow("becoming full") << MostRecords - 20 << 50;
    }

    void theListStaysWhereItsReaderScrolledTo()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        Fixture f;
        f.Add(before);
        f.pList->scrollTo(f.Row(100), QAbstractItemView::PositionAtTop);
        const QString top = f.TopText();
        QVERIFY(top.contains("#100"));

        f.Add(after);
        QCoreApplication::processEvents();

        QCOMPARE(f.TopText(), top);
    }

    void whoeverScrollsBackToTheEndGoesAlongAgain()
    {
        Fixture f;
        f.Add(100);
        f.pList->scrollToTop();
        f.Add(1);
        QVERIFY(!f.IsSeen(100));

        f.pList->scrollToBottom();
        f.Add(1);

        QVERIFY(f.IsSeen(101));
    }

    void selectedRecordsAreCopiedAsTheyStandInTheFile()
    {
        const QTemporaryDir folder;
        Fixture f;
        std::string error;
        QVERIFY(
            JournalManager::GetInstance().Open(folder.filePath("journal").toStdString(), error));
        JournalManager::GetInstance().Add(PropertyRecord{L"drawing", L"name", L"图\t\"一\""});
        f.Add(5);

        f.Click(4);
        f.Click(0, Qt::ControlModifier);
        f.Click(2, Qt::ControlModifier);
        QTest::keyClick(f.pList, Qt::Key_C, Qt::ControlModifier);

        const QList<QByteArray> lines =
            vesk::ReadLinesAfterHeader(folder.filePath("journal")).split('\n');
        QCOMPARE(QApplication::clipboard()->text(),
                 QString::fromUtf8(lines[0] + '\n' + lines[2] + '\n' + lines[4] + '\n'));
    }

    void theMenuCopiesToo()
    {
        Fixture f;
        f.Add(3);
        f.Click(1);
        QCOMPARE(f.pList->contextMenuPolicy(), Qt::ActionsContextMenu);

        f.pList->actions().front()->trigger();

        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("{\"n\":2,\"kind\":\"undo\",\"entity\":1}\n"));
    }

    void withNothingSelectedTheClipboardStays()
    {
        Fixture f;
        f.Add(3);
        QApplication::clipboard()->setText("before");

        f.pList->actions().front()->trigger();

        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("before"));
    }

    void selectedRecordsStaySelectedWhenMoreCome()
    {
        Fixture f;
        f.Add(3);
        f.Click(1);

        f.Add(3);

        QCOMPARE(f.pList->selectionModel()->selectedIndexes(), QModelIndexList{f.Row(1)});
    }
};

VESK_TESTS(JournalPaneTest);
#include "JournalPaneTest.moc"
