#include "Model/Digest.h"

#include "Model/Overloaded.h"

#include "Foundation/Text.h"

#include <QByteArray>
#include <QtEndian>

#include <openssl/evp.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <mutex>

namespace
{

/// Computes SHA-256 of short texts. Preparing that takes longer than computing it, so one is kept
/// for all texts.
class Hasher
{
public:
    Digest::Words Hash(const std::string& bytes)
    {
        std::array<unsigned char, 32> hash{};
        const bool isDone = EVP_DigestInit_ex2(m_pContext.get(), m_pMethod.get(), nullptr) == 1 &&
                            EVP_DigestUpdate(m_pContext.get(), bytes.data(), bytes.size()) == 1 &&
                            EVP_DigestFinal_ex(m_pContext.get(), hash.data(), nullptr) == 1;
        if (!isDone)
            qFatal("SHA-256 is not available");
        Digest::Words words{};
        for (std::size_t i = 0; i < words.size(); ++i)
            words[words.size() - 1 - i] = qFromBigEndian<quint64>(hash.data() + 8 * i);
        return words;
    }

private:
    std::unique_ptr<EVP_MD, decltype(&EVP_MD_free)> m_pMethod{
        EVP_MD_fetch(nullptr, "SHA256", nullptr), &EVP_MD_free};
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> m_pContext{EVP_MD_CTX_new(),
                                                                       &EVP_MD_CTX_free};
};

Digest::Words HashOf(const std::string& bytes)
{
    // Not one for each thread: mingw frees the memory of a thread's objects before it destroys
    // them.
    static Hasher s_hasher;
    static std::mutex s_mutex;
    const std::lock_guard lock(s_mutex);
    return s_hasher.Hash(bytes);
}

/// Collects little-endian values.
class Bytes
{
public:
    explicit Bytes(char tag)
    {
        constexpr std::size_t Usual = 200; // So many bytes at most stand for an entity.
        m_bytes.reserve(Usual);
        m_bytes += tag;
    }

    Bytes& Add(int value) { return AddRaw(static_cast<std::uint32_t>(value)); }

    Bytes& Add(double value)
    {
        const double number = value == 0.0 ? 0.0 : value; // Negative zero is zero.
        std::uint64_t bits = 0;
        static_assert(sizeof(bits) == sizeof(number));
        std::memcpy(&bits, &number, sizeof(bits));
        return AddRaw(bits);
    }

    Bytes& Add(bool value)
    {
        m_bytes += value ? '\1' : '\0';
        return *this;
    }

    Bytes& Add(const std::wstring& text)
    {
        const std::string utf8 = vesk::ToUtf8(text);
        Add(static_cast<int>(utf8.size()));
        m_bytes += utf8;
        return *this;
    }

    Bytes& Add(const vesk::Vector3d& point) { return Add(point.x()).Add(point.y()).Add(point.z()); }

    const std::string& Get() const { return m_bytes; }

private:
    template <class Integer>
    Bytes& AddRaw(Integer value)
    {
        char raw[sizeof(value)];
        qToLittleEndian(value, raw);
        m_bytes.append(raw, sizeof(raw));
        return *this;
    }

    std::string m_bytes;
};

template <class Value>
const std::wstring& NameOf(const std::vector<Value>& values, int index)
{
    return values[static_cast<std::size_t>(index)].name;
}

void AddShape(Bytes& bytes, const Shape& shape)
{
    std::visit(Overloaded{
                   [&bytes](const LineShape& line) { bytes.Add(1).Add(line.start).Add(line.end); },
                   [&bytes](const CircleShape& circle) {
                       bytes.Add(2).Add(circle.centre).Add(circle.radius).Add(circle.normal);
                   },
                   [&bytes](const ArcShape& arc) {
                       bytes.Add(3).Add(arc.centre).Add(arc.radius).Add(arc.start).Add(arc.end);
                       bytes.Add(arc.normal);
                   },
                   [&bytes](const RectangleShape& rectangle) {
                       bytes.Add(4);
                       for (const vesk::Vector3d& corner : rectangle.corners)
                           bytes.Add(corner);
                   },
               },
               shape);
}

}

void Digest::Add(const std::string& bytes)
{
    *this += Digest(HashOf(bytes));
}

void Digest::Remove(const std::string& bytes)
{
    *this -= Digest(HashOf(bytes));
}

Digest& Digest::operator+=(const Digest& other)
{
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < m_words.size(); ++i)
    {
        const std::uint64_t sum = m_words[i] + other.m_words[i];
        const std::uint64_t total = sum + carry;
        carry = (sum < m_words[i] || total < sum) ? 1 : 0;
        m_words[i] = total;
    }
    return *this;
}

Digest& Digest::operator-=(const Digest& other)
{
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < m_words.size(); ++i)
    {
        const std::uint64_t difference = m_words[i] - other.m_words[i];
        const std::uint64_t total = difference - borrow;
        borrow = (m_words[i] < other.m_words[i] || difference < borrow) ? 1 : 0;
        m_words[i] = total;
    }
    return *this;
}

std::string Digest::ToText() const
{
    QByteArray bytes(32, '\0');
    for (std::size_t i = 0; i < m_words.size(); ++i)
        qToBigEndian<quint64>(m_words[m_words.size() - 1 - i], bytes.data() + 8 * i);
    return bytes.toHex().toStdString();
}

std::string CanonicalBytes(const Entity& entity)
{
    Bytes bytes('E');
    bytes.Add(entity.id);
    AddShape(bytes, entity.shape);
    return bytes.Add(NameOf(LineStyles(), entity.pen.style))
        .Add(NameOf(LineColours(), entity.pen.colour))
        .Add(NameOf(LineWidths(), entity.pen.width))
        .Add(entity.pen.layer)
        .Get();
}

std::string CanonicalBytes(const Layer& layer)
{
    return Bytes('L')
        .Add(layer.id)
        .Add(layer.name)
        .Add(NameOf(LineColours(), layer.colour))
        .Add(layer.isVisible)
        .Add(layer.isLocked)
        .Get();
}

std::string CanonicalBytesOfName(const std::wstring& name)
{
    return Bytes('N').Add(name).Get();
}

Digest DigestOf(const SketchContent& content)
{
    Digest digest;
    for (const Layer& layer : content.layers)
        digest.Add(CanonicalBytes(layer));
    for (const Entity& entity : content.entities)
        digest.Add(CanonicalBytes(entity));
    digest.Add(CanonicalBytesOfName(content.name));
    return digest;
}
