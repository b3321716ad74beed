#pragma once

#include "Model/SketchContent.h"

#include <array>
#include <cstdint>
#include <string>

/// The digest of a set of things: the sum of their SHA-256 values modulo 2^256.
///
/// It does not depend on the order in which they were added, and changing one of them costs the
/// same however many there are.
class Digest final
{
public:
    /// Least significant first.
    using Words = std::array<std::uint64_t, 4>;

    /// Of nothing.
    Digest() = default;

    explicit Digest(const Words& words) : m_words(words) {}

    void Add(const std::string& bytes);

    /// Takes back an Add of the same bytes.
    void Remove(const std::string& bytes);

    /// The sum of both sets, and what is left without the other set.
    Digest& operator+=(const Digest& other);
    Digest& operator-=(const Digest& other);

    /// 64 hexadecimal digits in lower case, most significant first.
    std::string ToText() const;

    bool operator==(const Digest& other) const { return m_words == other.m_words; }
    bool operator!=(const Digest& other) const { return !(*this == other); }

private:
    Words m_words{};
};

/// The bytes that stand for a part of a drawing in its digest; equal parts have equal bytes on any
/// machine. `docs/document-format.md` tells their layout.
std::string CanonicalBytes(const Entity& entity);
std::string CanonicalBytes(const Layer& layer);
std::string CanonicalBytesOfName(const std::wstring& name);

/// The digest of a whole drawing: of its entities, its layers and its name.
Digest DigestOf(const SketchContent& content);
