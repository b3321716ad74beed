#include "Support/WarningRecorder.h"

#include "Support/TestValues.h"

#include <QRegularExpression>

namespace vesk::test
{
namespace
{

bool Is(const char* pattern, const QString& text)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

bool HasPlace(const DebugWarning& warning)
{
    return Is(R"(.*\w\.(cpp|h))", QString::fromStdString(warning.file)) && warning.line > 0 &&
           Is("vesk-[a-z]+", QString::fromStdWString(warning.person)) &&
           Is(R"(\d{4}-\d\d-\d\d)", QString::fromStdWString(warning.date));
}

QString DescribePlace(const DebugWarning& warning)
{
    return QStringLiteral(" (%1:%2, %3, %4)")
        .arg(QString::fromStdString(warning.file))
        .arg(warning.line)
        .arg(QString::fromStdWString(warning.person), QString::fromStdWString(warning.date));
}

}

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
        m_warnings.front().function != function || !HasPlace(m_warnings.front()))
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
                QString::fromStdWString(warning.message) + DescribePlace(warning) + "; ";
    return text.isEmpty() ? QStringLiteral("no warning") : text;
}

}
