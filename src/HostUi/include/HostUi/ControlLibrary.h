#pragma once

#include "HostUi/HostUiExport.h"

#include <QLibrary>
#include <QString>

namespace vesk
{

/// The library that makes the controls: loaded while this lives.
///
/// Made after QApplication and HostCore; destroyed after the last control, handler and displayer of
/// the library is gone.
class VESK_HOST_UI_API ControlLibrary
{
public:
    /// Loads the library from the folder `lib`, on Windows `bin`, beside the program's own
    /// folder.
    ControlLibrary();
    ~ControlLibrary();
    ControlLibrary(const ControlLibrary&) = delete;
    ControlLibrary& operator=(const ControlLibrary&) = delete;

    bool IsLoaded() const;

    /// Why it could not be loaded; empty when it was.
    QString GetError() const;

private:
    QLibrary m_library;
};

}
