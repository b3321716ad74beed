#pragma once

#include "Documents/DocumentLock.h"
#include "Documents/FileStamp.h"

#include <QFileInfo>
#include <QString>

#include <memory>
#include <string>

/// The file that the drawing came from or was saved in.
struct OpenDocument
{
    QString path;            ///< Empty if there is none yet.
    std::string savedDigest; ///< Of the drawing when it was opened or saved.
    FileStamp stamp;         ///< Of the file at that time.
    bool isReadOnly = false; ///< Because another program has it open.
    std::shared_ptr<DocumentLock> pLock;

    bool HasFile() const { return !path.isEmpty(); }

    /// As the user knows it; empty without a file.
    QString GetName() const { return QFileInfo(path).completeBaseName(); }
};
