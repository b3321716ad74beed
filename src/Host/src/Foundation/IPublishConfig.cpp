#include "Foundation/IPublishConfig.h"

#include <map>

namespace vesk
{

namespace
{

class BoolRecord final : public IConfigRecord
{
public:
    explicit BoolRecord(bool value) : m_value(value) {}

    bool GetValueAsBool() const override { return m_value; }

private:
    bool m_value;
};

std::map<std::wstring, BoolRecord>& Records()
{
    static std::map<std::wstring, BoolRecord> s_records;
    return s_records;
}

}

const std::wstring PublishConfigRecordNames::InHouseMode = L"InHouseMode";

const IConfigRecord* IPublishConfig::GetConfigRecord(const std::wstring& name)
{
    const auto found = Records().find(name);
    return found != Records().end() ? &found->second : nullptr;
}

void IPublishConfig::SetConfigRecord(const std::wstring& name, bool value)
{
    Records().insert_or_assign(name, BoolRecord(value));
}

void IPublishConfig::RemoveConfigRecord(const std::wstring& name)
{
    Records().erase(name);
}

}
