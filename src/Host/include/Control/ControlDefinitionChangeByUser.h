#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// While one exists, changes to the definition with its id count as the user's. Scopes may nest,
/// and end in any order.
///
/// GUI thread only.
class VESK_HOST_API ControlDefinitionChangeByUser
{
public:
    /// Begins a scope for the definition with that id.
    explicit ControlDefinitionChangeByUser(const std::wstring& id);
    ~ControlDefinitionChangeByUser();
    ControlDefinitionChangeByUser(const ControlDefinitionChangeByUser&) = delete;
    ControlDefinitionChangeByUser& operator=(const ControlDefinitionChangeByUser&) = delete;

    /// True while a scope with this id exists.
    static bool IsChangeByUser(const std::wstring& id);

private:
    std::wstring m_id;

    // All existing scopes are linked, the youngest first.
    ControlDefinitionChangeByUser* m_pOlder;
    ControlDefinitionChangeByUser* m_pYounger = nullptr;
};

/// Marks that a line edit's text is being changed by the user: the edit sets the flag, and the
/// destructor of an instance clears it.
class VESK_HOST_API LineEditTextChangeFlag
{
public:
    LineEditTextChangeFlag() = default;
    ~LineEditTextChangeFlag();
    LineEditTextChangeFlag(const LineEditTextChangeFlag&) = delete;
    LineEditTextChangeFlag& operator=(const LineEditTextChangeFlag&) = delete;

    /// Set while the user changes a text.
    static bool m_textChangeByUser;
};

/// Marks that a radio-button group is being changed by the user, in the same way.
class VESK_HOST_API RadioButtonGroupStateChangeFlag
{
public:
    RadioButtonGroupStateChangeFlag() = default;
    ~RadioButtonGroupStateChangeFlag();
    RadioButtonGroupStateChangeFlag(const RadioButtonGroupStateChangeFlag&) = delete;
    RadioButtonGroupStateChangeFlag& operator=(const RadioButtonGroupStateChangeFlag&) = delete;

    /// Set while the user checks a button.
    static bool m_stateChangeByUser;
};

}
