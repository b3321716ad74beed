#include "TemporaryDimensionHandlersImpl/LifetimeFixture.h"

#include "Journal/NqIJournalFactory.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <QMetaMethod>

namespace vesk::test
{

VESK_EXPOSE(FirstValidator, NumberValidator<double>, TemporaryDimensionHandler,
            m_firstValueValidator)
VESK_EXPOSE(SecondValidator, NumberValidator<double>, TemporaryDimensionHandler,
            m_secondValueValidator)

class TemporaryDimensionHandlerTest : public QObject
{
    Q_OBJECT

private slots:
    void isAWidgetThatIsNeverShown();
    void offersItsSwitchesToTheHostAsAnObject();
    void startsWithoutInputAndEditor();
    void endingWithoutEditorOnlyResetsTheState();
    void endingHidesTheEditorAndTakesItsFocus();
    void endingLeavesTheText();
    void inputHasEndedBeforeTheFocusGoes();
    void inputHasBegunBeforeTheEditorShows();
    void hasFocusWhenTheEditorHasIt();
    void hasNoFocusInAnEditorThatIsOnlyShown();
    void theEditorIsAFramelessDialogOfTheView();
    void theEditorHasTheSizeOfTheStyle();
    void theEditorLooksAsItShould();
    void theEditorTakesTheFocus();
    void theEditorsWindowBecomesActiveAgain();
    void theEditorIsSharedByTheHandlersOfAView();
    void theNextHandlerBringsASharedEditorInOrder();
    void theNextHandlerIsTheEditorsFilter();
    void theEditorIsFoundDeepInTheView();
    void theEditorOutlivesItsHandler();
    void aHandlerThatIsMadeTouchesNothing();
    void theEditorFollowsTheCurrentView();
    void theEditorStaysInItsViewWhenNoneIsCurrent();
    void theJournalLearnsOfTheEditor();
    void withoutAJournalTheEditorWorksAndItIsReported();
    void withoutAViewNoInputBegins();
    void withoutAViewWidgetNoInputBegins();
    void textOfAnyLengthIsDeliveredWhole();
    void configurationNeedsAContext();
    void configurationTakesBothRangesOver();
    void valuesAreShownWithThreeDecimalsWhenValidated();
};

void TemporaryDimensionHandlerTest::isAWidgetThatIsNeverShown()
{
    HandlerFixture f;
    f.TypeLength("5");

    const auto* pWidget = dynamic_cast<QWidget*>(f.opHandler.Get());

    QVERIFY(pWidget != nullptr);
    QVERIFY(pWidget->parent() == nullptr);
    QVERIFY(!pWidget->isVisible());
}

void TemporaryDimensionHandlerTest::offersItsSwitchesToTheHostAsAnObject()
{
    HandlerFixture f;
    QCOMPARE(f.Object().property("rawTextInput"), QVariant(false));
    QCOMPARE(f.Object().property("inputState"), QVariant(0));

    QVERIFY(f.Object().setProperty("rawTextInput", true));
    f.TypeLength("5");

    QVERIFY(f.Handler().IsRawTextInput());
    QCOMPARE(f.Object().property("inputState"), QVariant(1));
    const QMetaObject& meta = *f.Object().metaObject();
    const QMetaMethod method = meta.method(meta.indexOfMethod("ResetEditorPosition()"));
    QCOMPARE(method.methodType(), QMetaMethod::Method);
}

void TemporaryDimensionHandlerTest::startsWithoutInputAndEditor()
{
    HandlerFixture f;

    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(!f.opHandler->HasEditorFocus());
    QVERIFY(f.Editor() == nullptr);
}

void TemporaryDimensionHandlerTest::endingWithoutEditorOnlyResetsTheState()
{
    HandlerFixture f;
    f.SetState(InputState::IS_Angle);
    QVERIFY(f.opHandler->IsInputting());

    f.opHandler->EndInput();

    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void TemporaryDimensionHandlerTest::endingHidesTheEditorAndTakesItsFocus()
{
    HandlerFixture f;
    f.TypeLength("5");
    QTRY_VERIFY(f.Editor()->hasFocus());

    f.opHandler->EndInput();

    QCOMPARE(f.State(), InputState::IS_None);
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Editor()->focusWidget() == nullptr);
    QVERIFY(!f.opHandler->HasEditorFocus());
}

void TemporaryDimensionHandlerTest::endingLeavesTheText()
{
    HandlerFixture f;
    f.TypeLength("5");

    f.opHandler->EndInput();
    f.opHandler->EndInput();

    QCOMPARE(f.Editor()->text(), QString("5"));
    QVERIFY(f.Editor()->isEnabled());
}

void TemporaryDimensionHandlerTest::inputHasEndedBeforeTheFocusGoes()
{
    HandlerFixture f;
    f.TypeLength("5");
    QTRY_VERIFY(f.Editor()->hasFocus());
    bool wasInputting = true;
    bool wasVisible = false;
    const EventTrap trap(f.Editor(), QEvent::FocusOut, [&] {
        wasInputting = f.opHandler->IsInputting();
        wasVisible = f.Editor()->isVisible();
    });

    f.opHandler->EndInput();

    QVERIFY(!wasInputting);
    QVERIFY(wasVisible);
}

void TemporaryDimensionHandlerTest::inputHasBegunBeforeTheEditorShows()
{
    HandlerFixture f;
    f.TypeLength("5");
    f.opHandler->EndInput();
    InputState stateAtShow = InputState::IS_None;
    const EventTrap trap(f.Editor(), QEvent::Show, [&] { stateAtShow = f.State(); });

    f.Type(InputState::IS_Angle, "6");

    QCOMPARE(stateAtShow, InputState::IS_Angle);
}

void TemporaryDimensionHandlerTest::hasFocusWhenTheEditorHasIt()
{
    HandlerFixture f;

    f.TypeLength("5");

    QTRY_VERIFY(f.opHandler->HasEditorFocus());
}

void TemporaryDimensionHandlerTest::hasNoFocusInAnEditorThatIsOnlyShown()
{
    HandlerFixture f;
    f.TypeLength("5");
    QTRY_VERIFY(f.opHandler->HasEditorFocus());

    f.Editor()->clearFocus();

    QVERIFY(f.Editor()->isVisible());
    QVERIFY(!f.opHandler->HasEditorFocus());
}

void TemporaryDimensionHandlerTest::theEditorIsAFramelessDialogOfTheView()
{
    HandlerFixture f;

    f.TypeLength("5");

    QVERIFY(f.Editor() != nullptr);
    QCOMPARE(f.Editor()->parent(), &f.host.view);
    QCOMPARE(int(f.Editor()->windowFlags()), 0x803);
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(QByteArray(f.Editor()->metaObject()->className()),
             QByteArray("vesk::TemporaryDimensionHandleEditor"));
}

void TemporaryDimensionHandlerTest::theEditorHasTheSizeOfTheStyle()
{
    HandlerFixture f;
    const TemporaryDimensionStyle style;
    const QSize size(style.GetEditorWidth(), style.GetEditorHeight());

    f.TypeLength("5");

    QCOMPARE(f.Editor()->size(), size);
    QCOMPARE(f.Editor()->minimumSize(), size);
    QCOMPARE(f.Editor()->maximumSize(), size);
}

void TemporaryDimensionHandlerTest::theEditorLooksAsItShould()
{
    HandlerFixture f;

    f.TypeLength("5");

    QCOMPARE(f.Editor()->styleSheet(),
             QString("QLineEdit{ color:rgba(199, 199, 120, 100%); border:2px solid rgba(199, 199, "
                     "120, 100%); font:10pt; border-radius:4px}QLineEdit:!enabled{ "
                     "color:rgba(100, 100, 100, 100%);}QLineEdit:focus{ color:rgba(0, 0, 0, "
                     "100%); background:rgba(255, 255, 255, 100%);}"));
    const QPalette palette = f.Editor()->palette();
    QCOMPARE(palette.brush(QPalette::Active, QPalette::Base), QBrush(Qt::white));
    QCOMPARE(palette.brush(QPalette::Inactive, QPalette::Base), QBrush(Qt::white));
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::Base), QBrush(Qt::white));
}

