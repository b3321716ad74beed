#pragma once

#include "HostUi/HostUiExport.h"

#include <QLibrary>
#include <QString>

namespace vesk
{

/// The library that implements the controls; loaded for the lifetime of this object.
///
/// Created after QApplication and HostCore; destroyed after the library's last control, handler and
/// displayer.
class VESK_HOST_UI_API ControlLibrary
{
public:
    /// Loads the library from the folder `lib` (on Windows `bin`) next to the program's own folder
    /// or, if it cannot be loaded from there, from the folder of the library that this class is in;
    /// so a program finds the library of the package that it links, wherever the program is.
    ControlLibrary();
    ~ControlLibrary();
    ControlLibrary(const ControlLibrary&) = delete;
    ControlLibrary& operator=(const ControlLibrary&) = delete;

    /// False if there are no controls: nothing else of this object can be used then but GetError.
    bool IsLoaded() const;

    /// Why loading failed; empty if it succeeded.
    QString GetError() const;

private:
    QLibrary m_library;
};

}
