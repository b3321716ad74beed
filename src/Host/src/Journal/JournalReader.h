#pragma once

#include "Journal/JournalRecord.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace vesk
{

/// Reads one line of a journal.
class JournalReader
{
public:
    /// `line` must live as long as this.
    explicit JournalReader(const std::string& line) : m_text(line) {}

    /// Reads the line. False if it is not a record.
    bool Read();

    /// Valid after Read; may be moved from.
    JournalRecord& GetRecord() { return m_record; }

    /// Why the line is not a record, in one sentence.
    const std::string& GetError() const { return m_error; }

private:
    using Json = nlohmann::ordered_json;

    bool ReadKind();
    bool ReadCommand();
    bool ReadPoint();
    bool ReadValue();
    bool ReadSelection();
    bool ReadProperty();
    bool ReadUndo();
    bool ReadRedo();
    bool ReadMark();
    bool ReadClose();
    bool ReadHeader();
    bool ReadEnd();
    bool CheckNumber();

    /// Each removes a member from the line and reads it. False if it is missing or of another type.
    bool TakeText(const char* key, std::string& text);
    bool TakeText(const char* key, std::wstring& text);
    bool TakeInteger(const char* key, int& integer);
    bool TakeIntegers(const char* key, std::vector<int>& integers);
    bool TakeReal(const char* key, double& real);
    bool TakePoint(const char* key, Vector3d& point);
    bool TakeField(const char* key, InputState& field);
    bool TakeParameters(const char* key, CommandParameters& parameters);

    /// Removes a member from the line; null, with the error set, if it is missing.
    const Json* Take(const char* key);
    bool Has(const char* key) const { return m_line.contains(key); }
    bool Fail(const std::string& error);

    const std::string& m_text;
    Json m_line;
    Json m_taken;
    JournalRecord m_record;
    std::string m_error;
};

}
