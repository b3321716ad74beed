#include "DrawingPanel.h"

#include "Sketch.h"

#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "HostUi/ControlHost.h"
#include "Journal/JournalManager.h"
#include "Qtitan/RibbonGroup.h"
#include "Validation/ValidatorBase.h"

#include <QWidget>

#include <utility>

using namespace vesk;

namespace
{

/// Hands a definition over invisible, places its widget and makes it visible.
template <class Definition>
Definition* Place(OwnerPtr<Definition> opDefinition, const QString& label,
                  Qtitan::RibbonGroup& group, ControlHost& controls)
{
    Definition* pDefinition = opDefinition.Get();
    pDefinition->SetVisible(false);
    QWidget* pWidget = controls.Create(std::move(opDefinition));
    if (pWidget == nullptr)
        return nullptr;
    group.addWidget(label, pWidget);
    pDefinition->SetVisible(true);
    return pDefinition;
}

}

DrawingPanel::DrawingPanel(Sketch& sketch, Qtitan::RibbonGroup& group, ControlHost& controls)
    : m_sketch(sketch), m_shownName(sketch.GetName())
{
    auto opName = MakeOwner<LineEditDefinition>(L"Sketcher.DrawingName");
    opName->SetText(m_shownName);
    m_pName = Place(std::move(opName), QStringLiteral("图名"), group, controls);
    m_pCount =
        Place(MakeOwner<LabelDefinition>(L"Sketcher.EntityCount"), QString(), group, controls);
    if (m_pName != nullptr)
        m_pName->GetLineEditEvent()->Add(this);
    connect(&sketch, &Sketch::changed, this, &DrawingPanel::OnSketchChanged);
    OnSketchChanged();
}

DrawingPanel::~DrawingPanel()
{
    if (m_pName != nullptr)
        m_pName->GetLineEditEvent()->Delete(this);
}

void DrawingPanel::On(LineEditEventArgs* pArgs)
{
    if (pArgs->GetText() == m_sketch.GetName())
        return;
    JournalManager::GetInstance().Add(PropertyRecord{L"drawing", L"name", pArgs->GetText()});
    m_sketch.SetName(pArgs->GetText());
}

void DrawingPanel::OnSketchChanged()
{
    // Only another name may replace what is being typed.
    if (m_pName != nullptr && m_sketch.GetName() != m_shownName)
    {
        m_shownName = m_sketch.GetName();
        m_pName->SetText(m_shownName);
    }
    if (m_pCount != nullptr)
        m_pCount->SetCaption(L"图元：" + std::to_wstring(m_sketch.GetEntities().size()));
}
