#include "Model/EntityEdit.h"

#include "Model/ParameterValue.h"
#include "Model/ShapeProperty.h"
#include "Model/Sketch.h"

#include <algorithm>
#include <sstream>
#include <utility>

using namespace vesk;

namespace
{

constexpr wchar_t EntitiesParameter[] = L"entities";
constexpr wchar_t PropertyParameter[] = L"property";
constexpr wchar_t ValueParameter[] = L"value";

/// The ids, separated by blanks.
std::wstring ToText(const std::vector<int>& ids)
{
    std::wstring text;
    for (const int id : ids)
        text += (text.empty() ? L"" : L" ") + std::to_wstring(id);
    return text;
}

/// Nothing if the text contains anything but ids.
std::optional<std::vector<int>> FromText(const std::wstring& text)
{
    std::wistringstream stream(text);
    std::vector<int> ids;
    while (stream >> std::ws && !stream.eof())
    {
        int id = 0;
        if (!(stream >> id))
            return std::nullopt;
        ids.push_back(id);
    }
    return ids;
}

using Shapes = std::vector<std::pair<int, Shape>>;

/// The shape with the value; bit for bit the same if it already has that value.
Shape ChangedShape(const Shape& shape, const ShapeProperty& property, double value)
{
    return property.get(shape) == value ? shape : property.set(shape, value);
}

/// The resulting shapes; empty if an entity is missing or has no such property. The sketch refuses
/// shapes that cannot be drawn.
Shapes ChangedShapes(const EntityEdit& edit, const Sketch& sketch)
{
    Shapes shapes;
    for (const int id : edit.entities)
    {
        const Entity* pEntity = sketch.Find(id);
        const ShapeProperty* pProperty =
            pEntity != nullptr ? FindProperty(pEntity->shape, edit.property) : nullptr;
        if (pProperty == nullptr)
            return {};
        shapes.emplace_back(id, ChangedShape(pEntity->shape, *pProperty, edit.value));
    }
    return shapes;
}

}

CommandParameters EntityEdit::ToParameters() const
{
    CommandParameters parameters;
    parameters.Add(EntitiesParameter, CommandParameterValue(ToText(entities)));
    parameters.Add(PropertyParameter, CommandParameterValue(property));
    parameters.Add(ValueParameter, CommandParameterValue(value));
    return parameters;
}

std::optional<EntityEdit> EntityEdit::From(const CommandParameters& parameters)
{
    const auto* pEntities = FindParameter<std::wstring>(parameters, EntitiesParameter);
    const auto* pProperty = FindParameter<std::wstring>(parameters, PropertyParameter);
    const auto* pValue = FindParameter<double>(parameters, ValueParameter);
    if (pEntities == nullptr || pProperty == nullptr || pValue == nullptr)
        return std::nullopt;
    std::optional<std::vector<int>> ids = FromText(*pEntities);
    if (!ids.has_value())
        return std::nullopt;
    return EntityEdit{std::move(*ids), *pProperty, *pValue};
}

bool EntityEdit::IsPossible(const Sketch& sketch) const
{
    const Shapes shapes = ChangedShapes(*this, sketch);
    return !shapes.empty() && std::all_of(shapes.begin(), shapes.end(), [](const auto& changed) {
        return IsDrawable(changed.second);
    });
}

bool EntityEdit::Apply(Sketch& sketch) const
{
    return sketch.Replace(ChangedShapes(*this, sketch));
}
