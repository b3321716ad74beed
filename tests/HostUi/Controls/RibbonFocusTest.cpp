#include "HostUi/RibbonFocusFixture.h"

#include "Support/TestValues.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <memory>

using namespace vesk;
using namespace vesk::test;

namespace
{

using Fixture = RibbonFocusFixture;

/// A button with a menu of one entry that opens on a click.
QToolButton* MakeMenuButton()
{
    auto* pButton = new QToolButton;
    pButton->setMenu(new QMenu(pButton));
    pButton->menu()->addAction("Entry");
    pButton->setPopupMode(QToolButton::InstantPopup);
    return pButton;
}

QComboBox* MakeBox(bool isEditable = false)
{
    auto* pBox = new QComboBox;
    pBox->setEditable(isEditable);
    pBox->addItems({"first", "second"});
    return pBox;
}

using Maker = std::function<QWidget*()>;

}

Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(Qt::MouseButton)

/// A ribbon and a view in one window.
class RibbonFocusTest final : public QObject
{
    Q_OBJECT

private:
    static void AddControls()
    {
        QTest::addColumn<Maker>("make");
        QTest::newRow("check box") << Maker([] { return new QCheckBox("&Box"); });
        QTest::newRow("radio button") << Maker([] { return new QRadioButton("Button"); });
        QTest::newRow("tool button") << Maker([] { return new QToolButton; });
        QTest::newRow("tool button that takes the focus") << Maker([] {
            auto* pButton = new QToolButton;
            pButton->setFocusPolicy(Qt::StrongFocus);
            return pButton;
        });
    }

    static void AddTextControls()
    {
        QTest::addColumn<Maker>("make");
        QTest::newRow("line edit") << Maker([] { return new QLineEdit; });
        QTest::newRow("combo box that is edited") << Maker([] { return MakeBox(true); });
        QTest::newRow("spin box") << Maker([] { return new QSpinBox; });
    }

private slots:
    void fieldOfAPointGetsTheKeyboardBack()
    {
        Fixture f;
        QCheckBox* pBox = f.Place(new QCheckBox("box"));
        QLineEdit* pField = f.TypePoint();
        QVERIFY(pField != nullptr);

        QTest::mouseClick(pBox, Qt::LeftButton);

        QTRY_VERIFY(pField->hasFocus());
        QVERIFY(pBox->isChecked());
        QCOMPARE(pField->text(), QString("5"));
    }

    void shortcutsWorkWhileAPointIsTyped()
    {
        Fixture f;
        QLineEdit* pField = f.TypePoint();

        for (QWidget* pWidget : {static_cast<QWidget*>(pField), static_cast<QWidget*>(f.pView)})
        {
            QKeyEvent wanted(QEvent::ShortcutOverride, Qt::Key_L, Qt::ControlModifier);
            wanted.ignore();
            QCoreApplication::sendEvent(pWidget, &wanted);
            QVERIFY(!wanted.isAccepted());
            QKeyEvent typed(QEvent::ShortcutOverride, Qt::Key_1, Qt::NoModifier, "1");
            typed.ignore();
            QCoreApplication::sendEvent(pWidget, &typed);
            QVERIFY(typed.isAccepted());
        }
    }

    void aClickLeavesTheKeyboardWithTheView_data() { AddControls(); }

