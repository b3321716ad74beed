#include "Clipboard/DrawingMimeData.h"

#include "Model/DocumentFile.h"

#include <utility>

DrawingMimeData::DrawingMimeData(SketchContent content, Picture picture)
    : m_content(std::move(content)), m_picture(std::move(picture))
{}

bool DrawingMimeData::hasFormat(const QString& type) const
{
    return formats().contains(type);
}

QStringList DrawingMimeData::formats() const
{
    QStringList types = {QLatin1String(DrawingType)};
    if (m_picture)
        types << QLatin1String(PictureType);
    return types;
}

QVariant DrawingMimeData::retrieveData(const QString& type, vesk::MimeDataType preferred) const
{
    if (type == QLatin1String(DrawingType))
        return QByteArray::fromStdString(DocumentFile::ToText(m_content));
    if (type == QLatin1String(PictureType) && m_picture)
        return m_picture(m_content);
    return QMimeData::retrieveData(type, preferred);
}
