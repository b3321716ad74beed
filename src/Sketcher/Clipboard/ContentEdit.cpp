#include "Clipboard/ContentEdit.h"

#include "Clipboard/ClipboardContent.h"
#include "Model/DocumentFile.h"
#include "Model/KeptContent.h"
#include "Model/ParameterValue.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"

#include "HostUi/QtText.h"

#include <algorithm>
#include <vector>

using namespace vesk;

namespace
{

constexpr wchar_t DigestParameter[] = L"digest";
constexpr wchar_t XParameter[] = L"x";
constexpr wchar_t YParameter[] = L"y";

void AddWay(const Vector3d& way, CommandParameters& parameters)
{
    parameters.Add(XParameter, CommandParameterValue(way.x()));
    parameters.Add(YParameter, CommandParameterValue(way.y()));
}

std::optional<Vector3d> WayFrom(const CommandParameters& parameters)
{
    const auto* pX = FindParameter<double>(parameters, XParameter);
    const auto* pY = FindParameter<double>(parameters, YParameter);
    if (pX == nullptr || pY == nullptr)
        return std::nullopt;
    return Vector3d(*pX, *pY, 0.0);
}

/// Draws content and selects as much of it as can be picked.
bool Insert(Workspace& workspace, const SketchContent& content, const std::wstring& stepName)
{
    std::vector<int> ids = workspace.sketch.Insert(content, stepName);
    if (ids.empty())
        return false;
    ids.erase(std::remove_if(ids.begin(), ids.end(),
                             [&workspace](int id) { return !workspace.sketch.CanPick(id); }),
              ids.end());
    workspace.selection.Select(ids);
    return true;
}

SketchContent CopiesOf(const Workspace& workspace, const Vector3d& way)
{
    return Translated(ContentOf(workspace.sketch, workspace.selection.GetIds()), way);
}

bool IsDrawableContent(const SketchContent& content)
{
    return !content.entities.empty() && IsValid(content);
}

}

CommandParameters ContentPasting::ToParameters() const
{
    CommandParameters parameters;
    parameters.Add(DigestParameter, CommandParameterValue(digest));
    AddWay(way, parameters);
    return parameters;
}

std::optional<ContentPasting> ContentPasting::From(const CommandParameters& parameters)
{
    const auto* pDigest = FindParameter<std::wstring>(parameters, DigestParameter);
    const std::optional<Vector3d> way = WayFrom(parameters);
    if (pDigest == nullptr || !way.has_value())
        return std::nullopt;
    return ContentPasting{*pDigest, *way};
}

bool ContentPasting::IsPossible() const
{
    return IsDrawableContent(Read());
}

bool ContentPasting::Apply(Workspace& workspace) const
{
    return Insert(workspace, Read(), L"粘贴"_source);
}

/// Without entities if it cannot be read.
SketchContent ContentPasting::Read() const
{
    const std::optional<QByteArray> bytes = KeptContent::Get().Find(ToQString(digest));
    if (!bytes.has_value())
        return {};
    const DocumentReading reading =
        DocumentFile::FromText({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    return reading.outcome == DocumentReading::Outcome::Whole ? Translated(reading.content, way)
                                                              : SketchContent();
}

CommandParameters SelectionDuplication::ToParameters() const
{
    CommandParameters parameters;
    AddWay(way, parameters);
    return parameters;
}

std::optional<SelectionDuplication> SelectionDuplication::From(const CommandParameters& parameters)
{
    const std::optional<Vector3d> way = WayFrom(parameters);
    return way.has_value() ? std::make_optional(SelectionDuplication{*way}) : std::nullopt;
}

bool SelectionDuplication::IsPossible(const Workspace& workspace) const
{
    return IsDrawableContent(CopiesOf(workspace, way));
}

bool SelectionDuplication::Apply(Workspace& workspace) const
{
    return Insert(workspace, CopiesOf(workspace, way), L"再制"_source);
}
