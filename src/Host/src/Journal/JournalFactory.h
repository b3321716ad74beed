#pragma once

#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"
#include "Journal/NqIJournalFactory.h"

namespace vesk
{

/// Creates the journal's own records: "JournalCommandData".
class JournalFactory final : public NqIJournalFactory
{
public:
    OwnerPtr<IJournalData> CreateJournalData(const std::wstring& className) override;
    OwnerPtr<IJournalUiObject> CreateJournalUiObject() override;
};

}
