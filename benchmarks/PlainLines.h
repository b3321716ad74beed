#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

/// Lines of text as they are written by hand: put together without the heap, and handed to the
/// operating system one by one.
class PlainLines
{
public:
    /// Replaces the file.
    explicit PlainLines(const std::string& path)
        : m_file(open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_TRUNC, 0666))
    {}
    ~PlainLines() { close(m_file); }
    PlainLines(const PlainLines&) = delete;
    PlainLines& operator=(const PlainLines&) = delete;

    PlainLines& operator<<(std::string_view text)
    {
        m_pEnd += text.copy(m_pEnd, text.size());
        return *this;
    }

    /// ASCII alone.
    PlainLines& operator<<(std::wstring_view text)
    {
        for (const wchar_t character : text)
            *m_pEnd++ = static_cast<char>(character);
        return *this;
    }

    PlainLines& operator<<(int number) { return Add(number); }
    PlainLines& operator<<(double number) { return Add(number); }

    void Write()
    {
        if (write(m_file, m_line, static_cast<std::size_t>(m_pEnd - m_line)) < 0)
            std::abort();
        m_pEnd = m_line;
    }

private:
    template <class Number>
    PlainLines& Add(Number number)
    {
        m_pEnd = std::to_chars(m_pEnd, m_line + sizeof m_line, number).ptr;
        return *this;
    }

    int m_file;
    char m_line[256] = {};
    char* m_pEnd = m_line;
};
