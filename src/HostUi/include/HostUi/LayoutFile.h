#pragma once

#include "HostUi/HostUiExport.h"

#include <QByteArray>
#include <QString>

namespace vesk
{

/// The file in which a program keeps the layout of its panes from one run to the next.
///
/// One JSON object: "version", "layout" (base 64) and "checksum" of the layout. The toolkit trusts
/// a layout blindly, so one that is not what was saved, to the last bit, is not handed out.
class VESK_HOST_UI_API LayoutFile
{
public:
    enum class Content
    {
        Layout,
        Missing,
        Damaged,
        Newer, ///< Written by a later version of the program.
    };

    struct Reading
    {
        Content content = Content::Missing;
        QByteArray layout; ///< Empty unless there is one.
    };

    static Reading Read(const QString& path);

    /// Replaces the file and makes its folder where it is missing. What stood there and was no
    /// layout of this version is kept beside it, with ".kept" after its name. False when the file
    /// cannot be written.
    static bool Write(const QString& path, const QByteArray& layout);
};

}