void TemporaryDimensionHandlerTest::theEditorTakesTheFocus()
{
    HandlerFixture f;

    f.TypeLength("5");

    QTRY_COMPARE(QApplication::focusWidget(), f.Editor());
}

void TemporaryDimensionHandlerTest::theEditorsWindowBecomesActiveAgain()
{
    HandlerFixture f;
    f.TypeLength("5");
    QTRY_VERIFY(f.Editor()->isActiveWindow());
    f.host.window.activateWindow();
    QTRY_VERIFY(f.host.window.isActiveWindow());

    f.TypeLength("6");

    QTRY_VERIFY(f.Editor()->isActiveWindow());
}

void TemporaryDimensionHandlerTest::theEditorIsSharedByTheHandlersOfAView()
{
    HandlerFixture f;
    f.TypeLength("5");
    const QLineEdit* pEditor = f.Editor();
    f.opHandler->EndInput();

    f.opHandler = f.CreateHandler();
    f.TypeLength("6");

    QCOMPARE(f.Editor(), pEditor);
    QCOMPARE(f.host.view.findChildren<QLineEdit*>().size(), 1);
    QCOMPARE(f.Editor()->text(), QString("6"));
    QVERIFY(f.Editor()->isVisible());
}

void TemporaryDimensionHandlerTest::theNextHandlerBringsASharedEditorInOrder()
{
    HandlerFixture f;
    f.TypeLength("5");
    const QString styleSheet = f.Editor()->styleSheet();
    const QSize size = f.Editor()->size();
    f.Editor()->setStyleSheet({});
    QPalette palette = f.Editor()->palette();
    palette.setBrush(QPalette::Base, Qt::red);
    palette.setBrush(QPalette::Highlight, Qt::green);
    f.Editor()->setPalette(palette);
    f.Editor()->setFixedSize(10, 10);
    f.Editor()->setWindowFlags(Qt::Tool);

    f.opHandler = f.CreateHandler();
    f.TypeLength("6");

    QCOMPARE(f.Editor()->styleSheet(), styleSheet);
    QCOMPARE(f.Editor()->size(), size);
    QCOMPARE(f.Editor()->palette().brush(QPalette::Base), QBrush(Qt::white));
    QCOMPARE(f.Editor()->palette().brush(QPalette::Highlight), QBrush(Qt::green));
    QCOMPARE(int(f.Editor()->windowFlags() & Qt::WindowType_Mask), int(Qt::Tool));
    QCOMPARE(f.host.journal.GetUiObjects().size(), std::size_t(2));
    QCOMPARE(f.host.journal.GetUiObjects()[1].pObject, f.Editor());
}

