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
    /// Makes all widgets on the dialog, in their order: the first button then has the focus. It is
    /// also the one that Return clicks while no button has.
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
