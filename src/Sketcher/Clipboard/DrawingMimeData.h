#pragma once

#include "Model/SketchContent.h"

#include "HostUi/QtVersions.h"

#include <QByteArray>
#include <QMimeData>

#include <functional>

/// A drawing on the clipboard: the bytes of a drawing file for this program, and a picture as SVG
/// for others. Either is only made when somebody asks for it.
class DrawingMimeData final : public QMimeData
{
    Q_OBJECT

public:
    static constexpr char DrawingType[] = "application/x-vesk-drawing";
    static constexpr char PictureType[] = "image/svg+xml";

    /// Draws a picture; empty bytes for none. May be called after everything else of the program
    /// is gone.
    using Picture = std::function<QByteArray(const SketchContent&)>;

    /// Without a function no picture is offered.
    DrawingMimeData(SketchContent content, Picture picture);

    bool hasFormat(const QString& type) const override;
    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString& type, vesk::MimeDataType preferred) const override;

private:
    SketchContent m_content;
    Picture m_picture;
};
