#include "HostUi/Inspector.h"

#include "Command/ActionManager.h"
#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/ControlDefinitionChangeEvent.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/InputFixture.h"
#include "HostUi/Inspection/InspectorFixture.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QDateTime>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <memory>

using namespace vesk;

namespace
{

constexpr int MostEvents = 1000;

using Fixture = test::InspectorFixture;

}

/// Definitions, their events and the running action as the inspector shows them.
class InspectorTest final : public QObject
{
    Q_OBJECT

private slots:
    void definitionsAreListedInTheirOrder()
    {
        Fixture f;
        f.pEdit->SetText(L"abc");
        f.Add<ILabelDefinition>(MakeOwner<LabelDefinition>(L"Label"))->SetEnabled(false);

        f.pInspector->UpdateStatus();

        QCOMPARE(f.Rows(), QStringList({"Edit|输入框|abc|是|是", "Label|标签||是|否"}));
    }

    void theListsFillTheWindow()
    {
        Fixture f;

        f.pInspector->resize(600, 600);

        QVERIFY(f.pInspector->findChild<QSplitter*>()->height() > 450);
    }

    void eventsTellWhoMadeThem()
    {
        Fixture f;

        f.pEdit->SetText(L"a");
        {
            const ControlDefinitionChangeByUser byUser(L"Edit");
            f.pEdit->SetText(L"ab");
        }
        {
            const ControlDefinitionChangeByUser byUser(L"Other");
            f.pEdit->SetText(L"abc");
        }

        QCOMPARE(f.Events(),
                 QStringList({"Edit  属性  程序", "Edit  属性  用户", "Edit  属性  程序"}));
    }

    void whatTheUserTypesIsTheUsers()
    {
        Fixture f;

        QTest::keyClicks(f.panel.findChild<QLineEdit*>(), "a");

        QVERIFY(!f.Events().isEmpty());
        QCOMPARE(f.Events().front(), QStringLiteral("Edit  属性  用户"));
    }

    void eachTypeOfEventIsNamedWithItsIndex()
    {
        Fixture f;
        auto* pBox = f.Add<IComboBoxDefinition>(MakeOwner<ComboBoxDefinition>(L"Box"));
        f.pInspector->UpdateStatus();

        pBox->AddItem(L"a");
        pBox->InsertItem(0, L"b");
        pBox->DeleteItem(1);
        pBox->ClearItems();

        QStringList named;
        for (const QString& event : f.Events())
            named << event.section("  ", 1, 1);
        named.removeAll(QStringLiteral("属性"));
        QCOMPARE(named, QStringList({"添加 [0]", "插入 [0]", "删除 [1]", "清空"}));
    }

    void eventsHaveTheTime()
    {
        Fixture f;

        f.pEdit->SetText(L"a");

        const QRegularExpression time("^\\d\\d:\\d\\d:\\d\\d\\.\\d{3}  Edit  ");
        QVERIFY(time.match(f.EventList()->item(0)->text()).hasMatch());
    }

    void theTimeIsWhenAnEventCame()
    {
        Fixture f;
        const qint64 begin = QDateTime::currentMSecsSinceEpoch();
        f.pEdit->SetText(L"a");
        const qint64 end = QDateTime::currentMSecsSinceEpoch();
        QTRY_VERIFY(QDateTime::currentMSecsSinceEpoch() > end);

        const QString shown = f.EventList()->item(0)->text().section("  ", 0, 0);

        QStringList possible;
        for (qint64 time = begin; time <= end; ++time)
            possible << QDateTime::fromMSecsSinceEpoch(time).toString("HH:mm:ss.zzz");
        QVERIFY(possible.contains(shown));
    }

    void eventsAreHeardWhileTheInspectorIsHidden()
    {
        Fixture f;
        f.pInspector->hide();

        f.pEdit->SetText(L"a");

        QCOMPARE(f.Events().size(), 1);
    }

    void aNewDefinitionIsHeardOf()
    {
        Fixture f;
        auto* pLabel = f.Add<ILabelDefinition>(MakeOwner<LabelDefinition>(L"Label"));
        f.pInspector->UpdateStatus();

        pLabel->SetCaption(L"a");

        QCOMPARE(f.Events(), QStringList("Label  属性  程序"));
    }

