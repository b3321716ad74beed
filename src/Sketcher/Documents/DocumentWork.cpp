#include "Documents/DocumentWork.h"

#include "Model/FileContent.h"
#include "Model/KeptContent.h"
#include "Model/UiText.h"

#include "Foundation/FileRewriting.h"

#include <QFileInfo>
#include <QStorageInfo>

#include <cstddef>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

namespace
{

QString DamageOf(const DocumentReading& reading)
{
    if (reading.outcome == DocumentReading::Outcome::Newer)
        return "该文件由更新版本的程序保存，请用新版本打开。"_tr;
    return "文件第 %1 行有错误。文件保持原样。"_tr.arg(reading.line);
}

/// The best guess at why a file could not be written.
QString WhyNotWritten(const QString& path, qint64 size)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    if (!folder.isDir())
        return "文件夹不存在。"_tr;
    if (file.exists() && !file.isFile())
        return "这不是普通文件。"_tr;
    if ((file.exists() && !file.isWritable()) || !folder.isWritable())
        return "没有写入权限。"_tr;
    const qint64 available = QStorageInfo(folder.absoluteFilePath()).bytesAvailable();
    return available >= 0 && available < size ? "磁盘空间不足。"_tr
                                              : "写入时出错，原文件保持不变。"_tr;
}

DocumentWork::Read ReadWhole(const QString& path, const DocumentFile::Progress& progress)
{
    DocumentWork::Read result;
    // Older than what is read, so that a later change is noticed.
    const QDateTime modified = QFileInfo(path).lastModified();
    const auto [bytes, fault] = FileContent::Of(path);
    result.fault = CaptionOf(fault);
    if (fault != FileContent::Fault::None)
        return result;
    result.stamp = FileStamp::Of(path, bytes);
    result.stamp.modified = modified;
    result.stamp.size = bytes.size();
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    result.reading = DocumentFile::FromText(text, progress);
    result.isCancelled = result.reading.outcome == DocumentReading::Outcome::Cancelled;
    if (result.isCancelled)
        return result;
    if (result.reading.outcome != DocumentReading::Outcome::Whole)
    {
        result.fault = DamageOf(result.reading);
        return result;
    }
    const std::optional<QString> digest = KeptContent::Get().Keep(bytes);
    result.contentDigest = digest.value_or(QString());
    if (!digest.has_value())
        result.fault = "日志旁无法保留该文件的副本，没有它就不能恢复所做的操作。"_tr;
    return result;
}

DocumentWork::Written WriteWhole(const SketchContent& content, const std::string& digest,
                                 const QString& path, const DocumentFile::Progress& progress)
{
    DocumentWork::Written result;
    const std::string text = DocumentFile::ToText(content, digest, progress);
    result.isCancelled = text.empty();
    if (result.isCancelled)
        return result;
    if (!vesk::RewriteFile(path.toStdString(), text))
    {
        result.fault = WhyNotWritten(path, static_cast<qint64>(text.size()));
        return result;
    }
    const auto size = static_cast<int>(text.size());
    result.stamp = FileStamp::Of(path, QByteArray::fromRawData(text.data(), size));
    return result;
}

/// What the work results in, or the fault that there is not enough memory for it.
template <class Result, class Function>
Result UnlessOutOfMemory(const Function& work)
{
    try
    {
        return work();
    }
    catch (const std::bad_alloc&)
    {
        Result failed;
        failed.fault = "内存不足。"_tr;
        return failed;
    }
}

}

DocumentWork::Read DocumentWork::ReadFile(const QString& path,
                                          const DocumentFile::Progress& progress)
{
    return UnlessOutOfMemory<Read>([&] { return ReadWhole(path, progress); });
}

DocumentWork::Written DocumentWork::WriteFile(const SketchContent& content,
                                              const std::string& digest, const QString& path,
                                              const DocumentFile::Progress& progress)
{
    return UnlessOutOfMemory<Written>([&] { return WriteWhole(content, digest, path, progress); });
}
