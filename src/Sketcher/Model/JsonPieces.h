#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Why a JSON text cannot be read, and where.
class JsonFault final : public std::runtime_error
{
public:
    JsonFault(std::size_t offset, const std::string& reason)
        : std::runtime_error(reason), m_offset(offset)
    {}

    /// In bytes from the beginning of the text.
    std::size_t GetOffset() const { return m_offset; }

private:
    std::size_t m_offset;
};

/// One value in a JSON text, unparsed, and where it begins.
struct JsonPiece
{
    std::string_view text;
    std::size_t offset = 0;
};

struct JsonMember
{
    std::string key;
    JsonPiece value;
};

/// Split a value of a JSON text into its parts, which are valid as long as the text.
///
/// The parts may still turn out not to be JSON. Time and memory are linear in the size of the text,
/// whatever it contains. Both throw a JsonFault for what is no object or array, for a duplicate
/// key, and for what is nested too deeply to be parsed.
std::vector<JsonMember> SplitObject(const JsonPiece& object);
std::vector<JsonPiece> SplitArray(const JsonPiece& array);

/// The same value without the blanks and line breaks between its parts.
std::string WithoutBlanks(std::string_view json);