    void aDefinitionThatGoesIsForgotten()
    {
        Fixture f;
        auto* pLabel = f.Add<ILabelDefinition>(MakeOwner<LabelDefinition>(L"Label"));
        f.pInspector->UpdateStatus();
        QCOMPARE(f.Rows().size(), 2);

        f.pControls->Remove(L"Label");
        f.pInspector->UpdateStatus();
        pLabel->SetCaption(L"still there");

        QCOMPARE(f.Rows(), QStringList("Edit|输入框||是|是"));
        QCOMPARE(f.Events(), QStringList());
        QTRY_VERIFY(f.panel.findChild<QLabel*>("Label") == nullptr);
        f.pInspector->UpdateStatus();
    }

    /// A definition may get the address of one that was just destroyed.
    void whatComesInTheStepsOfWhatWentIsHeardOf()
    {
        constexpr int Rounds = 30;
        Fixture f;
        for (int round = 0; round < Rounds; ++round)
        {
            auto* pLabel = f.Add<ILabelDefinition>(MakeOwner<LabelDefinition>(L"Label"));
            f.pInspector->UpdateStatus();
            const int before = f.Events().size();

            pLabel->SetCaption(L"a");

            QCOMPARE(f.Events().size(), before + 1);
            f.pControls->Remove(L"Label");
            QTRY_VERIFY(f.panel.findChild<QLabel*>("Label") == nullptr);
        }
    }

    void theNewestThousandEventsAreKept()
    {
        Fixture f;

        {
            const ControlDefinitionChangeByUser byUser(L"Edit");
            f.pEdit->SetText(L"a");
        }
        for (int i = 0; i < MostEvents - 1; ++i)
            f.pEdit->SetEnabled(i % 2 == 1);
        QCOMPARE(f.Events().size(), MostEvents);
        QCOMPARE(f.Events().front(), QStringLiteral("Edit  属性  用户"));

        f.pEdit->SetText(L"ab");

        QCOMPARE(f.Events().size(), MostEvents);
        QVERIFY(!f.Events().contains("Edit  属性  用户"));
    }

    void theListGoesAlongUnlessItsReaderScrolledBack()
    {
        Fixture f;
        for (int i = 0; i < 200; ++i)
            f.pEdit->SetEnabled(i % 2 == 1);
        QScrollBar* pBar = f.EventList()->verticalScrollBar();
        QCOMPARE(pBar->value(), pBar->maximum());
        QVERIFY(pBar->maximum() > 0);

        f.EventList()->scrollToTop();
        f.pEdit->SetText(L"a");
        f.pInspector->UpdateStatus();

        QCOMPARE(pBar->value(), 0);
    }

    void afterStopNothingIsHeard()
    {
        Fixture f;

        f.pInspector->Stop();
        f.pEdit->SetText(L"a");
        f.pInspector->UpdateStatus();
        f.pInspector->hide();
        f.pInspector->show();

        QCOMPARE(f.Events(), QStringList());
        QCOMPARE(f.Rows(), QStringList("Edit|输入框||是|是"));
    }

    void definitionsMayGoAfterStop()
    {
        Fixture f;

        f.pInspector->Stop();
        f.pControls->Remove(L"Edit");
        QTRY_VERIFY(f.panel.findChild<QLineEdit*>("Edit") == nullptr);

        // Reads freed memory if it still listens.
        f.pInspector.reset();
    }

    void definitionsOutliveTheInspector()
    {
        Fixture f;

        f.pInspector.reset();
        f.pEdit->SetText(L"a");
        f.pControls->Remove(L"Edit");

        QTRY_VERIFY(f.panel.findChild<QLineEdit*>("Edit") == nullptr);
    }

    void theRunningActionIsTold()
    {
        Fixture f;
        QCOMPARE(f.State(), QStringLiteral("动作：无\n尺寸输入：无"));

        f.host.BeginAction();
        f.pInspector->UpdateStatus();
        QCOMPARE(f.State(), QStringLiteral("动作：Test.Action（test action）\n尺寸输入：无"));

        ActionManager::Reset();
        f.pInspector->UpdateStatus();
        QCOMPARE(f.State(), QStringLiteral("动作：无\n尺寸输入：无"));
    }

