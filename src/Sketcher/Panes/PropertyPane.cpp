#include "Panes/PropertyPane.h"

#include "Model/EntityEdit.h"
#include "Model/ShapeKind.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Panes/RefusalMessage.h"
#include "Ribbon/FieldKeys.h"

#include "Command/ActionManager.h"
#include "Control/LineEditDefinition.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "HostUi/ControlHost.h"
#include "HostUi/QtText.h"
#include "HostUi/TypedText.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>
#include <utility>

using namespace vesk;

PropertyPane::PropertyPane(Workspace& workspace, ControlHost& controls)
    : m_workspace(workspace), m_pTitle(new QLabel),
      m_pMessage(MakeRefusalMessage(QStringLiteral("PropertyMessage")))
{
    m_pTitle->setObjectName(QStringLiteral("PropertyTitle"));
    auto* pForm = new QWidget;
    auto* pColumn = new QVBoxLayout(pForm);
    auto* pRows = new QFormLayout;
    // Hidden rows keep their spacing.
    pRows->setVerticalSpacing(2);
    pRows->addRow(m_pTitle);
    for (const ShapeProperty& property : AllProperties())
        AddRow(property, controls, *pRows);
    pColumn->addLayout(pRows);
    // Not in the form: with a wrapped text in it, Qt 6 writes beyond its data when rows are hidden.
    pColumn->addWidget(m_pMessage);
    pColumn->addStretch();

    auto* pScroll = new QScrollArea;
    pScroll->setWidget(pForm);
    pScroll->setWidgetResizable(true);
    pScroll->setFrameShape(QFrame::NoFrame);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pScroll);
    UpdateStatus();
}

PropertyPane::~PropertyPane() = default;

void PropertyPane::UpdateStatus()
{
    const std::vector<int>& ids = m_workspace.selection.GetIds();
    const bool isOther = ids != m_shownIds;
    m_shownIds = ids;
    FindKinds();
    ShowTitle();
    for (Row& row : m_rows)
        ShowRow(row, isOther);
}

void PropertyPane::On(LineEditEventArgs* pArgs)
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [pArgs](const Row& known) {
        return known.pDefinition->GetId() == pArgs->GetId();
    });
    if (row == m_rows.end())
        return;
    // The rounded text that the field already shows is not meant as a new value.
    if (pArgs->GetText() == row->shown)
        Accept(*row);
    else
        Commit(*row, pArgs->GetText());
}

void PropertyPane::AddRow(const ShapeProperty& property, ControlHost& controls, QFormLayout& layout)
{
    auto opDefinition = MakeOwner<LineEditDefinition>(L"Sketcher.Property." + property.name);
    LineEditDefinition* pDefinition = opDefinition.Get();
    pDefinition->SetVisible(false);
    QWidget* pWidget = controls.Create(OwnerPtr<ILineEditDefinition>(std::move(opDefinition)));
    if (pWidget == nullptr)
        return;
    auto* pCaption = new QLabel(ToQString(Tr(property.caption)));
    pCaption->setBuddy(pWidget);
    layout.addRow(pCaption, pWidget);
    pDefinition->GetLineEditEvent()->Add(this);
    const std::size_t index = m_rows.size();
    m_rows.push_back({property, pCaption, pDefinition, {}});
    if (auto* pField = qobject_cast<QLineEdit*>(pWidget))
    {
        auto* pKeys =
            new FieldKeys(*pField, *pDefinition, [this, index] { return m_rows[index].shown; });
        connect(pKeys, &FieldKeys::restored, this, [this, index] { Accept(m_rows[index]); });
    }
}

void PropertyPane::FindKinds()
{
    m_kinds.clear();
    for (const int id : m_shownIds)
    {
        const Shape& shape = m_workspace.sketch.Find(id)->shape;
        const bool isKnown =
            std::any_of(m_kinds.begin(), m_kinds.end(),
                        [&shape](const Shape& known) { return known.index() == shape.index(); });
        if (!isKnown)
            m_kinds.push_back(shape);
    }
}

