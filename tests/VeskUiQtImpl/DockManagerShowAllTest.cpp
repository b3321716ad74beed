#include "VeskUiQtImpl/DockManagerImpl.h"

#include "DockFixture.h"
#include "Support/TestValues.h"

#include <QAction>
#include <QLayout>
#include <QSignalSpy>
#include <QStyle>

#include <memory>
#include <stdexcept>

namespace vesk::test
{

using Arrangement = void (*)(DockFixture&);

}

Q_DECLARE_METATYPE(vesk::test::Arrangement)

namespace vesk::test
{

/// Where panes are after all were shown, and what may happen while they are being shown.
class DockManagerShowAllTest : public QObject
{
    Q_OBJECT

private slots:
    void theLayoutIsThatBeforeAllWereHidden_data();
    void theLayoutIsThatBeforeAllWereHidden();
    void noContentIsResizedOnTheWay();
    void nothingIsLeftToBeLaidOutLater();
    void theSignalsAreThoseOfShowingOneAfterAnother();
    void theLastSignalOfATabTellsWhetherItIsInFront();
    void inAHiddenWindowNothingIsLaidOut();
    void aWindowThatLaysNothingOutIsLeftAlone();
    void aManagerWithoutMainWindowShowsItsPanes();

    void aPaneMayDestroyAnother();
    void aPaneMayDestroyWhatIsNoPane();
    void aPaneMayDestroyTheManager();
    void aPaneMayDestroyTheWindow();
    void aPaneMayThrow();
    void aPaneMayShowAllAgain();
    void aPaneMayRunAnEventLoop();
    void aPaneMayResizeTheWindow();
};

/// A pane of the host's own kind, which does something when it is shown.
class ShowingDock final : public IDock
{
public:
    explicit ShowingDock(std::function<void()> onShow) : m_onShow(std::move(onShow)) {}

    const std::wstring& GetName() const override { return m_name; }
    void Move(int, int) override {}
    IWidget* GetWidget() const override { return nullptr; }
    void SetWidget(OwnerPtr<IWidget>) override {}
    void SetTitle(const std::wstring&) override {}
    std::wstring GetTitle() const override { return {}; }
    void Show() override { m_onShow(); }
    void Hide() override {}
    void Raise() override {}
    bool IsHidden() const override { return false; }
    void SetFloating(bool) override {}
    bool IsFloating() const override { return false; }

private:
    std::wstring m_name;
    std::function<void()> m_onShow;
};

/// A visible window with panes beside its centre.
struct ArrangedDocks : DockFixture
{
    explicit ArrangedDocks(Arrangement arrange)
    {
        window.setCentralWidget(new QWidget);
        arrange(*this);
        window.show();
        QCoreApplication::processEvents();
    }

    QDockWidget* Widget(const std::wstring& name) { return WidgetOf(manager.GetDock(name)); }

    QList<QDockWidget*> Widgets() const { return window.findChildren<QDockWidget*>(); }

    void HideAll()
    {
        manager.HideAllDockPane();
        QCoreApplication::processEvents();
    }

    /// Where each pane is, unless it is hidden.
    QStringList Places() const
    {
        QStringList places;
        for (const QDockWidget* pPane : Widgets())
        {
            const QRect place = pPane->geometry();
            places << QString("%1: %2, %3, %4 x %5%6")
                          .arg(pPane->windowTitle())
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height())
                          .arg(pPane->isVisible() ? "" : ", hidden");
        }
        return places;
    }
};

/// Three panes of different heights, one above the other.
void Stack(DockFixture& f)
{
    for (const wchar_t* name : {L"a", L"b", L"c"})
        f.Add(name)->SetWidget(MakeOwner<WidgetContent>());
    const QList<QDockWidget*> panes = f.window.findChildren<QDockWidget*>();
    f.window.resizeDocks(panes, {300, 100, 180}, Qt::Vertical);
    f.window.resizeDocks(panes.mid(0, 1), {250}, Qt::Horizontal);
}

