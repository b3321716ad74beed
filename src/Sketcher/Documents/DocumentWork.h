#pragma once

#include "Documents/FileStamp.h"
#include "Model/DocumentFile.h"

#include <QString>

#include <string>

/// Reading and writing of files, possibly in another thread: it touches nothing else.
namespace DocumentWork
{

/// A file that was read.
struct Read
{
    QString fault; ///< On screen: why the file cannot be opened; empty if it can.
    bool isCancelled = false;
    QString contentDigest; ///< Under which its bytes are kept.
    DocumentReading reading;
    FileStamp stamp;
};

/// Reads a file and keeps its bytes beside the journal.
Read ReadFile(const QString& path, const DocumentFile::Progress& progress);

/// A file that was written.
struct Written
{
    QString fault; ///< On screen: why it could not be written; empty if it was.
    bool isCancelled = false;
    FileStamp stamp;
};

/// Replaces a file by one that holds the content, which has that digest; otherwise it stays as it
/// was.
Written WriteFile(const SketchContent& content, const std::string& digest, const QString& path,
                  const DocumentFile::Progress& progress);

}
