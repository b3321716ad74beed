#include "Foundation/FileRewriting.h"

#include "Platform/OutputFile.h"

#include <filesystem>
#include <random>
#include <string>
#include <system_error>
#include <utility>

namespace vesk
{

namespace
{

namespace fs = std::filesystem;

/// The file that a path refers to after following links, even if it does not exist yet.
fs::path FollowLinks(fs::path path)
{
    constexpr int MostLinks = 40;
    std::error_code error;
    for (int i = 0; i < MostLinks && fs::is_symlink(path, error); ++i)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

/// False for what exists and must not be replaced: folders, devices, and files that are not
/// writable.
bool IsReplaceable(const fs::path& path)
{
    std::error_code error;
    if (!fs::exists(fs::symlink_status(path, error)))
        return true;
    return fs::is_regular_file(path, error) && OutputFile().OpenShared(path);
}

/// Creates a new file beside another. On success, `path` is its path.
OutputFile CreateBeside(const fs::path& target, fs::path& path)
{
    constexpr int MostTries = 100;
    constexpr char Letters[] = "abcdefghijklmnopqrstuvwxyz";
    std::random_device random;
    OutputFile file;
    for (int i = 0; i < MostTries && !file.IsOpen(); ++i)
    {
        std::string ending = ".";
        for (int letter = 0; letter < 6; ++letter)
            ending += Letters[random() % (sizeof Letters - 1)];
        path = target;
        path += ending;
        file.Create(path);
    }
    return file;
}

bool WriteWhole(OutputFile file, std::string_view content)
{
    return file.Write(content) == content.size() && file.Sync() && file.Close();
}

void CopyPermissions(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    const fs::file_status status = fs::status(from, error);
    if (fs::exists(status))
        fs::permissions(to, status.permissions(), error);
}

}

bool RewriteFile(const std::string& path, std::string_view content)
{
    const fs::path target = FollowLinks(fs::u8path(path));
    if (!IsReplaceable(target))
        return false;
    fs::path written;
    OutputFile file = CreateBeside(target, written);
    if (!file.IsOpen())
        return false;
    std::error_code error = std::make_error_code(std::errc::io_error);
    if (WriteWhole(std::move(file), content))
    {
        CopyPermissions(target, written);
        fs::rename(written, target, error);
    }
    if (!error)
        return true;
    fs::remove(written, error);
    return false;
}

}
