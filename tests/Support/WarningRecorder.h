#pragma once

#include "Warnings/DebugMessageMgr.h"

#include <QString>

#include <string>
#include <vector>

namespace vesk::test
{

/// Records every debug warning during its lifetime; any that the test did not consume fail the test
/// at the end.
class WarningRecorder final : public IDebugWarningObserver
{
public:
    WarningRecorder();
    ~WarningRecorder() override;
    WarningRecorder(const WarningRecorder&) = delete;
    WarningRecorder& operator=(const WarningRecorder&) = delete;

    void OnDebugWarning(const DebugWarning& warning) override;

    /// Consumes the oldest warning left if it says exactly this in the name of `function`, and its
    /// site consists of a source file, a line, a person and a date.
    bool Take(const std::wstring& message, const std::string& function);

    /// Consumes and returns the oldest warning left; an empty one if there is none.
    DebugWarning TakeAny();

    /// The warnings not consumed yet, in readable form.
    QString Describe() const;

    bool IsEmpty() const { return m_warnings.empty(); }

private:
    std::vector<DebugWarning> m_warnings;
};

}

/// Requires that the oldest warning says exactly `message` in the name of `function`.
#define EXPECT_WARNING(recorder, message, function)                                                \
    QVERIFY2((recorder).Take(message, function), qPrintable((recorder).Describe()))
