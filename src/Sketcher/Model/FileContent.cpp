#include "Model/FileContent.h"

#include "Model/UiText.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

FileContent FileContent::Of(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {{}, Fault::Missing};
    if (!info.isFile())
        return {{}, Fault::NotRegular};
    if (info.size() > GreatestSize)
        return {{}, Fault::TooLarge};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, Fault::Unreadable};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {{}, Fault::Unreadable};
    return {std::move(bytes), Fault::None};
}

QString CaptionOf(FileContent::Fault fault)
{
    switch (fault)
    {
    case FileContent::Fault::Missing:
        return "文件不存在。"_tr;
    case FileContent::Fault::NotRegular:
        return "这不是普通文件。"_tr;
    case FileContent::Fault::TooLarge:
        return "文件太大。"_tr;
    case FileContent::Fault::Unreadable:
        return "无法读取文件。"_tr;
    default:
        return {};
    }
}
