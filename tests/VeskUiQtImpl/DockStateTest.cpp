#include "VeskUiQtImpl/DockImpl.h"

#include "DockFixture.h"
#include "Foundation/NqStyleSheetHelper.h"
#include "Support/TestValues.h"

namespace vesk::test
{

/// Which state of a pane stays unchanged when another one is changed.
class DockStateTest : public QObject
{
    Q_OBJECT

private slots:
    void showingLetsItFloatOn();
    void floatingShowsNothing();
    void itsWindowIsNotActivated_data();
    void itsWindowIsNotActivated();
    void contentIsGivenNoTitleAndShowsNothing();
    void laterStyleSheetsAreNotFollowed();
    void panesOfOneStyleSheetShareItsText();
    void aStyleSheetOfTheSameLengthIsAnotherOne();
};

/// A pane that floats beside its window.
struct FloatingDock : DockFixture
{
    FloatingDock()
    {
        window.show();
        pDock->SetFloating(true);
        pDock->Show();
    }

    IDock* pDock = Add(L"name");
};

void DockStateTest::showingLetsItFloatOn()
{
    FloatingDock f;
    f.pDock->Hide();

    f.pDock->Show();

    QVERIFY(f.pDock->IsFloating());
    QVERIFY(!f.pDock->IsHidden());
}

void DockStateTest::floatingShowsNothing()
{
    DockFixture f;
    f.window.show();
    IDock* pDock = f.Add(L"name");
    pDock->Hide();

    pDock->SetFloating(true);
    QVERIFY(pDock->IsHidden());

    pDock->SetFloating(false);
    QVERIFY(pDock->IsHidden());
}

void DockStateTest::itsWindowIsNotActivated_data()
{
    QTest::addColumn<bool>("isRaise");
    QTest::newRow("shown") << false;
    QTest::newRow("raised") << true;
}

void DockStateTest::itsWindowIsNotActivated()
{
    QFETCH(bool, isRaise);
    FloatingDock f;
    f.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f.window, PatienceMs));

    if (isRaise)
        f.pDock->Raise();
    else
        f.pDock->Show();
    QCoreApplication::processEvents();

    QCOMPARE(QApplication::activeWindow(), static_cast<QWidget*>(&f.window));
}

void DockStateTest::contentIsGivenNoTitleAndShowsNothing()
{
    DockFixture f;
    f.window.show();
    IDock* pDock = f.Add(L"name");
    pDock->Hide();
    auto opContent = MakeOwner<WidgetContent>();
    opContent->setWindowTitle("content");

    pDock->SetWidget(std::move(opContent));

    QVERIFY(pDock->IsHidden());
    QCOMPARE(pDock->GetTitle(), std::wstring(L"name"));
    QCOMPARE(WidgetOf(pDock)->widget()->windowTitle(), QString("content"));
    QCOMPARE(WidgetOf(pDock)->widget()->objectName(), QString());
}

void DockStateTest::laterStyleSheetsAreNotFollowed()
{
    DockFixture f;
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { color: red; }");
    IDock* pDock = f.Add(L"name");
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { color: blue; }");

    pDock->Hide();
    pDock->Show();
    pDock->Raise();
    pDock->SetTitle(L"title");
    pDock->SetWidget(MakeOwner<WidgetContent>());
    pDock->SetFloating(true);

    QCOMPARE(WidgetOf(pDock)->styleSheet(), QString("QDockWidget { color: red; }"));
}

void DockStateTest::panesOfOneStyleSheetShareItsText()
{
    DockFixture f;
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { color: red; }");

    const QString first = WidgetOf(f.Add(L"first"))->styleSheet();
    const QString second = WidgetOf(f.Add(L"second"))->styleSheet();

    QCOMPARE(second.constData(), first.constData());
}

void DockStateTest::aStyleSheetOfTheSameLengthIsAnotherOne()
{
    DockFixture f;
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { color: red; }");
    f.Add(L"first");
    NqStyleSheetHelper::Instance()->SetCurrentStyleData(L"QDockWidget { color: tan; }");

    IDock* pSecond = f.Add(L"second");

    QCOMPARE(WidgetOf(pSecond)->styleSheet(), QString("QDockWidget { color: tan; }"));
}

}

VESK_TESTS(vesk::test::DockStateTest);
#include "DockStateTest.moc"
