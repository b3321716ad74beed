#pragma once

namespace vesk
{

/// What programs such as screen readers see of widgets, where the toolkit's own answer does not do.
///
/// A widget with a role (SetAccessibleRole) has that role. A tool button, check box or radio button
/// is pressed as a click presses it: the toolkit would only change the mark of one that can be
/// checked, and the program would not hear of it. Installed while it lives.
class AccessibleObjects final
{
public:
    /// The dynamic property that holds a widget's role.
    static constexpr char RoleProperty[] = "AccessibleRole";

    AccessibleObjects();
    ~AccessibleObjects();
    AccessibleObjects(const AccessibleObjects&) = delete;
    AccessibleObjects& operator=(const AccessibleObjects&) = delete;
};

}