void TemporaryDimensionHandlerTest::theNextHandlerIsTheEditorsFilter()
{
    HandlerFixture f;
    f.TypeLength("5");
    f.opHandler = f.CreateHandler();
    f.host.BeginAction();
    f.TypeLength("6");

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QVERIFY(f.Editor()->isHidden());
}

void TemporaryDimensionHandlerTest::theEditorIsFoundDeepInTheView()
{
    HandlerFixture f;
    f.TypeLength("5");
    QLineEdit* pEditor = f.Editor();
    QWidget inner(&f.host.view);
    pEditor->setParent(&inner, pEditor->windowFlags());

    f.TypeLength("6");

    QCOMPARE(f.host.view.findChildren<QLineEdit*>().size(), 1);
    QCOMPARE(pEditor->text(), QString("6"));
    pEditor->setParent(&f.host.view, pEditor->windowFlags());
}

void TemporaryDimensionHandlerTest::theEditorOutlivesItsHandler()
{
    HandlerFixture f;
    f.TypeLength("5");
    const QPointer<QLineEdit> pEditor(f.Editor());
    const int redrawCount = f.host.view.GetRedrawCount();

    f.opHandler.Reset();

    QVERIFY(pEditor != nullptr);
    QCOMPARE(f.Editor(), pEditor.data());
    QVERIFY(pEditor->isVisible());
    QCOMPARE(pEditor->text(), QString("5"));
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void TemporaryDimensionHandlerTest::aHandlerThatIsMadeTouchesNothing()
{
    HandlerFixture f;
    f.TypeLength("5");
    f.opHandler->EndInput();
    const int redrawCount = f.host.view.GetRedrawCount();

    const auto opHandler = f.CreateHandler();

    QVERIFY(!opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
    QCOMPARE(f.Editor()->text(), QString("5"));
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
    QCOMPARE(f.host.journal.GetUiObjects().size(), std::size_t(1));
}

void TemporaryDimensionHandlerTest::theEditorFollowsTheCurrentView()
{
    HandlerFixture f;
    TestView other(2, &f.host.window);
    f.host.core.GetViewManager().AddView(&other);
    f.host.core.GetViewManager().SetCurrentView(&other);

    f.TypeLength("5");

    QVERIFY(f.Editor() == nullptr);
    QVERIFY(other.findChild<QLineEdit*>("ViewInputLineEdit") != nullptr);
    f.host.core.GetViewManager().RemoveView(&other);
}

void TemporaryDimensionHandlerTest::theEditorStaysInItsViewWhenNoneIsCurrent()
{
    HandlerFixture f;
    f.host.core.GetViewManager().SetCurrentView(nullptr);

    f.TypeLength("5");

    QVERIFY(f.Editor() != nullptr);
}

void TemporaryDimensionHandlerTest::theJournalLearnsOfTheEditor()
{
    HandlerFixture f;

    f.TypeLength("5");

    QCOMPARE(f.host.journal.GetUiObjects().size(), std::size_t(1));
    QCOMPARE(f.host.journal.GetUiObjects()[0].pObject, f.Editor());
    QCOMPARE(f.host.journal.GetUiObjects()[0].kind, 3);
}

void TemporaryDimensionHandlerTest::withoutAJournalTheEditorWorksAndItIsReported()
{
    HandlerFixture f;
    NqIJournalFactory* pFactory = NqIJournalFactory::GetImpl();
    NqIJournalFactory::SetImpl(nullptr);

    f.TypeLength("5");

    NqIJournalFactory::SetImpl(pFactory);
    EXPECT_WARNING(f.host.warnings, L"vesk::IJournalUiObject::Create()返回空指针",
                   std::string(BaseClass) + "CreateEditorWidget");
    QVERIFY(f.opHandler->IsInputting());
    QCOMPARE(f.Editor()->text(), QString("5"));
}

void TemporaryDimensionHandlerTest::withoutAViewNoInputBegins()
{
    HandlerFixture f;
    f.host.core.GetViewManager().RemoveView(&f.host.view);
    const int redrawCount = f.host.view.GetRedrawCount();

    f.TypeLength("5");

    EXPECT_WARNING(f.host.warnings, L"pUIView为空。",
                   std::string(BaseClass) + "CreateEditorWidget");
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void TemporaryDimensionHandlerTest::withoutAViewWidgetNoInputBegins()
{
    HandlerFixture f;
    f.host.view.SetWindowId(0);
    const int redrawCount = f.host.view.GetRedrawCount();

    f.TypeLength("5");

    EXPECT_WARNING(f.host.warnings, L"pNqView为空。",
                   std::string(BaseClass) + "CreateEditorWidget");
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void TemporaryDimensionHandlerTest::textOfAnyLengthIsDeliveredWhole()
{
    HandlerFixture f;
    f.host.BeginAction();
    f.Object().setProperty("rawTextInput", true);
    const QString longText(40000, '7');

    f.TypeLength(longText);
    QTest::keyClick(f.Editor(), Qt::Key_8);
    f.FilterKey(Qt::Key_Return);

    QCOMPARE(f.host.actionLog.inputs.size(), std::size_t(1));
    QVERIFY(f.host.actionLog.inputs.front().text == (longText + '8').toStdWString());
}

void TemporaryDimensionHandlerTest::configurationNeedsAContext()
{
    HandlerFixture f;

    f.context.SetFirstValueRange({5, 10});
    f.Configure();

    QVERIFY(!f.opHandler->UpdateConfig(nullptr));

    EXPECT_WARNING(f.host.warnings, L"pCtx为空。", std::string(BaseClass) + "UpdateConfig");
    const NumberValidator<double>& first = f.Handler().*MemberOf(FirstValidator());
    QCOMPARE_EXACTLY(first.GetBottom(), 5);
    QCOMPARE_EXACTLY(first.GetTop(), 10);
}

void TemporaryDimensionHandlerTest::configurationTakesBothRangesOver()
{
    HandlerFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.context.SetSecondValueRange({-20, 30});

    QVERIFY(f.opHandler->UpdateConfig(&f.context));

    const NumberValidator<double>& first = f.Handler().*MemberOf(FirstValidator());
    const NumberValidator<double>& second = f.Handler().*MemberOf(SecondValidator());
    QVERIFY(first.ValidateValue(5) && first.ValidateValue(10));
    QVERIFY(!first.ValidateValue(4.999) && !first.ValidateValue(10.001));
    QVERIFY(second.ValidateValue(-20) && second.ValidateValue(30));
    QVERIFY(!second.ValidateValue(-20.001) && !second.ValidateValue(30.001));
}

void TemporaryDimensionHandlerTest::valuesAreShownWithThreeDecimalsWhenValidated()
{
    HandlerFixture f;

    QCOMPARE((f.Handler().*MemberOf(FirstValidator())).GetDecimals(), 3);
    QCOMPARE((f.Handler().*MemberOf(SecondValidator())).GetDecimals(), 3);
}

}

VESK_TESTS(vesk::test::TemporaryDimensionHandlerTest);
#include "TemporaryDimensionHandlerTest.moc"
