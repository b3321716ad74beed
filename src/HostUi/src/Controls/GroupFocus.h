#pragma once

class QWidget;

namespace vesk
{

/// Lets Tab and the arrows into every box of the group that a widget is in. The toolkit makes one
/// stop of any group whenever one of its buttons gets the focus: right for radio buttons, of which
/// one is chosen, but of independent boxes it leaves only that one.
void OpenGroupToTab(const QWidget& widget);

}