    void aClickLeavesTheKeyboardWithTheView()
    {
        QFETCH(Maker, make);
        Fixture f;
        auto* pButton = qobject_cast<QAbstractButton*>(f.Place(make()));
        f.BeginAction();
        const QSignalSpy clicks(pButton, &QAbstractButton::clicked);

        QTest::mouseClick(pButton, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(clicks.count(), 1);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pView));
    }

    void theViewHasTheKeyboardBeforeTheButtonIsLetGo()
    {
        Fixture f;
        auto* pBox = f.Place(new QCheckBox);
        f.BeginAction();

        QTest::mousePress(pBox, Qt::LeftButton);

        QVERIFY(pBox->isDown());
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pView));
    }

    void aSecondClickLeavesItToo()
    {
        Fixture f;
        auto* pBox = f.Place(new QCheckBox);
        f.BeginAction();

        QTest::mouseDClick(pBox, Qt::LeftButton);

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pView));
    }

    void withoutAnActionTheControlKeepsTheFocus()
    {
        Fixture f;
        auto* pBox = f.Place(new QCheckBox);

        QTest::mouseClick(pBox, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pBox));
    }

    void aControlElsewhereKeepsTheFocus()
    {
        Fixture f;
        f.BeginAction();

        QTest::mouseClick(f.pElsewhere, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pElsewhere));
    }

    void whatTakesTextKeepsTheFocus_data() { AddTextControls(); }

    void whatTakesTextKeepsTheFocus()
    {
        QFETCH(Maker, make);
        Fixture f;
        QWidget* pField = f.Place(make());
        f.BeginAction();

        QTest::mouseClick(pField, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), pField);
    }

    void theKeyboardComesBackFromAFieldToo_data() { AddControls(); }

    void theKeyboardComesBackFromAFieldToo()
    {
        QFETCH(Maker, make);
        Fixture f;
        auto* pField = f.Place(new QLineEdit);
        QWidget* pControl = f.Place(make());
        f.BeginAction();
        QTest::mouseClick(pField, Qt::LeftButton);

        QTest::mouseClick(pControl, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pView));
    }

    void whatCannotBeClickedLeavesAFieldAlone_data()
    {
        QTest::addColumn<Maker>("make");
        QTest::newRow("disabled") << Maker([] {
            auto* pBox = new QCheckBox;
            pBox->setEnabled(false);
            return pBox;
        });
        QTest::newRow("text") << Maker([] { return new QLabel("Text"); });
    }

    void whatCannotBeClickedLeavesAFieldAlone()
    {
        QFETCH(Maker, make);
        Fixture f;
        auto* pField = f.Place(new QLineEdit);
        QWidget* pControl = f.Place(make());
        f.BeginAction();
        QTest::mouseClick(pField, Qt::LeftButton);

        QTest::mouseClick(pControl, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pField));
    }

    void anOpenEditorHasTheKeyboardAgain_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left button") << Qt::LeftButton;
        // The control leaves this click to the ribbon around it.
        QTest::newRow("right button") << Qt::RightButton;
    }

    void anOpenEditorHasTheKeyboardAgain()
    {
        QFETCH(Qt::MouseButton, button);
        Fixture f;
        auto* pBox = f.Place(new QCheckBox);
        f.BeginAction();
        QLineEdit* pEditor = f.OpenEditor();
        f.host.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.host.window, vesk::test::PatienceMs));

        QTest::mouseClick(pBox, button);

        QTRY_VERIFY(pEditor->hasFocus());
        QCOMPARE(pEditor->text(), QString("5"));
        QTest::keyClick(pEditor, '7');
        QCOMPARE(pEditor->text(), QString("57"));
    }

    void aListGivesTheKeyboardBackOnceItIsClosed_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("chosen");
        QTest::newRow("chosen") << Qt::Key_Return << 1;
        QTest::newRow("left") << Qt::Key_Escape << 0;
    }

    void aListGivesTheKeyboardBackOnceItIsClosed()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, chosen);
        Fixture f;
        QComboBox* pBox = f.Place(MakeBox());
        f.BeginAction();
        QLineEdit* pEditor = f.OpenEditor();

        QTest::mouseClick(pBox, Qt::LeftButton);
        QTRY_VERIFY(pBox->view()->isVisible());
        QCoreApplication::processEvents();
        QVERIFY(!pEditor->hasFocus());
        QTest::keyClick(pBox->view(), Qt::Key_Down);
        QTest::keyClick(pBox->view(), key);

        QTRY_VERIFY(pEditor->hasFocus());
        QCOMPARE(pBox->currentIndex(), chosen);
    }

    void aListElsewhereLeavesTheKeyboardWithItsBox()
    {
        Fixture f;
        QComboBox* pBox = MakeBox();
        f.host.window.layout()->addWidget(pBox);
        QTRY_VERIFY(pBox->isVisible());
        f.BeginAction();
        QTest::mouseClick(pBox, Qt::LeftButton);
        QTRY_VERIFY(pBox->view()->isVisible());

        QTest::keyClick(pBox->view(), Qt::Key_Return);
        QCoreApplication::processEvents();

        QCOMPARE(f.host.window.focusWidget(), static_cast<QWidget*>(pBox));
    }

    void whatShowsAndHidesInTheRibbonLeavesAFieldAlone()
    {
        Fixture f;
        auto* pField = f.Place(new QLineEdit);
        QLabel note(f.Place(new QCheckBox));
        f.BeginAction();
        QTest::mouseClick(pField, Qt::LeftButton);

        note.show();
        note.hide();
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pField));
    }

    void whatHidesWhileTheButtonIsDownIsNotTheEndOfTheClick()
    {
        Fixture f;
        auto* pBox = f.Place(new QCheckBox);
        f.BeginAction();
        QLineEdit* pEditor = f.OpenEditor();
        f.host.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.host.window, vesk::test::PatienceMs));

        QTest::mousePress(pBox, Qt::LeftButton);
        f.pElsewhere->hide();
        QCoreApplication::processEvents();
        QVERIFY(!pEditor->hasFocus());
        QTest::mouseRelease(pBox, Qt::LeftButton);

        QTRY_VERIFY(pEditor->hasFocus());
        QVERIFY(pBox->isChecked());
    }

    void aListThatIsOpenedWithTheKeysGivesItBackToo()
    {
        Fixture f;
        QComboBox* pBox = f.Place(MakeBox());
        f.BeginAction();
        pBox->setFocus(Qt::ShortcutFocusReason);

        QTest::keyClick(pBox, Qt::Key_Down);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pBox));
        QTest::keyClick(pBox, Qt::Key_F4);
        QTRY_VERIFY(pBox->view()->isVisible());
        QTest::keyClick(pBox->view(), Qt::Key_Return);

        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pView));
    }

    void aMenuGivesTheKeyboardBackOnceItIsClosed()
    {
        Fixture f;
        QToolButton* pButton = f.Place(MakeMenuButton());
        f.BeginAction();
        QLineEdit* pEditor = f.OpenEditor();
        const QSignalSpy choices(pButton->menu()->actions().first(), &QAction::triggered);
        bool hadFocus = true;
        connect(pButton->menu(), &QMenu::aboutToShow, this, [pButton, pEditor, &hadFocus] {
            QTimer::singleShot(0, pButton->menu(), [pButton, pEditor, &hadFocus] {
                QCoreApplication::processEvents();
                hadFocus = pEditor->hasFocus();
                QTest::keyClick(pButton->menu(), Qt::Key_Down);
                QTest::keyClick(pButton->menu(), Qt::Key_Return);
            });
        });

        QTest::mouseClick(pButton, Qt::LeftButton);

        QTRY_VERIFY(pEditor->hasFocus());
        QVERIFY(!hadFocus);
        QCOMPARE(choices.count(), 1);
    }

    void theMenuOfAFieldLeavesItTheKeyboard_data()
    {
        QTest::addColumn<bool>("isChosen");
        QTest::newRow("closed") << false;
        QTest::newRow("an entry clicked") << true;
    }

    void theMenuOfAFieldLeavesItTheKeyboard()
    {
        QFETCH(bool, isChosen);
        Fixture f;
        auto* pField = f.Place(new QLineEdit("Text"));
        f.BeginAction();
        QTest::mouseClick(pField, Qt::LeftButton);
        std::unique_ptr<QMenu> pMenu(pField->createStandardContextMenu());
        QAction* pSelectAll = pMenu->actions().last();

        pMenu->popup(f.host.window.mapToGlobal(QPoint()));
        QTRY_VERIFY(pMenu->isVisible());
        if (isChosen)
            QTest::mouseClick(pMenu.get(), Qt::LeftButton, {},
                              pMenu->actionGeometry(pSelectAll).center());
        else
            pMenu->close();
        QCoreApplication::processEvents();

        QCOMPARE(f.host.window.focusWidget(), static_cast<QWidget*>(pField));
        QCOMPARE(pField->selectedText(), isChosen ? QString("Text") : QString());
    }

    void aFieldThatIsClickedAfterAListKeepsTheKeyboard()
    {
        Fixture f;
        QComboBox* pBox = f.Place(MakeBox());
        auto* pField = f.Place(new QLineEdit);
        f.BeginAction();
        QTest::mouseClick(pBox, Qt::LeftButton);
        QTRY_VERIFY(pBox->view()->isVisible());

        pBox->hidePopup();
        f.host.window.activateWindow();
        QTest::mouseClick(pField, Qt::LeftButton);

        QVERIFY(QTest::qWaitForWindowActive(&f.host.window, vesk::test::PatienceMs));
        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pField));
    }

    void aDialogThatTheClickOpensKeepsTheKeyboard()
    {
        Fixture f;
        auto* pButton = f.Place(new QToolButton);
        f.BeginAction();
        QDialog dialog(&f.host.window);
        auto* pField = new QLineEdit(&dialog);
        connect(pButton, &QToolButton::clicked, &dialog, &QDialog::open);

        QTest::mouseClick(pButton, Qt::LeftButton);

        QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pField));
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pField));
    }

    void aClickThatEndsTheActionTakesNothing()
    {
        Fixture f;
        auto* pButton = f.Place(new QToolButton);
        auto* pField = f.Place(new QLineEdit);
        f.BeginAction();
        connect(pButton, &QToolButton::clicked, pField, [pField] {
            ActionManager::Reset();
            pField->setFocus();
        });

        QTest::mouseClick(pButton, Qt::LeftButton);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(pField));
    }

    void aControlMayGoInItsOwnClick()
    {
        Fixture f;
        auto* pButton = f.Place(new QToolButton);
        f.BeginAction();
        connect(pButton, &QToolButton::clicked, pButton, &QObject::deleteLater);

        QTest::mouseClick(pButton, Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(f.pView));
    }
};

VESK_TESTS(RibbonFocusTest);
#include "RibbonFocusTest.moc"
