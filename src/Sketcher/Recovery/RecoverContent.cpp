#include "Recovery/RecoverContent.h"

#include "Model/Digest.h"
#include "Model/DocumentFile.h"
#include "Model/KeptContent.h"
#include "Model/Sketch.h"
#include "Model/UiText.h"
#include "Recovery/Snapshot.h"

#include "HostUi/QtText.h"

#include <cstddef>
#include <string>
#include <utility>

using namespace vesk;

namespace
{

constexpr wchar_t SnapshotName[] = L"content";

/// The content that is applied next, under the digest of its bytes: a large one takes seconds to
/// read.
struct PreparedSnapshot
{
    QString key;
    SketchContent content;
    Digest digest;
};

std::optional<PreparedSnapshot> s_prepared;

/// The digest of the kept bytes; empty if the parameters have none.
QString KeyOf(const CommandParameters& parameters)
{
    const CommandParameterValue* pValue = parameters.Find(SnapshotName);
    const auto* pKey = pValue != nullptr ? std::get_if<std::wstring>(&pValue->Get()) : nullptr;
    return pKey != nullptr ? ToQString(*pKey) : QString();
}

/// Prepares the content that the parameters name. Returns false if it is not kept, or not whole.
bool Prepare(const CommandParameters& parameters)
{
    const QString key = KeyOf(parameters);
    if (s_prepared.has_value() && s_prepared->key == key)
        return true;
    s_prepared.reset();
    const std::optional<QByteArray> bytes = KeptContent::Get().Find(key);
    if (!bytes.has_value())
        return false;
    DocumentReading reading =
        DocumentFile::FromText({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    if (reading.outcome == DocumentReading::Outcome::Whole)
        s_prepared = PreparedSnapshot{key, std::move(reading.content), reading.sum};
    return s_prepared.has_value();
}

}

std::optional<CommandParameters> RecoverContent::Keep(const Snapshot& snapshot)
{
    const std::optional<QString> key = KeptContent::Get().Keep(snapshot.bytes);
    if (!key.has_value())
        return std::nullopt;
    s_prepared = PreparedSnapshot{*key, snapshot.content, DigestOf(snapshot.content)};
    CommandParameters parameters;
    parameters.Add(SnapshotName, CommandParameterValue(ToWide(*key)));
    return parameters;
}

bool RecoverContent::IsPossible(const CommandParameters& parameters)
{
    return Prepare(parameters);
}

void RecoverContent::Apply(Sketch& sketch, const CommandParameters& parameters)
{
    if (!Prepare(parameters))
        return;
    sketch.Restore(std::move(s_prepared->content), s_prepared->digest);
    s_prepared.reset();
}

CommandEntry MakeRecoverCommand(Sketch& sketch)
{
    return CommandEntry::WithParameters(RecoverContent::CommandId, L"恢复内容"_source,
                                        [&sketch](const CommandParameters& parameters) {
                                            RecoverContent::Apply(sketch, parameters);
                                        })
        .PossibleWith(&RecoverContent::IsPossible);
}
