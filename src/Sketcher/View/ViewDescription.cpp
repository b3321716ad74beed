#include "View/ViewDescription.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "View/EntityText.h"
#include "View/SketchView.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/NumberText.h"
#include "HostUi/QtText.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>

using vesk::LengthUnit;

ViewDescription::ViewDescription(Workspace& workspace, SketchView& view)
    : QObject(&view), m_workspace(workspace), m_view(view)
{
    m_update.setSingleShot(true);
    m_update.setInterval(0);
    const auto update = qOverload<>(&QTimer::start);
    connect(&m_update, &QTimer::timeout, this, &ViewDescription::Update);
    connect(&view, &SketchView::viewTextChanged, &m_update, update);
    connect(&view, &SketchView::pointedChanged, &m_update, update);
    connect(&workspace.selection, &Selection::changed, &m_update, update);
    connect(&workspace.sketch, &Sketch::changed, this, &ViewDescription::OnSketchChanged);
    Update();
}

void ViewDescription::Update()
{
    const auto count = [](std::size_t number) { return static_cast<int>(number); };
    const Sketch& sketch = m_workspace.sketch;
    QStringList parts{m_view.GetViewText()};
    if (const Entity* pDrawn = sketch.Find(m_drawn))
        parts << DescribeEntity(*pDrawn);
    if (m_view.IsWalking())
        parts << DescribeCursor();
    if (!m_workspace.selection.IsEmpty())
        parts << Tr("已选 %n 个图元"_source, count(m_workspace.selection.GetIds().size()));
    parts << "图元：%1"_tr.arg(sketch.GetEntities().size());
    parts.removeAll(QString());
    const QString description = parts.join("；"_tr);
    // Setting it again would be told again.
    if (m_view.accessibleName() != "图纸"_tr)
        m_view.setAccessibleName("图纸"_tr);
    if (m_view.accessibleDescription() != description)
        m_view.setAccessibleDescription(description);
}

void ViewDescription::OnSketchChanged()
{
    const auto& entities = m_workspace.sketch.GetEntities();
    const int newest = entities.empty() ? 0 : entities.back().id;
    m_drawn = newest > m_newest ? newest : 0;
    m_newest = std::max(m_newest, newest);
    m_update.start();
}

/// In the display unit, "X 10.000，Y 20.000 mm", and the entity there.
QString ViewDescription::DescribeCursor() const
{
    const LengthUnit& unit = LengthUnit::GetCurrent();
    const vesk::Vector3d cursor = m_view.GetWalked();
    const QString text = "X %1，Y %2 %3"_tr.arg(vesk::ToLocalText(unit.ToShown(cursor.x()), 3),
                                                vesk::ToLocalText(unit.ToShown(cursor.y()), 3),
                                                vesk::ToQString(unit.GetSymbol()));
    const Entity* pPointed = m_workspace.sketch.Find(m_view.GetPointed());
    return pPointed != nullptr ? text + "，"_tr + DescribeEntity(*pPointed) : text;
}
