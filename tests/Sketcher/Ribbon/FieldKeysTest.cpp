#include "Ribbon/FieldKeys.h"

#include "Control/LineEditDefinition.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QLineEdit>
#include <QShortcut>
#include <QSignalSpy>

#include <memory>
#include <utility>

using namespace vesk;
using namespace vesk::test;

namespace
{

/// A field on screen that shows "former", in a window with the shortcut Ctrl+Z.
struct Fixture
{
    Fixture()
    {
        auto opDefinition = MakeOwner<LineEditDefinition>(L"Field");
        pDefinition = opDefinition.Get();
        pDefinition->SetText(former);
        pField = qobject_cast<QLineEdit*>(
            controls->Create(OwnerPtr<ILineEditDefinition>(std::move(opDefinition))));
        pField->setParent(pWindow.get());
        pKeys = new FieldKeys(*pField, *pDefinition, [this] { return former; });
        pShortcut = new QShortcut(QKeySequence("Ctrl+Z"), pWindow.get());
        pField->show();
        pWindow->show();
        pWindow->activateWindow();
        if (!QTest::qWaitForWindowActive(pWindow.get(), vesk::test::PatienceMs))
            qFatal("the window does not become active");
        pField->setFocus();
    }
    ~Fixture() { controls.reset(); }

    void TypeOver(const QString& text) const
    {
        pField->selectAll();
        QTest::keyClicks(pField, text);
    }

    HostFixture host;
    ControlLibrary library;
    std::unique_ptr<QWidget> pWindow = std::make_unique<QWidget>();
    std::unique_ptr<ControlHost> controls = std::make_unique<ControlHost>();
    std::wstring former = L"former";
    LineEditDefinition* pDefinition = nullptr;
    QLineEdit* pField = nullptr;
    FieldKeys* pKeys = nullptr;
    QShortcut* pShortcut = nullptr;
};

}

/// A field with its own keys.
class FieldKeysTest final : public QObject
{
    Q_OBJECT

private slots:
    void escapeGivesTheFormerTextBack()
    {
        Fixture f;
        const QSignalSpy restored(f.pKeys, &FieldKeys::restored);
        f.TypeOver("new");

        QTest::keyClick(f.pField, Qt::Key_Escape);

        QCOMPARE(f.pField->text(), QString("former"));
        QCOMPARE(QString::fromStdWString(f.pDefinition->GetText()), QString("former"));
        QVERIFY(!f.pDefinition->IsEditing());
        QCOMPARE(restored.count(), 1);
        QVERIFY(f.pField->hasFocus());
    }

    void theFormerTextIsTheOneOfThatMoment()
    {
        Fixture f;
        f.TypeOver("new");
        f.former = L"changed meanwhile";

        QTest::keyClick(f.pField, Qt::Key_Escape);

        QCOMPARE(f.pField->text(), QString("changed meanwhile"));
    }

    void escapeIsTheWindowsWhereNothingIsToBeGivenBack()
    {
        Fixture f;
        const QSignalSpy restored(f.pKeys, &FieldKeys::restored);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);

        QCoreApplication::sendEvent(f.pField, &press);
        QVERIFY(!press.isAccepted());
        QCOMPARE(restored.count(), 0);

        f.TypeOver("new");
        QKeyEvent second(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(f.pField, &second);
        QVERIFY(second.isAccepted());
    }

    void whatIsTypedIsUndoneInTheField()
    {
        Fixture f;
        const QSignalSpy undone(f.pShortcut, &QShortcut::activated);
        f.TypeOver("new");

        QTest::keyClick(f.pField, Qt::Key_Z, Qt::ControlModifier);

        QVERIFY(f.pField->text() != "new");
        QCOMPARE(undone.count(), 0);
    }

    void whatWasRefusedIsUndoneInTheFieldToo()
    {
        Fixture f;
        const QSignalSpy undone(f.pShortcut, &QShortcut::activated);
        f.TypeOver("new");
        QTest::keyClick(f.pField, Qt::Key_Return);

        QTest::keyClick(f.pField, Qt::Key_Z, Qt::ControlModifier);

        QVERIFY(f.pField->text() != "new");
        QCOMPARE(undone.count(), 0);
    }

    void whatReturnHasTakenIsUndoneByTheWindow()
    {
        Fixture f;
        const QSignalSpy undone(f.pShortcut, &QShortcut::activated);
        f.TypeOver("new");
        f.former = L"new";
        QTest::keyClick(f.pField, Qt::Key_Return);

        QTest::keyClick(f.pField, Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(f.pField->text(), QString("new"));
        QCOMPARE(undone.count(), 1);
    }

    void afterEscapeTheWindowUndoes()
    {
        Fixture f;
        const QSignalSpy undone(f.pShortcut, &QShortcut::activated);
        f.TypeOver("new");
        QTest::keyClick(f.pField, Qt::Key_Escape);

        QTest::keyClick(f.pField, Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(f.pField->text(), QString("former"));
        QCOMPARE(undone.count(), 1);
    }

    void aTextThatWasTypedAsItStoodIsUndoneInTheField()
    {
        Fixture f;
        const QSignalSpy undone(f.pShortcut, &QShortcut::activated);
        QTest::keyClicks(f.pField, "x");
        QTest::keyClick(f.pField, Qt::Key_Backspace);
        QCOMPARE(f.pField->text(), QString("former"));

        QTest::keyClick(f.pField, Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(f.pField->text(), QString("formerx"));
        QCOMPARE(undone.count(), 0);
    }

    void otherShortcutsOfTheFieldStayItsOwn()
    {
        Fixture f;
        QShortcut copy(QKeySequence("Ctrl+A"), f.pWindow.get());
        const QSignalSpy activated(&copy, &QShortcut::activated);

        QTest::keyClick(f.pField, Qt::Key_A, Qt::ControlModifier);

        QCOMPARE(f.pField->selectedText(), QString("former"));
        QCOMPARE(activated.count(), 0);
    }
};

VESK_TESTS(FieldKeysTest);
#include "FieldKeysTest.moc"
