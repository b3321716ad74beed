#include "DebugWarningDialogDisplayer.h"

#include "DebugWarnDialog.h"
#include "Foundation/Assert.h"
#include "Foundation/IApplication.h"
#include "Foundation/Platform.h"
#include "Platform/DebuggerBreak.h"
#include "View/IUiManager.h"

#include <HostUi/QtText.h>

namespace vesk
{
namespace
{

constexpr char Condition[] = R"(false && "A DBG_WARN is triggered.")";

/// By this line the report of a warning without an application is known.
constexpr int ConditionLine = 58;

QWidget* FindMainWindow()
{
    const IApplication* pApplication = IApplication::Get();
    const IApplicationWindow* pWindow =
        pApplication != nullptr ? pApplication->GetMainWindow() : nullptr;
    return pWindow != nullptr ? QWidget::find(pWindow->GetWindowId()) : nullptr;
}

/// Where no dialog can be shown the fact alone is told.
void ReportWithoutApplication()
{
    if (IsAssertEnabled())
        AssertHelper::GetInstance()->Assert(ToWide(QString::fromUtf8(Condition)),
                                            ToWide(QString::fromUtf8(__FILE__)), ConditionLine);
    else
        DumpAssertToLog(Condition, __FILE__, ConditionLine,
                        "vesk::DebugWarningDialogDisplayer::Display");
}

}

DebugWarningDialogDisplayer::~DebugWarningDialogDisplayer() = default;

bool DebugWarningDialogDisplayer::Display(const std::string& file, int line,
                                          const std::string& function, const std::wstring& message,
                                          const std::wstring& person, const std::wstring& date)
{
    if (!Platform::IsApplicationConstructed())
    {
        ReportWithoutApplication();
        return true;
    }

    DebugWarnDialog dialog(FindMainWindow());
    dialog.SetInfo(file, line, function, message, person, date);
    const int answer = dialog.exec();
    if (answer == DebugWarnDialog::DebuggerWanted)
        BreakIntoDebugger();
    return answer != DebugWarnDialog::AllIgnored;
}

}
