#include "Model/Digest.h"

#include "Model/Overloaded.h"

#include "Foundation/Text.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QtEndian>

#include <cstddef>
#include <cstring>

namespace
{

Digest::Words HashOf(const std::string& bytes)
{
    const QByteArray hash = QCryptographicHash::hash(
        QByteArray::fromRawData(bytes.data(), int(bytes.size())), QCryptographicHash::Sha256);
    Digest::Words words{};
    for (std::size_t i = 0; i < words.size(); ++i)
        words[words.size() - 1 - i] = qFromBigEndian<quint64>(hash.constData() + 8 * i);
    return words;
}

/// Collects little-endian values.
class Bytes
{
public:
    explicit Bytes(char tag) : m_bytes(1, tag) {}

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
