#include "HostUi/ControlHost.h"

#include "Control/LabelDefinition.h"
#include "HostUi/Controls/EmptyControlFactory.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

#include <memory>

using namespace vesk;

namespace
{

/// A control that is a combo box.
class BoxControl final : public QComboBox, public IControl
{
public:
    explicit BoxControl(OwnerPtr<ILabelDefinition> opDefinition)
        : m_opDefinition(std::move(opDefinition))
    {
        addItems({"0.25", "0.5", "1", "2", "4"});
        setCurrentIndex(2);
    }

    IControlDefinition* GetControlDefinition() const override { return m_opDefinition.Get(); }
    void UpdateStatus() override {}

private:
    OwnerPtr<ILabelDefinition> m_opDefinition;
};

/// A control library that creates combo boxes for labels, and nothing else.
class BoxFactory final : public test::EmptyControlFactory
{
public:
    OwnerPtr<IControl> CreateQtLabel(OwnerPtr<ILabelDefinition> opDefinition) override
    {
        return MakeOwner<BoxControl>(std::move(opDefinition));
    }
};

/// A combo box of the host in a panel that is higher than its scroll area; the view has the focus.
struct PanelFixture
{
    PanelFixture()
    {
        window.setLayout(new QVBoxLayout);
        window.layout()->addWidget(pView);
        window.layout()->addWidget(pArea);
        auto* pPanel = new QWidget;
        pPanel->setFixedHeight(2000);
        auto* pLayout = new QVBoxLayout(pPanel);
        pBox = qobject_cast<QComboBox*>(controls.Create(MakeOwner<LabelDefinition>(L"Width")));
        pLayout->addWidget(pBox);
        pLayout->addStretch();
        pArea->setWidget(pPanel);
    }

    void Show()
    {
        window.resize(400, 300);
        window.show();
        pView->setFocus();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window, vesk::test::PatienceMs));
        QCOMPARE(QApplication::focusWidget(), pView);
    }

    /// One notch towards the user, as the window system delivers it.
    void TurnWheelOverTheBox()
    {
        const QPoint place = pBox->mapTo(&window, pBox->rect().center());
        QWheelEvent event(place, window.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window.windowHandle(), &event);
    }

    int GetOffset() const { return pArea->verticalScrollBar()->value(); }

    BoxFactory factory;
    QWidget window;
    QLineEdit* pView = new QLineEdit;
    QScrollArea* pArea = new QScrollArea;
    QComboBox* pBox = nullptr;
    ControlHost controls;
};

}

/// The wheel over a combo box that the host has adopted.
class WheelGuardTest final : public QObject
{
    Q_OBJECT

private slots:
    void wheelOverABoxWithoutFocusScrollsThePanelAndChangesNoValue_data()
    {
        QTest::addColumn<bool>("isEditable");
        QTest::newRow("list only") << false;
        QTest::newRow("editable") << true;
    }

    void wheelOverABoxWithoutFocusScrollsThePanelAndChangesNoValue()
    {
        QFETCH(bool, isEditable);
        PanelFixture f;
        f.pBox->setEditable(isEditable);
        f.Show();

        f.TurnWheelOverTheBox();

        QCOMPARE(f.pBox->currentIndex(), 2);
        QVERIFY(f.GetOffset() > 0);
    }

    void wheelDoesNotGiveTheBoxTheFocus_data()
    {
        wheelOverABoxWithoutFocusScrollsThePanelAndChangesNoValue_data();
    }

    void wheelDoesNotGiveTheBoxTheFocus()
    {
        QFETCH(bool, isEditable);
        PanelFixture f;
        f.pBox->setEditable(isEditable);
        f.Show();

        f.TurnWheelOverTheBox();

        QCOMPARE(QApplication::focusWidget(), f.pView);
    }

    void wheelOverTheBoxWithTheFocusChoosesTheNextItem()
    {
        PanelFixture f;
        f.Show();
        f.pBox->setFocus();

        f.TurnWheelOverTheBox();

        QCOMPARE(f.pBox->currentIndex(), 3);
        QCOMPARE(f.GetOffset(), 0);
    }

    void tabAndClickStillReachTheBox()
    {
        PanelFixture f;
        f.Show();

        QCOMPARE((f.pBox->focusPolicy() & Qt::StrongFocus), Qt::StrongFocus);
        QTest::keyClick(f.window.windowHandle(), Qt::Key_Tab);
        QTest::keyClick(f.window.windowHandle(), Qt::Key_Tab);

        QCOMPARE(QApplication::focusWidget(), f.pBox);
    }
};

VESK_TESTS(WheelGuardTest);
#include "WheelGuardTest.moc"
