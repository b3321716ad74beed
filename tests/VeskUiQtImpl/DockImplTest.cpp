#include "VeskUiQtImpl/DockImpl.h"

#include "DockFixture.h"
#include "Foundation/NqStyleSheetHelper.h"
#include "Support/TestValues.h"

#include <QLineEdit>
#include <QPointer>

#include <type_traits>

namespace vesk::test
{

VESK_EXPOSE(DockContent, IWidget*, DockImpl, m_pContent)
VESK_EXPOSE(DockName, std::wstring, DockImpl, m_name)

class DockImplTest : public QObject
{
    Q_OBJECT

private slots:
    void basesAndMembersStandInOrder();
    void operationsHaveTheirSlots();
    void addsNothingToTheWidgetOfQt();
    void aNewDockHasNameAndTitleAndNoContent();
    void aNewDockIsAPlainChildOfItsParent();
    void isDressedOnceInTheStyleSheetOfItsCreation();
    void theNameNeverChanges();
    void titlesComeBackAsTheyWereSet_data();
    void titlesComeBackAsTheyWereSet();
    void theTitleIsTheWindowTitle();
    void isMoved();
    void contentThatIsAWidgetIsShownAndDiesWithTheDock();
    void contentThatIsNoWidgetIsKeptButNotShown();
    void contentThatIsNoWidgetIsNeverDeleted();
    void replacedContentIsNotDeleted();
    void contentCanBeTakenBack();
    void isHiddenOnlyWhenItWasHidden_data();
    void isHiddenOnlyWhenItWasHidden();
    void raisingBringsATabToTheFront();
    void floatsAndComesBack();
    void floatsAlsoWhenItIsHidden();
    void showingDoesNotRaise();
    void showingDoesNotTouchTheOthers();
    void raisingDoesNotShow();
    void raisingTakesNoFocus();
    void hidingLeavesTheRest();
    void movingDoesNotResize();
    void aTitleChangesNothingElse();
    void contentThatIsTakenBackStaysShown();
    void isLeftAsQtMakesIt();
    void itsOwnerDeletesTheWholeDock();
};

struct NewDock : DockFixture
{
    QDockWidget& Widget() { return *WidgetOf(opDock.Get()); }

