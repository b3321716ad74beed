#pragma once

#include "Clipboard/DrawingMimeData.h"
#include "Ribbon/CommandEntry.h"

#include <functional>
#include <vector>

class QString;
struct Workspace;

/// Cutting, copying, pasting and duplicating what is selected.
///
/// What is pasted goes into the journal by the digest of its bytes, which are kept beside it. So a
/// replay never looks at the clipboard, and neither does it change it.
class ClipboardCommands final
{
public:
    /// Tells the user why nothing was pasted.
    using Notice = std::function<void(const QString&)>;

    /// The workspace is not owned and outlives every execution of the commands.
    ClipboardCommands(Workspace& workspace, Notice notice);

    /// Sets what draws the picture for other programs; without it there is none.
    void SetPicture(DrawingMimeData::Picture picture);

    /// They must not run after this is gone.
    std::vector<CommandEntry> MakeCommands();

private:
    void Copy() const;
    void Cut();
    void Paste() const;
    void PasteBytes(const QByteArray& bytes) const;
    void Duplicate() const;

    Workspace& m_workspace;
    Notice m_notice;
    DrawingMimeData::Picture m_picture;
};
