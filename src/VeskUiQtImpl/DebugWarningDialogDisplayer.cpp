#include "VeskUiQtImpl/DebugWarningDialogDisplayer.h"

#include "Foundation/IApplication.h"
#include "Foundation/Platform.h"
#include "VeskUiQtImpl/DebugWarnDialog.h"
#include "VeskUiQtImpl/Platform/DebuggerBreak.h"
#include "View/IUiManager.h"
#include "Warnings/Assert.h"

#include "HostUi/QtText.h"

#include <QScreen>

namespace vesk
{
namespace
{

constexpr char Condition[] = R"(false && "A DBG_WARN is triggered.")";

/// The fixed line number by which the report of a warning without an application is recognised.
constexpr int ConditionLine = 58;

QWidget* FindMainWindow()
{
    const IApplication* pApplication = IApplication::Get();
    const IApplicationWindow* pWindow =
        pApplication != nullptr ? pApplication->GetMainWindow() : nullptr;
    return pWindow != nullptr ? QWidget::find(pWindow->GetWindowId()) : nullptr;
}

/// Centres the dialog over a window that fills its screen, or will do so once the window manager
/// has handled the request; until then the position of the window is a different one. For any other
/// window, Qt positions the dialog.
void PlaceOver(QWidget* pWindow, QWidget& dialog)
{
    if (pWindow == nullptr || !(pWindow->isMaximized() || pWindow->isFullScreen()))
        return;
    QRect place(QPoint(), dialog.size());
    place.moveCenter(pWindow->screen()->availableGeometry().center());
    dialog.move(place.topLeft());
}

/// If no dialog can be shown, only the fact that a warning was raised is reported.
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

    QWidget* pMainWindow = FindMainWindow();
    DebugWarnDialog dialog(pMainWindow);
    dialog.SetInfo(file, line, function, message, person, date);
    PlaceOver(pMainWindow, dialog);
    const int answer = dialog.exec();
    if (answer == DebugWarnDialog::DebuggerWanted)
        BreakIntoDebugger();
    return answer != DebugWarnDialog::AllIgnored;
}

}
