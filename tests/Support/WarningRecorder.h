#pragma once

#include "Warnings/DebugMessageMgr.h"

#include <QString>

#include <string>
#include <vector>

namespace vesk::test
{

/// Hears every debug warning while it lives; what the test did not take fails the test at the end.
class WarningRecorder final : public IDebugWarningObserver
{
public:
    WarningRecorder();
    ~WarningRecorder() override;
    WarningRecorder(const WarningRecorder&) = delete;
    WarningRecorder& operator=(const WarningRecorder&) = delete;

    void OnDebugWarning(const DebugWarning& warning) override;

    /// Takes the oldest warning not taken yet if it says exactly this in the name of `function`,
    /// and tells a source file, a line, a person and a day as its place.
    bool Take(const std::wstring& message, const std::string& function);

    /// The oldest warning not taken yet, which is thereby taken; an empty one when there is none.
    DebugWarning TakeAny();

    /// What was not taken yet, for people.
    QString Describe() const;

    bool IsEmpty() const { return m_warnings.empty(); }

private:
    std::vector<DebugWarning> m_warnings;
};

}

/// Requires that the oldest warning says exactly `message` in the name of `function`.
#define EXPECT_WARNING(recorder, message, function)                                                \
    QVERIFY2((recorder).Take(message, function), qPrintable((recorder).Describe()))
