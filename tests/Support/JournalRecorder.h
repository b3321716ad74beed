#pragma once

#include "Journal/JournalManager.h"

#include <QObject>

#include <vector>

namespace vesk::test
{

/// Records what is written to the journal during its lifetime.
class JournalRecorder final : public IJournalObserver
{
public:
    struct UiObject
    {
        QObject* pObject;
        int kind;
    };

    JournalRecorder();
    ~JournalRecorder() override;
    JournalRecorder(const JournalRecorder&) = delete;
    JournalRecorder& operator=(const JournalRecorder&) = delete;

    void OnRecord(const JournalRecord& record) override;
    void OnUiObject(const IJournalUiObject& object, int kind) override;

    const std::vector<CommandRecord>& GetCommands() const { return m_commands; }
    const std::vector<UiObject>& GetUiObjects() const { return m_uiObjects; }

private:
    std::vector<CommandRecord> m_commands;
    std::vector<UiObject> m_uiObjects;
};

}
