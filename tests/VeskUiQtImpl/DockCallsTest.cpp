#include "DockFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/DockManagerImpl.h"

#include <dlfcn.h>

namespace
{

/// What main windows were asked to resize, in order.
QStringList s_notes;

}

// This function of the program takes precedence over Qt's: it records the call and forwards it.
void QMainWindow::resizeDocks(const QList<QDockWidget*>& docks, const QList<int>& sizes,
                              Qt::Orientation orientation)
{
    s_notes << QString("%1 docks, %2 sizes, %3")
                   .arg(docks.size())
                   .arg(sizes.size())
                   .arg(orientation == Qt::Horizontal ? "horizontal" : "vertical");
    using Function =
        void (*)(QMainWindow*, const QList<QDockWidget*>&, const QList<int>&, Qt::Orientation);
    const auto pNext = reinterpret_cast<Function>(
        dlsym(RTLD_NEXT, "_ZN11QMainWindow11resizeDocksERK5QListIP11QDockWidgetERKS0_IiEN2Qt"
                         "11OrientationE"));
    pNext(this, docks, sizes, orientation);
}

namespace vesk::test
{

/// What the manager of panes asks of its window where that has no visible effect.
class DockCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void resizingHandsNothingOn_data();
    void resizingHandsNothingOn();
    void resizingWhatDoesNotFitAsksForNothing();
};

void DockCallsTest::resizingHandsNothingOn_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("note");
    QTest::newRow("zero") << 0 << "0 docks, 0 sizes, vertical";
    QTest::newRow("one") << 1 << "0 docks, 0 sizes, horizontal";
    QTest::newRow("two") << 2 << "0 docks, 0 sizes, vertical";
}

void DockCallsTest::resizingHandsNothingOn()
{
    QFETCH(int, orientation);
    QFETCH(QString, note);
    DockFixture f;
    IDock* pFirst = f.Add(L"first");
    IDock* pSecond = f.Add(L"second");
    s_notes.clear();

    f.manager.ResizeDocks({pFirst, pSecond}, {150, 600}, static_cast<DockOrientation>(orientation));

    QCOMPARE(s_notes, QStringList(note));
}

void DockCallsTest::resizingWhatDoesNotFitAsksForNothing()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    s_notes.clear();

    f.manager.ResizeDocks({pDock}, {}, DockOrientation::Horizontal);

    EXPECT_WARNING(f.host.warnings, L"docks和sizes个数不相等",
                   "vesk::DockManagerImpl::ResizeDocks");
    QCOMPARE(s_notes, QStringList());
}

}

VESK_TESTS(vesk::test::DockCallsTest);
#include "DockCallsTest.moc"
