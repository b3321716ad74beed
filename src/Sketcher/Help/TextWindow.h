#pragma once

#include <QDialog>

/// A window with a text that can be selected and copied; Escape closes it. It deletes itself when
/// it is closed.
class TextWindow final : public QDialog
{
    Q_OBJECT

public:
    /// The text is HTML, with links that open in the desktop's browser.
    TextWindow(const QString& title, const QString& html, const QSize& size, QWidget* pParent);
};