void Row(DockFixture& f)
{
    for (const wchar_t* name : {L"a", L"b", L"c"})
        f.Add(name, DockArea::Bottom, DockOrientation::Horizontal);
    f.window.resizeDocks(f.window.findChildren<QDockWidget*>(), {150, 400, 220}, Qt::Horizontal);
}

void FourAreas(DockFixture& f)
{
    Stack(f);
    f.Add(L"d", DockArea::Right);
    f.Add(L"e", DockArea::Top);
    f.Add(L"f", DockArea::Bottom);
    f.window.resizeDocks({WidgetOf(f.manager.GetDock(L"d"))}, {120}, Qt::Horizontal);
}

/// A front pane that is also the first of its tabs by name: Qt puts the first one in front.
void Tabs(DockFixture& f)
{
    Stack(f);
    IDock* pBehind = f.Add(L"d");
    f.manager.TabifyDock(f.manager.GetDock(L"b"), pBehind);
    f.manager.GetDock(L"b")->Raise();
}

void Nested(DockFixture& f)
{
    f.window.setDockNestingEnabled(true);
    Stack(f);
    f.manager.SplitDock(f.manager.GetDock(L"b"), f.Add(L"d"), DockOrientation::Horizontal);
    f.manager.SplitDock(f.manager.GetDock(L"d"), f.Add(L"e"), DockOrientation::Vertical);
}

void Floating(DockFixture& f)
{
    Stack(f);
    IDock* pDock = f.Add(L"d");
    pDock->SetFloating(true);
    WidgetOf(pDock)->setGeometry(300, 200, 210, 160);
    pDock->Show();
}

void WithoutRoom(DockFixture& f)
{
    Stack(f);
    for (const wchar_t* name : {L"d", L"e", L"f", L"g", L"h"})
        f.Add(name);
    f.window.resize(200, 100);
}

void DockManagerShowAllTest::theLayoutIsThatBeforeAllWereHidden_data()
{
    QTest::addColumn<Arrangement>("arrange");
    QTest::newRow("one above the other") << &Stack;
    QTest::newRow("side by side") << &Row;
    QTest::newRow("in four areas") << &FourAreas;
    QTest::newRow("tabs") << &Tabs;
    QTest::newRow("nested") << &Nested;
    QTest::newRow("one floats") << &Floating;
    QTest::newRow("without room") << &WithoutRoom;
}

void DockManagerShowAllTest::theLayoutIsThatBeforeAllWereHidden()
{
    QFETCH(Arrangement, arrange);
    ArrangedDocks f(arrange);
    const QStringList before = f.Places();
    f.HideAll();

    f.manager.ShowAllDockPane();
    QCoreApplication::processEvents();

    QCOMPARE(f.Places(), before);
}

/// Counts how often a widget is resized.
class ResizeCount final : public QObject
{
public:
    explicit ResizeCount(QWidget* pWidget) { pWidget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        count += pEvent->type() == QEvent::Resize ? 1 : 0;
        return false;
    }

    int count = 0;
};

void DockManagerShowAllTest::noContentIsResizedOnTheWay()
{
    ArrangedDocks f(&Stack);
    f.HideAll();
    QWidget* pContent = f.Widget(L"a")->widget();
    const ResizeCount resizes(pContent);
    ShowingDock losingAChild([&] { delete new QWidget(pContent); });
    f.Enter(L"aa", &losingAChild);

    f.manager.ShowAllDockPane();

    QCOMPARE(resizes.count, 0);
}

void DockManagerShowAllTest::nothingIsLeftToBeLaidOutLater()
{
    ArrangedDocks f(&FourAreas);
    f.HideAll();

    f.manager.ShowAllDockPane();

    const QStringList atOnce = f.Places();
    QCoreApplication::processEvents();
    QCOMPARE(f.Places(), atOnce);
}

