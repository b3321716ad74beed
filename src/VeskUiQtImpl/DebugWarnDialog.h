#pragma once

#include "VeskUiQtImpl/DebugWarnForm.h"

#include <QDialog>

#include <string>

/// Shows one debug warning and asks what to do about it.
///
/// Nothing in it may raise a warning, since showing that one would need another dialog.
class DebugWarnDialog final : public QDialog
{
    Q_OBJECT

public:
    /// What the user chose; closing the window ignores the warning once.
    enum Answer
    {
        Ignored = 0,
        AllIgnored = 1,
        BugReported = 2,
        DebuggerWanted = 3,
    };

    explicit DebugWarnDialog(QWidget* pParent);
    ~DebugWarnDialog() override;

    /// Fills in the form. A published program shows a single button and hides person and date.
    void SetInfo(const std::string& file, int line, const std::string& function,
                 const std::wstring& message, const std::wstring& person, const std::wstring& date);

    /// Copies the typed user name and password. Returns true if neither is empty.
    bool GetUserNameAndPassword(std::wstring& userName, std::wstring& password) const;

private slots:
    void IgnoreButtonPushed();
    void IgnoreAllButtonPushed();
    void ReportBugButtonPushed();
    void DebugButtonPushed();

private:
    void Publish();

    DebugWarnForm m_form;
};
