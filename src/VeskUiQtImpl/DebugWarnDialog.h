#pragma once

#include "VeskUiQtImpl/DebugWarnForm.h"

#include <QDialog>

#include <string>

/// Shows one debug warning and asks what is to be done about it.
///
/// Nothing in it may raise a warning: it would have to be shown in turn.
class DebugWarnDialog final : public QDialog
{
    Q_OBJECT

public:
    /// What the user chose; closing the window is to ignore the warning once.
    enum Answer
    {
        Ignored = 0,
        AllIgnored = 1,
        BugReported = 2,
        DebuggerWanted = 3,
    };

    explicit DebugWarnDialog(QWidget* pParent);
    ~DebugWarnDialog() override;

    /// Fills the form. In a published program there is one button left, and nobody's name.
    void SetInfo(const std::string& file, int line, const std::string& function,
                 const std::wstring& message, const std::wstring& person, const std::wstring& date);

    /// Copies what was typed as user name and password. True when neither is empty.
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
