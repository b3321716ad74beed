#pragma once

#include <QString>

namespace vesk
{
struct JournalRecord;
}

/// A journal record as one readable line.
QString DescribeRecord(const vesk::JournalRecord& record);
