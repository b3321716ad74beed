#pragma once

#include <QPixmap>
#include <QString>
#include <QTemporaryDir>
#include <QtGlobal>

#include <filesystem>
#include <vector>

/// Icon files of a folder of their own.
class IconFiles
{
public:
    explicit IconFiles(int count)
    {
        QPixmap pixmap(32, 32);
        for (int i = 0; i < count; ++i)
        {
            pixmap.fill(QColor::fromHsv(i % 360, 255, 255));
            m_paths.push_back(m_folder.filePath(QString("icon%1.png").arg(i)));
            if (!pixmap.save(m_paths.back()))
                qFatal("cannot write %s", qPrintable(m_paths.back()));
        }
    }

    /// The path of one after the other, for ever.
    const QString& operator[](int i) const
    {
        return m_paths[static_cast<std::size_t>(i) % m_paths.size()];
    }

    /// Makes all files newer, so that none is as it was when it was read.
    void Touch() const
    {
        for (const QString& path : m_paths)
        {
            const std::filesystem::path file(path.toStdString());
            last_write_time(file, last_write_time(file) + std::chrono::seconds(1));
        }
    }

private:
    QTemporaryDir m_folder;
    std::vector<QString> m_paths;
};
