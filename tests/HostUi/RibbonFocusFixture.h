#pragma once

#include "HostUi/RibbonFocus.h"

#include "HostUi/DrawingView.h"
#include "HostUi/InputFixture.h"
#include "Support/TestValues.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include <vector>

namespace vesk::test
{

/// An empty view.
class PlainView final : public DrawingView
{
public:
    using DrawingView::DrawingView;

protected:
    std::size_t PaintModel(QPainter&, const QRectF&, std::size_t begin) override { return begin; }
};

/// An action that takes points.
class PointTakingAction final : public IdleAction
{
public:
    bool TakesPoint() const override { return true; }
};

/// A window with a ribbon, a view and a check box.
struct RibbonFocusFixture
{
    RibbonFocusFixture()
    {
        host.view.hide();
        pRibbon->setLayout(new QVBoxLayout);
        auto* pLayout = new QVBoxLayout(&host.window);
        pLayout->addWidget(pRibbon);
        pLayout->addWidget(pView);
        pLayout->addWidget(pElsewhere);
        host.core.GetViewManager().AddView(pView);
        host.core.GetViewManager().SetCurrentView(pView);
        host.window.show();
        host.window.activateWindow();
        if (!QTest::qWaitForWindowActive(&host.window, vesk::test::PatienceMs))
            qFatal("the window does not become active");
        pView->setFocus();
    }

    ~RibbonFocusFixture()
    {
        ActionManager::Reset();
        host.core.GetViewManager().RemoveView(pView);
    }

    template <class Control>
    Control* Place(Control* pControl)
    {
        pRibbon->layout()->addWidget(pControl);
        // A check box ignores clicks beside its text.
        pControl->setFixedSize(pControl->sizeHint());
        if (!QTest::qWaitFor([pControl] { return pControl->isVisible(); }, vesk::test::PatienceMs))
            qFatal("the control does not show");
        return pControl;
    }

    void BeginAction()
    {
        auto opCommand = MakeOwner<Command>(
            L"Test", Command::Kind::Interactive, [this](IUiView*, const CommandParameters&) {
                return OwnerPtr<IAction>(new DimensionAction(&MakeLinear, nullptr, freed));
            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(pView, pCommand, {}, nullptr);
    }

    /// Begins an action that takes points, and types the beginning of one. Returns its field.
    QLineEdit* TypePoint()
    {
        auto opCommand = MakeOwner<Command>(L"Point", Command::Kind::Interactive,
                                            [](IUiView*, const CommandParameters&) {
                                                return OwnerPtr<IAction>(new PointTakingAction);
                                            });
        Command* pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
        ActionManager::ProcessCommand(pView, pCommand, {}, nullptr);
        QTest::keyClick(pView, '5');
        return input.GetOpenField();
    }

    QLineEdit* OpenEditor()
    {
        QTest::keyClick(pView, '5');
        auto* pEditor = pView->findChild<QLineEdit*>("Editor");
        pEditor->activateWindow();
        if (!QTest::qWaitForWindowActive(pEditor, vesk::test::PatienceMs))
            qFatal("the editor does not become active");
        return pEditor;
    }

    /// The fields whose locked values the action was told to free.
    std::vector<InputState> freed;

    HostFixture host;
    TypingScript script = Linear();
    DimensionInputController input;
    PlainView* pView = new PlainView(2, input, &host.window);
    QWidget* pRibbon = new QWidget(&host.window);
    QCheckBox* pElsewhere = new QCheckBox(&host.window);
    TypingHandlerFactory factory{*pView, script};
    RibbonFocus focus{*pRibbon, *pView, input};
};

}