/// What panes tell about being shown, in order.
QStringList SignalsOf(ArrangedDocks& f, const std::function<void()>& show)
{
    f.HideAll();
    QStringList notes;
    for (QDockWidget* pPane : f.Widgets())
    {
        const auto note = [&notes, pPane](const char* what, bool is) {
            notes << pPane->windowTitle() + what + (is ? "yes" : "no");
        };
        QObject::connect(pPane, &QDockWidget::visibilityChanged, &f.window,
                         [note](bool isVisible) { note(" visible: ", isVisible); });
        QObject::connect(pPane->toggleViewAction(), &QAction::toggled, &f.window,
                         [note](bool isChecked) { note(" checked: ", isChecked); });
    }
    show();
    QCoreApplication::processEvents();
    for (QDockWidget* pPane : f.Widgets())
    {
        pPane->disconnect(&f.window);
        pPane->toggleViewAction()->disconnect(&f.window);
    }
    return notes;
}

void DockManagerShowAllTest::theSignalsAreThoseOfShowingOneAfterAnother()
{
    ArrangedDocks f(&FourAreas);
    ArrangedDocks plain(&FourAreas);

    const QStringList notes = SignalsOf(f, [&] { f.manager.ShowAllDockPane(); });

    QCOMPARE(notes, SignalsOf(plain, [&] {
                 for (QDockWidget* pPane : plain.Widgets())
                     pPane->show();
             }));
    QCOMPARE(notes.size(), 12);
}

void DockManagerShowAllTest::theLastSignalOfATabTellsWhetherItIsInFront()
{
    ArrangedDocks f(&Tabs);
    f.HideAll();
    const QSignalSpy front(f.Widget(L"b"), &QDockWidget::visibilityChanged);
    const QSignalSpy behind(f.Widget(L"d"), &QDockWidget::visibilityChanged);

    f.manager.ShowAllDockPane();

    QCOMPARE(front.last(), QList<QVariant>{true});
    QCOMPARE(behind.last(), QList<QVariant>{false});
}

void DockManagerShowAllTest::inAHiddenWindowNothingIsLaidOut()
{
    ArrangedDocks f(&Stack);
    const QStringList before = f.Places();
    f.HideAll();
    f.window.hide();
    f.window.resize(900, 700);

    f.manager.ShowAllDockPane();

    QVERIFY(!f.manager.GetDock(L"a")->IsHidden());
    QCOMPARE(f.Widget(L"c")->geometry().bottom(), 599);
    f.window.resize(800, 600);
    f.window.show();
    QCoreApplication::processEvents();
    QCOMPARE(f.Places(), before);
}

void DockManagerShowAllTest::aWindowThatLaysNothingOutIsLeftAlone()
{
    ArrangedDocks f(&Stack);
    f.HideAll();
    f.window.layout()->setEnabled(false);
    f.window.resize(900, 700);

    f.manager.ShowAllDockPane();

    QVERIFY(!f.window.layout()->isEnabled());
    QVERIFY(f.Widget(L"a")->isVisible());
    QCOMPARE(f.Widget(L"c")->geometry().bottom(), 599);
}

void DockManagerShowAllTest::aManagerWithoutMainWindowShowsItsPanes()
{
    ArrangedDocks f(&Stack);
    f.HideAll();
    f.TakeWindow();

    f.manager.ShowAllDockPane();

    QVERIFY(f.Widget(L"a")->isVisible());
}

void DockManagerShowAllTest::aPaneMayDestroyAnother()
{
    ArrangedDocks f(&Stack);
    f.HideAll();
    ShowingDock acting([&] {
        const IDock* pDock = f.manager.GetDock(L"b");
        f.manager.DeleteDock(L"b");
        delete pDock;
    });
    f.Enter(L"aa", &acting);

    f.manager.ShowAllDockPane();

    QVERIFY(f.window.layout()->isEnabled());
    const int separator = f.window.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
    QCOMPARE(f.Widget(L"c")->geometry().top(), f.Widget(L"a")->geometry().bottom() + 1 + separator);
}