void PropertyPane::ShowTitle()
{
    if (m_shownIds.empty())
        m_pTitle->setText("未选图元"_tr);
    else if (m_shownIds.size() > 1)
        m_pTitle->setText(Tr("已选 %n 个图元"_source, static_cast<int>(m_shownIds.size())));
    else
        m_pTitle->setText(
            QStringLiteral("%1 #%2")
                .arg(ToQString(
                    Tr(KindOf(m_workspace.sketch.Find(m_shownIds.front())->shape).caption)))
                .arg(m_shownIds.front()));
}

/// Shows a value. Text being typed is replaced only if the value or the selection has changed.
void PropertyPane::ShowRow(Row& row, bool isAnew)
{
    const bool isCommon = IsCommon(row.property);
    row.pCaption->setVisible(isCommon);
    row.pDefinition->SetVisible(isCommon);
    const std::wstring text = isCommon ? GetText(row.property) : std::wstring();
    if (isAnew || text != row.shown)
    {
        row.pDefinition->SetText(text);
        Accept(row);
    }
    row.shown = text;
}

bool PropertyPane::IsCommon(const ShapeProperty& property) const
{
    return !m_kinds.empty() &&
           std::all_of(m_kinds.begin(), m_kinds.end(), [&property](const Shape& shape) {
               return FindProperty(shape, property.name) != nullptr;
           });
}

/// The value that all entities share; nothing if they differ.
std::optional<double> PropertyPane::GetValue(const ShapeProperty& property) const
{
    const auto valueOf = [&](int id) {
        const Shape& shape = m_workspace.sketch.Find(id)->shape;
        return FindProperty(shape, property.name)->get(shape);
    };
    const double value = valueOf(m_shownIds.front());
    const bool isCommon = std::all_of(m_shownIds.begin(), m_shownIds.end(),
                                      [&](int id) { return valueOf(id) == value; });
    return isCommon ? std::make_optional(value) : std::nullopt;
}

/// In the display unit; empty if the entities differ.
std::wstring PropertyPane::GetText(const ShapeProperty& property) const
{
    const std::optional<double> value = GetValue(property);
    if (!value.has_value())
        return {};
    const TemporaryDimensionStyle style;
    return property.isAngle ? style.FormatAngle(*value) : style.FormatLength(style.ToShown(*value));
}

void PropertyPane::Commit(Row& row, const std::wstring& text)
{
    const bool isAngle = row.property.isAngle;
    const TypedReading typed = ReadTypedText(
        ToQString(text), isAngle ? Quantity::Angle : Quantity::Length, LengthUnit::GetCurrent());
    if (typed.fault != TypedTextFault::None)
    {
        Refuse(row, DescribeFault(typed.fault));
        return;
    }
    const double value = typed.modelValue;
    const EntityEdit edit{m_shownIds, row.property.name, value};
    if (!edit.IsPossible(m_workspace.sketch))
    {
        Refuse(row, "以此值无法绘制图元"_tr);
        return;
    }
    Accept(row);
    if (GetValue(row.property) == value)
    {
        row.pDefinition->SetText(row.shown);
        return;
    }
    // The field may lose the focus before the new value is shown; that must not be a second edit.
    row.shown = text;
    ActionManager::RunCommand(EntityEdit::CommandId, edit.ToParameters());
}

/// Shows why the text of a field is rejected.
void PropertyPane::Refuse(const Row& row, const QString& reason)
{
    m_refusedId = row.pDefinition->GetId();
    m_pMessage->setText("%1：%2"_tr.arg(ToQString(Tr(row.property.caption)), reason));
    m_pMessage->show();
}

/// Hides the message if it is about this field.
void PropertyPane::Accept(const Row& row)
{
    if (m_refusedId != row.pDefinition->GetId())
        return;
    m_refusedId.clear();
    m_pMessage->hide();
}
