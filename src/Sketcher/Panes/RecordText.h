#pragma once

#include <QString>

namespace vesk
{
struct JournalRecord;
}

/// A journal record in one line, for its reader.
QString DescribeRecord(const vesk::JournalRecord& record);
