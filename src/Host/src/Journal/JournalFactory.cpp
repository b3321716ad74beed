#include "Journal/JournalFactory.h"

#include "Journal/CommandParameters.h"

namespace vesk
{

namespace
{

class JournalCommandData final : public IJournalCommandData
{
public:
    void SetCommandId(const std::wstring& commandId) override { m_commandId = commandId; }
    std::wstring GetCommandId() const override { return m_commandId; }

    void SetCommandParameters(const CommandParameters& parameters) override
    {
        m_parameters = parameters;
    }

    const CommandParameters& GetCommandParameters() const override { return m_parameters; }

private:
    std::wstring m_commandId;
    CommandParameters m_parameters;
};

class JournalUiObject final : public IJournalUiObject
{
public:
    void SetUiObject(const Any& uiObject) override { m_uiObject = uiObject; }
    const Any& GetUiObject() const override { return m_uiObject; }

private:
    Any m_uiObject;
};

}

OwnerPtr<IJournalData> JournalFactory::CreateJournalData(const std::wstring& className)
{
    if (className == L"JournalCommandData")
        return MakeOwner<JournalCommandData>();
    return nullptr;
}

OwnerPtr<IJournalUiObject> JournalFactory::CreateJournalUiObject()
{
    return MakeOwner<JournalUiObject>();
}

}
