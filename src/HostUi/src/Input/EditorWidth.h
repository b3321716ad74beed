#pragma once

class QLineEdit;
class QWidget;

namespace vesk
{

/// The width that the editor needs to show its whole text, limited by the view; 0 if its opening
/// width is enough.
int FindEditorWidth(QLineEdit& editor, const QWidget& view);

}