    OwnerPtr<IDock> opDock = manager.CreateDock(L"name", L"title");
};

void DockImplTest::basesAndMembersStandInOrder()
{
    NewDock f;
    const auto& dock = static_cast<const DockImpl&>(*f.opDock);

    QCOMPARE(BaseOffsetIn<QDockWidget>(dock), std::ptrdiff_t(0));
    QCOMPARE(BaseOffsetIn<IDock>(dock), std::ptrdiff_t(sizeof(QDockWidget)));
    QCOMPARE(OffsetIn(dock, MemberOf(DockContent())),
             std::ptrdiff_t(sizeof(QDockWidget) + sizeof(IDock)));
    QCOMPARE(OffsetIn(dock, MemberOf(DockName())),
             OffsetIn(dock, MemberOf(DockContent())) + std::ptrdiff_t(sizeof(IWidget*)));
    QCOMPARE(sizeof(DockImpl),
             sizeof(QDockWidget) + sizeof(IDock) + sizeof(IWidget*) + sizeof(std::wstring));
}

void DockImplTest::operationsHaveTheirSlots()
{
    QCOMPARE(SlotOf(&IDock::GetName), std::ptrdiff_t(2));
    QCOMPARE(SlotOf(&IDock::Move), std::ptrdiff_t(3));
    QCOMPARE(SlotOf(&IDock::GetWidget), std::ptrdiff_t(4));
    QCOMPARE(SlotOf(&IDock::SetWidget), std::ptrdiff_t(5));
    QCOMPARE(SlotOf(&IDock::SetTitle), std::ptrdiff_t(6));
    QCOMPARE(SlotOf(&IDock::GetTitle), std::ptrdiff_t(7));
    QCOMPARE(SlotOf(&IDock::Show), std::ptrdiff_t(8));
    QCOMPARE(SlotOf(&IDock::Hide), std::ptrdiff_t(9));
    QCOMPARE(SlotOf(&IDock::Raise), std::ptrdiff_t(10));
    QCOMPARE(SlotOf(&IDock::IsHidden), std::ptrdiff_t(11));
    QCOMPARE(SlotOf(&IDock::SetFloating), std::ptrdiff_t(12));
    QCOMPARE(SlotOf(&IDock::IsFloating), std::ptrdiff_t(13));
}

void DockImplTest::addsNothingToTheWidgetOfQt()
{
    NewDock f;

    QCOMPARE(f.Widget().metaObject(), &QDockWidget::staticMetaObject);
    QVERIFY((std::is_same_v<decltype(&DockImpl::setVisible), decltype(&QDockWidget::setVisible)>));
    QVERIFY((std::is_same_v<decltype(&DockImpl::sizeHint), decltype(&QDockWidget::sizeHint)>));
    QVERIFY(
        (std::is_same_v<decltype(&DockImpl::eventFilter), decltype(&QDockWidget::eventFilter)>));
    QVERIFY((std::is_same_v<decltype(&DockImpl::minimumSizeHint),
                            decltype(&QDockWidget::minimumSizeHint)>));
}

void DockImplTest::aNewDockHasNameAndTitleAndNoContent()
{
    const NewDock f;

    QCOMPARE(f.opDock->GetName(), std::wstring(L"name"));
    QCOMPARE(f.opDock->GetTitle(), std::wstring(L"title"));
    QVERIFY(f.opDock->GetWidget() == nullptr);
}

void DockImplTest::aNewDockIsAPlainChildOfItsParent()
{
    NewDock f;

    QCOMPARE(f.Widget().parentWidget(), static_cast<QWidget*>(&f.window));
    QVERIFY(!f.Widget().isWindow());
    QCOMPARE(f.Widget().windowFlags(), QDockWidget(&f.window).windowFlags());
}

void DockImplTest::isDressedOnceInTheStyleSheetOfItsCreation()
{
    HostFixture host;
    DockWindow window;
    const DockManagerImpl manager(&window);
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { font-family: 宋体; }");
    const OwnerPtr<IDock> opDock = manager.CreateDock(L"name", L"title");

    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { color: red; }");

    QCOMPARE(WidgetOf(opDock.Get())->styleSheet(),
             QString::fromUtf8("QDockWidget { font-family: 宋体; }"));
}

void DockImplTest::theNameNeverChanges()
{
    NewDock f;
    const std::wstring* pName = &f.opDock->GetName();

    f.opDock->SetTitle(L"another");

    QCOMPARE(&f.opDock->GetName(), pName);
    QCOMPARE(*pName, std::wstring(L"name"));
}

void DockImplTest::titlesComeBackAsTheyWereSet_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("empty") << QString();
    QTest::newRow("Latin") << QString::fromUtf8("Größe");
    QTest::newRow("blanks around it") << QString(" a  b ");
    QTest::newRow("mark of what is modified") << QString("a[*]");
    QTest::newRow("Chinese") << QString::fromUtf8("属性面板");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("\xF0\x9F\x93\x90 angle");
}

void DockImplTest::titlesComeBackAsTheyWereSet()
{
    QFETCH(QString, title);
    NewDock f;

    f.opDock->SetTitle(title.toStdWString());

    QCOMPARE(f.opDock->GetTitle(), title.toStdWString());
    QCOMPARE(f.Widget().windowTitle(), title);
}

void DockImplTest::theTitleIsTheWindowTitle()
{
    NewDock f;

    f.Widget().setWindowTitle("by Qt");

    QCOMPARE(f.opDock->GetTitle(), std::wstring(L"by Qt"));
}

void DockImplTest::isMoved()
{
    NewDock f;

    f.opDock->Move(31, 17);

    QCOMPARE(f.Widget().pos(), QPoint(31, 17));
}

void DockImplTest::contentThatIsAWidgetIsShownAndDiesWithTheDock()
{
    NewDock f;
    auto opContent = MakeOwner<WidgetContent>();
    const QPointer<WidgetContent> pContent = opContent.Get();

    f.opDock->SetWidget(std::move(opContent));
    QCOMPARE(f.opDock->GetWidget(), static_cast<IWidget*>(pContent.data()));
    QCOMPARE(f.Widget().widget(), static_cast<QWidget*>(pContent));
    QCOMPARE(pContent->parentWidget(), static_cast<QWidget*>(&f.Widget()));

    f.opDock.Reset();
    QVERIFY(pContent.isNull());
}

