#include "Application/ClosedPopupKeys.h"

#include "Support/TestValues.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMetaEnum>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

using namespace vesk;
using namespace vesk::test;

namespace
{

/// A window with a combo box whose list is open, and a field that had the focus before.
struct Fixture
{
    Fixture()
    {
        window.setLayout(new QVBoxLayout);
        window.layout()->addWidget(pField);
        window.layout()->addWidget(pBox);
        pBox->addItems({"first", "second", "third"});
        pBox->setFocusPolicy(Qt::NoFocus);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window, PatienceMs))
            qFatal("the window does not become active");
        pField->setFocus();
        pBox->showPopup();
        pList = pBox->view()->window()->windowHandle();
    }

    QWidget window;
    QLineEdit* pField = new QLineEdit;
    QComboBox* pBox = new QComboBox;

    /// To which the window system keeps delivering keys for a while.
    QWindow* pList = nullptr;
};

const QStringList LateKey{"ShortcutOverride", "KeyPress", "KeyRelease"};

/// Records the events that an object is sent: keys, and events of type User. The toolkit announces
/// a forwarded key twice.
class EventLog final : public QObject
{
public:
    explicit EventLog(QObject& watched) { watched.installEventFilter(this); }

    QStringList types;

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        const QString type = QMetaEnum::fromType<QEvent::Type>().valueToKey(pEvent->type());
        const bool isWatched =
            dynamic_cast<QKeyEvent*>(pEvent) != nullptr || pEvent->type() == QEvent::User;
        if (isWatched && !types.endsWith(type))
            types.push_back(type);
        return false;
    }
};

}

/// Keys that the window system delivers to a list or menu after it has closed.
class ClosedPopupKeysTest final : public QObject
{
    Q_OBJECT

private slots:
    void keysThatComeLateGoToWhatHasTheFocus()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Down);
        QTest::keyClick(f.pList, Qt::Key_Return);
        QVERIFY(!f.pList->isVisible());

        QTest::keyClick(f.pList, Qt::Key_2);
        QTest::keyClick(f.pList, Qt::Key_5);

        QCOMPARE(f.pField->text(), QString("25"));
        QCOMPARE(f.pBox->currentIndex(), 1);
    }

    void eachHalfOfALateKeyGoesOn()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Escape);
        const EventLog log(*f.pField);

        QTest::keyClick(f.pList, Qt::Key_2);

        QCOMPARE(log.types, LateKey);
    }

    void theListDoesNotGetThemAsWell()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Escape);
        const EventLog log(*f.pList);

        QTest::keyClick(f.pList, Qt::Key_2);

        QCOMPARE(log.types, QStringList());
    }

    void theWatchMayEndWithTheKeyThatIsPassedOn()
    {
        Fixture f;
        auto pKeys = std::make_unique<ClosedPopupKeys>();
        QTest::keyClick(f.pList, Qt::Key_Escape);
        connect(f.pField, &QLineEdit::textEdited, this, [&pKeys] { pKeys.reset(); });

        QTest::keyClick(f.pList, Qt::Key_2);
        QTest::keyClick(f.pList, Qt::Key_3);

        QCOMPARE(f.pField->text(), QString("2"));
        QVERIFY(pKeys == nullptr);
    }

    void whatIsNoKeyStaysThere()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Escape);
        QTest::keyClick(f.pList, Qt::Key_2);
        const EventLog there(*f.pList);
        const EventLog elsewhere(*f.window.windowHandle());
        QEvent event(QEvent::User);

        QCoreApplication::sendEvent(f.pList, &event);

        QCOMPARE(there.types, QStringList("User"));
        QCOMPARE(elsewhere.types, QStringList());
    }

    void theKeyThatClosesTheListIsForNobodyElse_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("chosen") << Qt::Key_Return;
        QTest::newRow("left") << Qt::Key_Escape;
    }

    void theKeyThatClosesTheListIsForNobodyElse()
    {
        QFETCH(Qt::Key, key);
        Fixture f;
        const ClosedPopupKeys keys;
        const EventLog log(*f.pField);

        QTest::keyClick(f.pList, key);

        QVERIFY(!f.pList->isVisible());
        QCOMPARE(log.types, QStringList());
    }

    void anotherKeyInBetweenMakesItNoLaterKey()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Escape);
        QTest::keyClick(f.pList, Qt::Key_2);
        f.pBox->showPopup();

        QTest::keyClick(f.pList, Qt::Key_Return);

        QCOMPARE(f.pField->text(), QString("2"));
    }

    void anOpenListKeepsItsKeys()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        const EventLog log(*f.pField);

        QTest::keyClick(f.pList, Qt::Key_Down);

        QCOMPARE(f.pBox->view()->currentIndex().row(), 1);
        QCOMPARE(log.types, QStringList());
    }

    void keysOfAClosedMenuGoOnToo()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        f.pBox->hidePopup();
        QMenu menu(&f.window);
        const QSignalSpy choices(menu.addAction("Entry"), &QAction::triggered);
        menu.popup(QPoint());
        QTest::keyClick(menu.windowHandle(), Qt::Key_Down);
        QTest::keyClick(menu.windowHandle(), Qt::Key_Return);

        QTest::keyClick(menu.windowHandle(), Qt::Key_7);

        QCOMPARE(choices.count(), 1);
        QCOMPARE(f.pField->text(), QString("7"));
    }

    void aListThatIsOpenGetsWhatAClosedOneIsGiven()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        f.pBox->hidePopup();
        QComboBox other(&f.window);
        other.addItems({"a", "b"});
        other.show();
        other.showPopup();

        QTest::keyClick(f.pList, Qt::Key_Down);

        QCOMPARE(other.view()->currentIndex().row(), 1);
    }

    void aHiddenWindowThatIsNoPopupKeepsItsKeys()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        f.pBox->hidePopup();
        QWidget dialog(&f.window, Qt::Dialog);
        dialog.winId();

        QTest::keyClick(dialog.windowHandle(), Qt::Key_2);

        QCOMPARE(f.pField->text(), QString());
    }

    void withoutAFocusTheWindowOfTheListIsMeant()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Escape);
        f.pField->clearFocus();
        QCOMPARE(QApplication::focusWidget(), nullptr);
        const EventLog log(f.window);

        QTest::keyClick(f.pList, Qt::Key_2);

        QCOMPARE(log.types, LateKey);
        QCOMPARE(f.pField->text(), QString());
    }

    void whatHasTheFocusComesBeforeTheWindowOfTheList()
    {
        Fixture f;
        const ClosedPopupKeys keys;
        QTest::keyClick(f.pList, Qt::Key_Return);
        QLineEdit other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other, PatienceMs));
        other.setFocus();

        QTest::keyClick(f.pList, Qt::Key_2);

        QCOMPARE(other.text(), QString("2"));
        QCOMPARE(f.pField->text(), QString());
    }

    void aMenuThatBelongsToNoWindowKeepsItsKeys()
    {
        const ClosedPopupKeys keys;
        QMenu menu;
        menu.popup(QPoint());
        menu.close();
        const EventLog log(menu);

        QTest::keyClick(menu.windowHandle(), Qt::Key_2);

        QCOMPARE(log.types, LateKey);
    }
};

VESK_TESTS(ClosedPopupKeysTest);
#include "ClosedPopupKeysTest.moc"
