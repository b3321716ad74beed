#include "Drawing.h"

#include "Journal/JournalFormat.h"
#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

#include <map>

namespace
{

nlohmann::json EntitiesOf(const QString& path)
{
    const nlohmann::json model =
        nlohmann::json::parse(ReadBytes(path).toStdString(), nullptr, false);
    return model.is_discarded() ? nlohmann::json::array() : model["entities"];
}

}

std::vector<DrawnEntity> ReadEntities(const QString& path)
{
    std::vector<DrawnEntity> drawn;
    for (const nlohmann::json& entity : EntitiesOf(path))
    {
        const DrawnEntity::Point none{};
        drawn.push_back({QString::fromStdString(entity["type"].get<std::string>()),
                         entity.value("start", none), entity.value("end", none),
                         entity.value("centre", none), entity.value("radius", 0.0),
                         entity.value("normal", none),
                         entity.value("corners", std::vector<DrawnEntity::Point>())});
    }
    return drawn;
}

std::vector<vesk::JournalRecord> ReadJournal(const QString& path)
{
    std::vector<vesk::JournalRecord> records;
    std::string error;
    if (!vesk::JournalFormat::ReadFile(path.toStdString(), records, error))
        QTest::qFail(error.c_str(), __FILE__, __LINE__);
    return records;
}

QByteArray ReadActs(const QString& path)
{
    QByteArray acts;
    std::map<int, int> numbers;
    for (vesk::JournalRecord record : ReadJournal(path))
    {
        if (std::holds_alternative<vesk::HeaderRecord>(record.what) ||
            std::holds_alternative<vesk::MarkRecord>(record.what) ||
            std::holds_alternative<vesk::CloseRecord>(record.what))
            continue;
        record.number =
            numbers.emplace(record.number, static_cast<int>(numbers.size()) + 1).first->second;
        acts += QByteArray::fromStdString(vesk::JournalFormat::ToLine(record)) + '\n';
    }
    return acts;
}

void WriteFile(const QString& path, const QByteArray& content)
{
    QVERIFY(vesk::WriteBytes(path, content));
}
