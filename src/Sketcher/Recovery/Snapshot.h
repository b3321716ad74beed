#pragma once

#include "Model/SketchContent.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <string>

/// The drawing as it was after a record of its journal, in a drawing file beside the journal. The
/// number of the record is part of the file's name: "session.jsonl.1234.vsk".
struct Snapshot
{
    int record = 0; ///< The number of the mark whose digest the drawing has.
    QByteArray bytes;
    std::string digest;
    SketchContent content;

    /// Writes the file, then removes older ones. Returns false if it cannot be written; the older
    /// ones then stay. May be called in any thread.
    static bool Write(const QString& journal, int record, const SketchContent& content);

    /// The newest that is whole; nothing if there is none.
    static std::optional<Snapshot> FindNewest(const QString& journal);

    static void RemoveAll(const QString& journal);
};
