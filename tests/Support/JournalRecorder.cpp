#include "Support/JournalRecorder.h"

#include "Journal/IJournalUiObject.h"

namespace vesk::test
{

JournalRecorder::JournalRecorder()
{
    JournalManager::GetInstance().AddObserver(this);
}

JournalRecorder::~JournalRecorder()
{
    JournalManager::GetInstance().RemoveObserver(this);
}

void JournalRecorder::OnRecord(const JournalRecord& record)
{
    if (const auto* pCommand = std::get_if<CommandRecord>(&record.what))
        m_commands.push_back(*pCommand);
}

void JournalRecorder::OnUiObject(const IJournalUiObject& object, int kind)
{
    const auto* ppObject = std::any_cast<QObject*>(&object.GetUiObject());
    m_uiObjects.push_back({ppObject != nullptr ? *ppObject : nullptr, kind});
}

}
