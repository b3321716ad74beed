#include "Model/Digest.h"
#include "Model/DocumentFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Reads a drawing file. What is read must be a valid drawing, and the same again once written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(pData), size);
    const DocumentReading first = DocumentFile::FromText(text);
    if (first.outcome != DocumentReading::Outcome::Whole)
        return 0;
    if (!IsValid(first.content) || DigestOf(first.content).ToText() != first.digest)
        std::abort();
    const std::string written = DocumentFile::ToText(first.content);
    const DocumentReading second = DocumentFile::FromText(written);
    if (second.outcome != DocumentReading::Outcome::Whole || second.digest != first.digest ||
        DocumentFile::ToText(second.content) != written)
        std::abort();
    return 0;
}