void DockImplTest::contentThatIsNoWidgetIsKeptButNotShown()
{
    NewDock f;
    auto opShown = MakeOwner<WidgetContent>();
    QWidget* pShown = opShown.Get();
    f.opDock->SetWidget(std::move(opShown));
    bool isDestroyed = false;

    f.opDock->SetWidget(OwnerPtr<IWidget>(new PlainContent(&isDestroyed)));
    const IWidget* pKept = f.opDock->GetWidget();

    QVERIFY(dynamic_cast<const PlainContent*>(pKept) != nullptr);
    QCOMPARE(f.Widget().widget(), pShown);
    delete pKept;
}

void DockImplTest::contentThatIsNoWidgetIsNeverDeleted()
{
    NewDock f;
    bool isDestroyed = false;
    f.opDock->SetWidget(OwnerPtr<IWidget>(new PlainContent(&isDestroyed)));
    const IWidget* pContent = f.opDock->GetWidget();
    QVERIFY(!isDestroyed);

    f.opDock.Reset();

    QVERIFY(!isDestroyed);
    delete pContent;
}

void DockImplTest::replacedContentIsNotDeleted()
{
    NewDock f;
    auto opFirst = MakeOwner<WidgetContent>();
    const QPointer<WidgetContent> pFirst = opFirst.Get();
    f.opDock->SetWidget(std::move(opFirst));
    auto opSecond = MakeOwner<WidgetContent>();
    QWidget* pSecond = opSecond.Get();

    f.opDock->SetWidget(std::move(opSecond));
    // Nor later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!pFirst.isNull());
    QCOMPARE(f.Widget().widget(), pSecond);
    QCOMPARE(dynamic_cast<QWidget*>(f.opDock->GetWidget()), pSecond);
}

void DockImplTest::contentCanBeTakenBack()
{
    NewDock f;
    f.opDock->SetWidget(MakeOwner<WidgetContent>());

    f.opDock->SetWidget(nullptr);

    QVERIFY(f.opDock->GetWidget() == nullptr);
}

void DockImplTest::isHiddenOnlyWhenItWasHidden_data()
{
    QTest::addColumn<bool>("isWindowShown");
    QTest::newRow("in a hidden window") << false;
    QTest::newRow("in a shown window") << true;
}

void DockImplTest::isHiddenOnlyWhenItWasHidden()
{
    QFETCH(bool, isWindowShown);
    NewDock f;
    f.window.setVisible(isWindowShown);

    f.opDock->Hide();
    QVERIFY(f.opDock->IsHidden());
    QVERIFY(!f.Widget().isVisible());

    f.opDock->Show();
    QVERIFY(!f.opDock->IsHidden());
    QCOMPARE(f.Widget().isVisible(), isWindowShown);
}

void DockImplTest::raisingBringsATabToTheFront()
{
    DockFixture f;
    IDock* pFirst = f.Add(L"first");
    IDock* pSecond = f.Add(L"second");
    f.manager.TabifyDock(pFirst, pSecond);
    f.window.show();
    QTRY_VERIFY(!WidgetOf(pSecond)->visibleRegion().isEmpty());
    QVERIFY(WidgetOf(pFirst)->visibleRegion().isEmpty());

    pFirst->Raise();

    QTRY_VERIFY(!WidgetOf(pFirst)->visibleRegion().isEmpty());
    QVERIFY(WidgetOf(pSecond)->visibleRegion().isEmpty());
}

void DockImplTest::floatsAndComesBack()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    QVERIFY(!pDock->IsFloating());

    pDock->SetFloating(true);
    QVERIFY(pDock->IsFloating());
    QVERIFY(WidgetOf(pDock)->isWindow());

    pDock->SetFloating(false);
    QVERIFY(!pDock->IsFloating());
    QVERIFY(!WidgetOf(pDock)->isWindow());
}

void DockImplTest::floatsAlsoWhenItIsHidden()
{
    DockFixture f;
    IDock* pDock = f.Add(L"name");
    pDock->SetFloating(true);

    pDock->Hide();

    QVERIFY(pDock->IsFloating());
}

/// Two tabbed panes, the second in front.
struct TabbedDocks : DockFixture
{
    TabbedDocks()
    {
        manager.TabifyDock(pFirst, pSecond);
        window.show();
    }

    bool IsInFront(IDock* pDock) const { return !WidgetOf(pDock)->visibleRegion().isEmpty(); }

    IDock* pFirst = Add(L"first");
    IDock* pSecond = Add(L"second");
};

