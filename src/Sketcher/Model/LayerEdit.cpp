#include "Model/LayerEdit.h"

#include "Model/ParameterValue.h"
#include "Model/Sketch.h"

using namespace vesk;

namespace
{

constexpr wchar_t LayerParameter[] = L"layer";
constexpr wchar_t LayerNameParameter[] = L"name";
constexpr wchar_t LayerPropertyParameter[] = L"property";
constexpr wchar_t LayerValueParameter[] = L"value";

bool SetName(Layer& layer, const std::wstring& name)
{
    layer.name = name;
    return true;
}

/// False if there is no colour of that name.
bool SetColour(Layer& layer, const std::wstring& name)
{
    const std::optional<int> colour = ColourPart().Find(name);
    layer.colour = colour.value_or(layer.colour);
    return colour.has_value();
}

struct TextProperty
{
    const wchar_t* name;
    bool (*set)(Layer& layer, const std::wstring& value);
};

struct TruthProperty
{
    const wchar_t* name;
    bool Layer::*member;
};

constexpr TextProperty TextProperties[] = {{L"name", &SetName}, {L"colour", &SetColour}};
constexpr TruthProperty TruthProperties[] = {{L"visible", &Layer::isVisible},
                                             {L"locked", &Layer::isLocked}};

/// These return false and leave the layer as it is if it has no such property or value.
bool Set(Layer& layer, const std::wstring& property, const std::wstring& value)
{
    for (const TextProperty& known : TextProperties)
    {
        if (property == known.name)
            return known.set(layer, value);
    }
    return false;
}

bool Set(Layer& layer, const std::wstring& property, bool value)
{
    for (const TruthProperty& known : TruthProperties)
    {
        if (property != known.name)
            continue;
        layer.*known.member = value;
        return true;
    }
    return false;
}

}

CommandParameters LayerAddition::ToParameters() const
{
    CommandParameters parameters;
    parameters.Add(LayerNameParameter, CommandParameterValue(name));
    return parameters;
}

std::optional<LayerAddition> LayerAddition::From(const CommandParameters& parameters)
{
    const auto* pName = FindParameter<std::wstring>(parameters, LayerNameParameter);
    return pName != nullptr ? std::make_optional(LayerAddition{*pName}) : std::nullopt;
}

bool LayerAddition::IsPossible(const Sketch& sketch) const
{
    return sketch.CanAddLayer(name);
}

bool LayerAddition::Apply(Sketch& sketch) const
{
    return sketch.AddLayer(name) != 0;
}

CommandParameters LayerRemoval::ToParameters() const
{
    CommandParameters parameters;
    parameters.Add(LayerParameter, CommandParameterValue(layer));
    return parameters;
}

std::optional<LayerRemoval> LayerRemoval::From(const CommandParameters& parameters)
{
    const auto* pLayer = FindParameter<int>(parameters, LayerParameter);
    return pLayer != nullptr ? std::make_optional(LayerRemoval{*pLayer}) : std::nullopt;
}

bool LayerRemoval::IsPossible(const Sketch& sketch) const
{
    return sketch.CanRemoveLayer(layer);
}

bool LayerRemoval::Apply(Sketch& sketch) const
{
    return sketch.RemoveLayer(layer);
}

CommandParameters LayerEdit::ToParameters() const
{
    CommandParameters parameters;
    parameters.Add(LayerParameter, CommandParameterValue(layer));
    parameters.Add(LayerPropertyParameter, CommandParameterValue(property));
    std::visit(
        [&parameters](const auto& known) {
            parameters.Add(LayerValueParameter, CommandParameterValue(known));
        },
        value);
    return parameters;
}

std::optional<LayerEdit> LayerEdit::From(const CommandParameters& parameters)
{
    const auto* pLayer = FindParameter<int>(parameters, LayerParameter);
    const auto* pProperty = FindParameter<std::wstring>(parameters, LayerPropertyParameter);
    if (pLayer == nullptr || pProperty == nullptr)
        return std::nullopt;
    if (const auto* pText = FindParameter<std::wstring>(parameters, LayerValueParameter))
        return LayerEdit{*pLayer, *pProperty, *pText};
    if (const auto* pTruth = FindParameter<bool>(parameters, LayerValueParameter))
        return LayerEdit{*pLayer, *pProperty, *pTruth};
    return std::nullopt;
}

bool LayerEdit::IsPossible(const Sketch& sketch) const
{
    const std::optional<Layer> changed = Changed(sketch);
    return changed.has_value() && sketch.CanSetLayer(*changed);
}

bool LayerEdit::Apply(Sketch& sketch) const
{
    const std::optional<Layer> changed = Changed(sketch);
    return changed.has_value() && sketch.SetLayer(*changed);
}

/// The layer with the value; nothing if there is no such layer, property or value.
std::optional<Layer> LayerEdit::Changed(const Sketch& sketch) const
{
    const Layer* pLayer = sketch.FindLayer(layer);
    if (pLayer == nullptr)
        return std::nullopt;
    Layer changed = *pLayer;
    const bool isSet =
        std::visit([&](const auto& known) { return Set(changed, property, known); }, value);
    return isSet ? std::make_optional(changed) : std::nullopt;
}
