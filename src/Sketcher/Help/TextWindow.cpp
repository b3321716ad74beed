#include "Help/TextWindow.h"

#include "Model/UiText.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

TextWindow::TextWindow(const QString& title, const QString& html, const QSize& size,
                       QWidget* pParent)
    : QDialog(pParent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    auto* pText = new QTextBrowser;
    pText->setOpenExternalLinks(true);
    pText->setHtml(html);
    auto* pButtons = new QDialogButtonBox;
    QPushButton* pClose = pButtons->addButton("关闭"_tr, QDialogButtonBox::RejectRole);
    pClose->setDefault(true);
    connect(pButtons, &QDialogButtonBox::rejected, this, &TextWindow::close);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pText);
    pLayout->addWidget(pButtons);
    // On a small screen it leaves room for the window's frame.
    resize(size.boundedTo(pParent->screen()->availableSize() * 9 / 10));
}
