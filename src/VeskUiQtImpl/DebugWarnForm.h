#pragma once

class QDialog;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QWidget;

/// The widgets of the dialog that shows a debug warning. Their Qt parents own them.
struct DebugWarnForm
{
    /// Creates all widgets on the dialog in tab order, so the first button gets the initial focus.
    /// That button is also the one Return clicks while no button has the focus.
    void Build(QDialog* pDialog);

    QLineEdit* pUserName = nullptr;
    QLineEdit* pPassword = nullptr;
    QPushButton* pReportBug = nullptr;
    QPushButton* pIgnore = nullptr;
    QPushButton* pIgnoreAll = nullptr;
    QPushButton* pDebug = nullptr;
    QTextEdit* pMessage = nullptr;
    QTextEdit* pFile = nullptr;
    QLineEdit* pLine = nullptr;
    QTextEdit* pFunction = nullptr;
    QLineEdit* pPerson = nullptr;
    QLineEdit* pDate = nullptr;

private:
    void BuildReport(QWidget* pDialog);
    void BuildButtons(QWidget* pDialog);
    void BuildInformation(QWidget* pDialog);
    void BuildFields(QWidget* pDialog);
};
