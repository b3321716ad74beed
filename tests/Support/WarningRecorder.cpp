#include "Support/WarningRecorder.h"

#include "Support/TestValues.h"

namespace vesk::test
{

WarningRecorder::WarningRecorder()
{
    DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this);
}

WarningRecorder::~WarningRecorder()
{
    DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this);
    if (!m_warnings.empty())
        QTest::qFail(qPrintable("unexpected warnings: " + Describe()), __FILE__, __LINE__);
}

void WarningRecorder::OnDebugWarning(const DebugWarning& warning)
{
    m_warnings.push_back(warning);
}

bool WarningRecorder::Take(const std::wstring& message, const std::string& function)
{
    if (m_warnings.empty() || m_warnings.front().message != message ||
        m_warnings.front().function != function)
        return false;
    m_warnings.erase(m_warnings.begin());
    return true;
}

DebugWarning WarningRecorder::TakeAny()
{
    if (m_warnings.empty())
        return {};
    DebugWarning warning = m_warnings.front();
    m_warnings.erase(m_warnings.begin());
    return warning;
}

QString WarningRecorder::Describe() const
{
    QString text;
    for (const DebugWarning& warning : m_warnings)
        text += QString::fromStdString(warning.function) + ": " +
                QString::fromStdWString(warning.message) + "; ";
    return text.isEmpty() ? QStringLiteral("no warning") : text;
}

}
