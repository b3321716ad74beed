#pragma once

#include <QDialog>

#include <functional>

class QPushButton;
class QTextBrowser;

/// A window with a text that can be selected and copied; Escape closes it. It deletes itself when
/// it is closed.
class TextWindow final : public QDialog
{
    Q_OBJECT

public:
    /// Tells a text in the user's language; asked again when that changes.
    using Told = std::function<QString()>;

    /// The text is HTML, with links that open in the desktop's browser.
    TextWindow(Told title, Told html, const QSize& size, QWidget* pParent);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void ShowTexts();

    const Told m_title;
    const Told m_html;
    QTextBrowser* m_pText;
    QPushButton* m_pClose;
};
