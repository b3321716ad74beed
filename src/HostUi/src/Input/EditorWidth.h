#pragma once

class QLineEdit;
class QWidget;

namespace vesk
{

/// How wide the editor of a value must be to show its whole text, as far as its view is that wide;
/// 0 where it is wide enough as it opens.
int FindEditorWidth(QLineEdit& editor, const QWidget& view);

}