    void theInputOfAValueIsTold()
    {
        Fixture f;
        test::TypingScript script;
        const test::TypingHandlerFactory factory(f.host.view, script);
        TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
        manager.SetContext(test::MakeLinear());
        f.pInspector->UpdateStatus();
        QCOMPARE(f.State(), QStringLiteral("动作：无\n尺寸输入：等待键入"));

        manager.OnKeyDown('7', false, false, false);
        f.pInspector->UpdateStatus();
        QCOMPARE(f.State(), QStringLiteral("动作：无\n尺寸输入：长度 “7”"));

        script.isRawTextInput = true;
        f.pInspector->UpdateStatus();
        QCOMPARE(f.State(), QStringLiteral("动作：无\n尺寸输入：长度 “7”，原文"));

        script.isRawTextInput = false;
        manager.SetLocked(InputState::IS_Angle, true);
        f.pInspector->UpdateStatus();
        QCOMPARE(f.State(), QStringLiteral("动作：无\n尺寸输入：长度 “7”，已锁定 角度"));
        manager.Drop();
    }

    void anEventOfAnotherTypeIsNamedByItsNumber()
    {
        Fixture f;
        auto& event = dynamic_cast<ControlDefinitionChangeEvent&>(
            *f.pEdit->GetControlDefinitionChangeEvent());

        event.RaiseItemsChanged(42, -1, L"caption", nullptr);

        QCOMPARE(f.Events().front(), QStringLiteral("Edit  42  程序"));
    }

    void whatIsTheSameIsNotWrittenAgain()
    {
        Fixture f;
        f.pInspector->UpdateStatus();
        const auto* pTree = f.pInspector->findChild<QTreeWidget*>("InspectorDefinitions");
        const QSignalSpy changes(pTree, &QTreeWidget::itemChanged);

        f.pInspector->UpdateStatus();
        QCOMPARE(changes.count(), 0);
        f.pEdit->SetEnabled(false);
        f.pInspector->UpdateStatus();

        QCOMPARE(changes.count(), 1);
    }

    void ofManyEventsAHiddenInspectorKeepsTheNewest()
    {
        Fixture f;
        f.pInspector->hide();
        f.pInspector->findChild<QListWidget*>("InspectorEvents")->addItem("before");

        f.pEdit->SetText(L"a");
        for (int i = 0; i < MostEvents; ++i)
        {
            const ControlDefinitionChangeByUser byUser(L"Edit");
            f.pEdit->SetEnabled(i % 2 == 1);
        }

        QCOMPARE(f.Events().size(), MostEvents);
        QCOMPARE(f.Events().front(), QStringLiteral("Edit  属性  用户"));
        QCOMPARE(f.Events().back(), QStringLiteral("Edit  属性  用户"));
    }

    void itsPartsAreFoundAndFillIt()
    {
        Fixture f;
        const auto* pTree = f.pInspector->findChild<QTreeWidget*>("InspectorDefinitions");
        const auto* pState = f.pInspector->findChild<QLabel*>();

        QStringList headers;
        for (int column = 0; column < pTree->columnCount(); ++column)
            headers << pTree->headerItem()->text(column);
        QCOMPARE(headers, (QStringList{"定义", "种类", "值", "可见", "可用"}));
        QVERIFY(!pTree->rootIsDecorated());
        // Only one of a thousand rows is measured.
        QVERIFY(pTree->uniformRowHeights());
        QVERIFY(f.EventList()->uniformItemSizes());
        QCOMPARE(pTree->frameShape(), QFrame::NoFrame);
        QCOMPARE(f.EventList()->frameShape(), QFrame::NoFrame);
        QCOMPARE(pState->textInteractionFlags(),
                 Qt::TextInteractionFlags(Qt::TextSelectableByMouse));
        QCOMPARE(pState->pos(), QPoint(0, 0));
        QCOMPARE(pState->margin(), 4);
        const QWidget* pLists = pTree->parentWidget();
        QCOMPARE(pLists->geometry().topLeft(), QPoint(0, pState->height()));
        QCOMPARE(pLists->geometry().bottomRight(), f.pInspector->rect().bottomRight());
        const QPoint corner;
        QVERIFY(pTree->mapToGlobal(corner).x() < f.EventList()->mapToGlobal(corner).x());
    }

    void aGroupShowsTheStatesOfItsBoxes()
    {
        Fixture f;
        auto opGroup = MakeOwner<CheckBoxGroupDefinition>(L"Snap");
        opGroup->AddCheckBox(MakeOwner<CheckBoxDefinition>(L"End", L"端点"));
        f.Add<ICheckBoxGroupDefinition>(std::move(opGroup));

        f.pInspector->UpdateStatus();

        QCOMPARE(f.Rows().back(), QStringLiteral("Snap|复选组|End=0|是|是"));
    }
};

VESK_TESTS(InspectorTest);
#include "InspectorTest.moc"
