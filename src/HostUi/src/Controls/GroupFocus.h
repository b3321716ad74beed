#pragma once

class QWidget;

namespace vesk
{

/// Makes every check box in a widget's group reachable with Tab and the arrow keys. The toolkit
/// turns a group into a single tab stop whenever one of its buttons gets the focus: right for radio
/// buttons, but of independent check boxes it leaves only that one reachable.
void OpenGroupToTab(const QWidget& widget);

}
