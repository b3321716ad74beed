#pragma once

#include <QString>

class QWidget;

/// The questions about drawing files. Each runs an event loop, in which everything may be
/// destroyed: the answer is then the one that changes nothing. The parents are not owned.
namespace DocumentDialogs
{

enum class SaveAnswer
{
    Save,
    Discard,
    Cancel,
};

/// Whether to save the changes to the drawing of that name first.
SaveAnswer AskToSave(QWidget* pParent, const QString& name);

/// Whether to replace a file that another program has changed.
bool AskToReplaceChanged(QWidget* pParent, const QString& name);

/// Whether to open a file read-only that is open in another program.
bool AskToOpenReadOnly(QWidget* pParent, const QString& name, const QString& holder);

/// The path of an existing file; empty for none.
QString AskForFileToOpen(QWidget* pParent, const QString& folder);

/// The path of a file, with the ending of drawings; empty for none. The user has agreed to replace
/// an existing one other than the drawing's own.
QString AskForFileToSave(QWidget* pParent, const QString& suggestion, const QString& own);

/// Shows a message until the user closes it.
void Tell(QWidget* pParent, const QString& text, const QString& details);

}
