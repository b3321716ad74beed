#include "Ribbon/DrawingPanel.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Ribbon/FieldKeys.h"
#include "Ribbon/PlaceControl.h"

#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "HostUi/QtText.h"
#include "Journal/JournalRecord.h"

#include <QLineEdit>

#include <utility>

using namespace vesk;

namespace
{

/// In characters; the field scrolls.
constexpr int NameWidth = 12;

}

DrawingPanel::DrawingPanel(Workspace& workspace, Qtitan::RibbonGroup& group, ControlHost& controls)
    : m_sketch(workspace.sketch), m_properties(workspace.properties),
      m_shownName(workspace.sketch.GetShownName())
{
    auto opName = MakeOwner<LineEditDefinition>(L"Sketcher.DrawingName");
    opName->SetText(m_shownName);
    m_pName = PlaceControl(std::move(opName), "图名"_tr, group, controls);
    m_pCount = PlaceControl(MakeOwner<LabelDefinition>(L"Sketcher.EntityCount"), QString(), group,
                            controls);
    if (m_pName != nullptr)
    {
        m_pName->GetLineEditEvent()->Add(this);
        if (auto* pField = group.findChild<QLineEdit*>(ToQString(m_pName->GetId())))
        {
            // The whole page must fit on a usual screen.
            pField->setMaximumWidth(NameWidth * pField->fontMetrics().averageCharWidth());
            new FieldKeys(*pField, *m_pName, [this] { return m_sketch.GetShownName(); });
        }
    }
    connect(&workspace.sketch, &Sketch::changed, this, &DrawingPanel::OnSketchChanged);
    OnSketchChanged();
}

DrawingPanel::~DrawingPanel()
{
    if (m_pName != nullptr)
        m_pName->GetLineEditEvent()->Delete(this);
}

void DrawingPanel::On(LineEditEventArgs* pArgs)
{
    if (pArgs->GetText() == m_sketch.GetShownName())
        return;
    m_properties.Set(PropertyRecord{L"drawing", L"name", pArgs->GetText()});
}

void DrawingPanel::OnSketchChanged()
{
    // Only a changed name may replace text being typed.
    if (m_pName != nullptr && m_sketch.GetShownName() != m_shownName)
    {
        m_shownName = m_sketch.GetShownName();
        m_pName->SetText(m_shownName);
    }
    if (m_pCount != nullptr)
        m_pCount->SetCaption(ToWide("图元：%1"_tr.arg(m_sketch.GetEntities().size())));
}
