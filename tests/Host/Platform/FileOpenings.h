#pragma once

#include "Platform/OutputFile.h"
#include "Support/TestValues.h"

#include <filesystem>
#include <functional>

namespace vesk
{

/// Makes a file object, which may have a file open, open another one.
using Opening = std::function<void(OutputFile& file, const std::filesystem::path& path)>;

}

Q_DECLARE_METATYPE(vesk::Opening)

namespace vesk
{

/// The column "open", and a row for each way to open a file by its path.
inline void AddOpenings()
{
    QTest::addColumn<Opening>("open");
    QTest::newRow("alone") << Opening(
        [](OutputFile& file, const std::filesystem::path& path) { file.OpenAlone(path); });
    QTest::newRow("shared") << Opening(
        [](OutputFile& file, const std::filesystem::path& path) { file.OpenShared(path); });
    QTest::newRow("new") << Opening(
        [](OutputFile& file, const std::filesystem::path& path) { file.Create(path); });
}

}