void DockImplTest::showingDoesNotRaise()
{
    TabbedDocks f;
    QTRY_VERIFY(f.IsInFront(f.pSecond));

    f.pFirst->Show();
    QCoreApplication::processEvents();

    QVERIFY(f.IsInFront(f.pSecond));
    QVERIFY(!f.IsInFront(f.pFirst));
}

void DockImplTest::showingDoesNotTouchTheOthers()
{
    DockFixture f;
    IDock* pHidden = f.Add(L"hidden");
    IDock* pShown = f.Add(L"shown");
    pHidden->Hide();
    pShown->Hide();

    pShown->Show();

    QVERIFY(pHidden->IsHidden());
    QVERIFY(!f.window.isVisible());
    QVERIFY(!pShown->IsFloating());
}

void DockImplTest::raisingDoesNotShow()
{
    DockFixture f;
    f.window.show();
    IDock* pDock = f.Add(L"name");
    pDock->Hide();

    pDock->Raise();
    QCoreApplication::processEvents();

    QVERIFY(pDock->IsHidden());
}

void DockImplTest::raisingTakesNoFocus()
{
    DockFixture f;
    auto* pCentre = new QLineEdit;
    f.window.setCentralWidget(pCentre);
    auto opContent = MakeOwner<WidgetContent>();
    opContent->setFocusPolicy(Qt::StrongFocus);
    IDock* pDock = f.Add(L"name");
    pDock->SetWidget(std::move(opContent));
    f.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&f.window, vesk::test::PatienceMs));
    pCentre->setFocus();

    pDock->Raise();
    QCoreApplication::processEvents();

    QVERIFY(pCentre->hasFocus());
}

void DockImplTest::hidingLeavesTheRest()
{
    TabbedDocks f;
    f.pFirst->SetWidget(MakeOwner<WidgetContent>());
    const IWidget* pContent = f.pFirst->GetWidget();

    f.pFirst->Hide();

    QVERIFY(!f.pSecond->IsHidden());
    QVERIFY(!f.pFirst->IsFloating());
    QCOMPARE(f.pFirst->GetWidget(), pContent);
    QCOMPARE(WidgetOf(f.pFirst)->widget(), dynamic_cast<const QWidget*>(pContent));
    QCOMPARE(f.manager.GetDock(L"first"), f.pFirst);
    QCOMPARE(f.window.dockWidgetArea(WidgetOf(f.pFirst)), Qt::LeftDockWidgetArea);
}

void DockImplTest::movingDoesNotResize()
{
    NewDock f;
    f.Widget().resize(210, 130);

    f.opDock->Move(31, 17);

    QCOMPARE(f.Widget().size(), QSize(210, 130));
    QVERIFY(!f.opDock->IsFloating());
}

void DockImplTest::aTitleChangesNothingElse()
{
    NewDock f;

    f.opDock->SetTitle(L"another");

    QCOMPARE(f.Widget().objectName(), QString());
    QCOMPARE(f.Widget().toolTip(), QString());
    QCOMPARE(f.Widget().windowIconText(), QString());
}

void DockImplTest::contentThatIsTakenBackStaysShown()
{
    NewDock f;
    f.opDock->SetWidget(MakeOwner<WidgetContent>());
    QWidget* pShown = f.Widget().widget();

    f.opDock->SetWidget(nullptr);

    QCOMPARE(f.Widget().widget(), pShown);
}

void DockImplTest::isLeftAsQtMakesIt()
{
    NewDock f;
    const QDockWidget plain;

    QCOMPARE(f.Widget().objectName(), QString());
    QCOMPARE(f.Widget().features(), plain.features());
    QCOMPARE(f.Widget().allowedAreas(), plain.allowedAreas());
    QVERIFY(f.Widget().titleBarWidget() == nullptr);
    QCOMPARE(f.Widget().minimumSize(), plain.minimumSize());
    QCOMPARE(f.Widget().focusPolicy(), plain.focusPolicy());
    QCOMPARE(f.Widget().testAttribute(Qt::WA_DeleteOnClose), false);
    QCOMPARE(f.Widget().font(), plain.font());
}

void DockImplTest::itsOwnerDeletesTheWholeDock()
{
    NewDock f;
    const QPointer<QDockWidget> pWidget = &f.Widget();

    f.opDock.Reset();

    QVERIFY(pWidget.isNull());
}

}

VESK_TESTS(vesk::test::DockImplTest);
#include "DockImplTest.moc"
