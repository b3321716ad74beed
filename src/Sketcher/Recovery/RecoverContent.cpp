#include "Recovery/RecoverContent.h"

#include "Model/DocumentFile.h"
#include "Model/KeptContent.h"
#include "Model/Sketch.h"

#include "HostUi/QtText.h"

#include <cstddef>
#include <string>

using namespace vesk;

namespace
{

constexpr wchar_t SnapshotName[] = L"content";

std::optional<SketchContent> FindSnapshot(const CommandParameters& parameters)
{
    const CommandParameterValue* pValue = parameters.Find(SnapshotName);
    const auto* pDigest = pValue != nullptr ? std::get_if<std::wstring>(&pValue->Get()) : nullptr;
    if (pDigest == nullptr)
        return std::nullopt;
    const std::optional<QByteArray> bytes = KeptContent::Get().Find(ToQString(*pDigest));
    if (!bytes.has_value())
        return std::nullopt;
    DocumentReading reading =
        DocumentFile::FromText({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    if (reading.outcome != DocumentReading::Outcome::Whole)
        return std::nullopt;
    return std::move(reading.content);
}

}

std::optional<CommandParameters> RecoverContent::Keep(const QByteArray& bytes)
{
    const std::optional<QString> digest = KeptContent::Get().Keep(bytes);
    if (!digest.has_value())
        return std::nullopt;
    CommandParameters parameters;
    parameters.Add(SnapshotName, CommandParameterValue(ToWide(*digest)));
    return parameters;
}

bool RecoverContent::IsPossible(const CommandParameters& parameters)
{
    return FindSnapshot(parameters).has_value();
}

void RecoverContent::Apply(Sketch& sketch, const CommandParameters& parameters)
{
    if (std::optional<SketchContent> content = FindSnapshot(parameters))
        sketch.Restore(std::move(*content));
}

CommandEntry MakeRecoverCommand(Sketch& sketch)
{
    return CommandEntry::WithParameters(RecoverContent::CommandId, L"恢复内容",
                                        [&sketch](const CommandParameters& parameters) {
                                            RecoverContent::Apply(sketch, parameters);
                                        })
        .PossibleWith(&RecoverContent::IsPossible);
}