void DockManagerShowAllTest::aPaneMayDestroyWhatIsNoPane()
{
    ArrangedDocks f(&Stack);
    auto* pForeign = new QDockWidget(&f.window);
    f.window.addDockWidget(Qt::LeftDockWidgetArea, pForeign);
    f.HideAll();
    ShowingDock acting([&] { delete pForeign; });
    f.Enter(L"b0", &acting);

    f.manager.ShowAllDockPane();

    QVERIFY(f.window.layout()->isEnabled());
    QCOMPARE(f.Widget(L"c")->geometry().bottom(), f.window.height() - 1);
}

/// A manager and a window that can be destroyed while panes are being shown.
struct MortalManager
{
    explicit MortalManager(std::function<void()> onShow) : acting(std::move(onShow))
    {
        host.window.SetDockManager(pManager.get());
        host.window.SetWindowId(pWindow->GetWindowId());
        for (const wchar_t* name : {L"a", L"c"})
            pManager->AddDock(pManager->CreateDock(name, name), DockArea::Left,
                              DockOrientation::Vertical);
        ((*pManager).*MemberOf(DockTable()))[L"b"] = &acting;
        pWindow->show();
        pManager->HideAllDockPane();
        QCoreApplication::processEvents();
    }

    HostFixture host;
    ShowingDock acting;
    std::unique_ptr<DockWindow> pWindow = std::make_unique<DockWindow>();
    std::unique_ptr<DockManagerImpl> pManager = std::make_unique<DockManagerImpl>(pWindow.get());
};

void DockManagerShowAllTest::aPaneMayDestroyTheManager()
{
    MortalManager f([&f] { f.pManager.reset(); });
    const auto* pFirst = WidgetOf(f.pManager->GetDock(L"a"));

    f.pManager->ShowAllDockPane();

    QVERIFY(f.pWindow->layout()->isEnabled());
    QCOMPARE(pFirst->height(), f.pWindow->height());
}

void DockManagerShowAllTest::aPaneMayDestroyTheWindow()
{
    MortalManager f([&f] {
        f.pManager.reset();
        f.pWindow.reset();
    });

    f.pManager->ShowAllDockPane();

    QVERIFY(f.pWindow == nullptr);
}

void DockManagerShowAllTest::aPaneMayThrow()
{
    ArrangedDocks f(&Stack);
    f.HideAll();
    ShowingDock acting([] { throw std::runtime_error("shown"); });
    f.Enter(L"b0", &acting);

    QVERIFY_EXCEPTION_THROWN(f.manager.ShowAllDockPane(), std::runtime_error);

    QVERIFY(f.window.layout()->isEnabled());
    QCoreApplication::processEvents();
    QCOMPARE(f.Widget(L"b")->geometry().bottom(), f.window.height() - 1);
}

void DockManagerShowAllTest::aPaneMayShowAllAgain()
{
    ArrangedDocks f(&Stack);
    const QStringList before = f.Places();
    f.HideAll();
    int count = 0;
    ShowingDock acting([&] {
        if (++count == 1)
            f.manager.ShowAllDockPane();
    });
    f.Enter(L"aa", &acting);

    f.manager.ShowAllDockPane();

    QCOMPARE(count, 2);
    QVERIFY(f.window.layout()->isEnabled());
    QCOMPARE(f.Places(), before);
}

void DockManagerShowAllTest::aPaneMayRunAnEventLoop()
{
    ArrangedDocks f(&Stack);
    f.HideAll();
    int height = 0;
    ShowingDock acting([&] {
        QCoreApplication::processEvents();
        height = f.Widget(L"a")->height();
    });
    f.Enter(L"aa", &acting);

    f.manager.ShowAllDockPane();

    QCOMPARE(height, f.window.height());
    QCOMPARE(f.Widget(L"c")->geometry().bottom(), f.window.height() - 1);
}

void DockManagerShowAllTest::aPaneMayResizeTheWindow()
{
    ArrangedDocks f(&Stack);
    ShowingDock acting([&] { f.window.resize(900, 700); });
    f.Enter(L"d", &acting);

    f.manager.ShowAllDockPane();

    QCOMPARE(f.Widget(L"c")->geometry().bottom(), 699);
}

}

VESK_TESTS(vesk::test::DockManagerShowAllTest);
#include "DockManagerShowAllTest.moc"
