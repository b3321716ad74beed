#pragma once

#include "HostUi/HostUiExport.h"

#include <QByteArray>
#include <QString>

namespace vesk
{

/// The file that keeps the layout of a program's panes from one run to the next.
///
/// One JSON object: "version", "layout" (Base64) and "checksum" of the layout. The toolkit trusts a
/// layout blindly, so only one that is bit for bit what was saved is handed out.
class VESK_HOST_UI_API LayoutFile
{
public:
    /// What was found in a file.
    enum class Content
    {
        Layout,
        Missing,
        Damaged,
        Newer, ///< Written by a later version of the program.
    };

    /// What a file holds.
    struct Reading
    {
        Content content = Content::Missing; ///< Whether there is a layout.
        QByteArray layout;                  ///< Empty unless `content` is Layout.
    };

    /// Reads a file, which remains unchanged.
    static Reading Read(const QString& path);

    /// Replaces the file, creating its folder if necessary. A file that is not a layout of this
    /// version is first copied beside it, with ".kept" appended to its name. Returns false if the
    /// file or the copy cannot be written.
    static bool Write(const QString& path, const QByteArray& layout);
};

}
