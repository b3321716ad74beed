#pragma once

#include "Support/FileBytes.h"

namespace vesk
{

/// How a journal file of the present version begins.
inline const QByteArray JournalHeaderBegin = R"({"n":0,"kind":"journal","version":2,)";

/// The header line of a journal with its terminator; empty if it begins with another line.
inline QByteArray HeaderOf(const QByteArray& journal)
{
    return journal.startsWith(JournalHeaderBegin) ? journal.left(journal.indexOf('\n') + 1)
                                                  : QByteArray();
}

/// The lines of a journal file after its header, which must be there.
inline QByteArray ReadLinesAfterHeader(const QString& path)
{
    const QByteArray journal = ReadBytes(path);
    const QByteArray header = HeaderOf(journal);
    return header.isEmpty() ? "no header: " + journal : journal.mid(header.size());
}

}
