#pragma once

#include <QByteArray>
#include <QString>

/// What a regular file contains.
///
/// Folders, devices and pipes are not read: opening or reading these may never end.
struct FileContent
{
    enum class Fault
    {
        None,
        Missing,
        NotRegular,
        TooLarge,
        Unreadable,
    };

    /// In bytes. Larger files are not read: Qt's arrays, and what is made of them, could not hold
    /// more.
    static constexpr qint64 GreatestSize = 1 << 30;

    QByteArray bytes; ///< Empty after a fault.
    Fault fault = Fault::None;

    /// Reads the file at that path, directly or through links. May be called in any thread.
    static FileContent Of(const QString& path);
};

/// On screen: what is wrong, in one sentence; empty for nothing.
QString CaptionOf(FileContent::Fault fault);
