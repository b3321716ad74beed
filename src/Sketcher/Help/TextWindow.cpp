#include "Help/TextWindow.h"

#include "Model/UiText.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <utility>

TextWindow::TextWindow(Told title, Told html, const QSize& size, QWidget* pParent)
    : QDialog(pParent), m_title(std::move(title)), m_html(std::move(html)),
      m_pText(new QTextBrowser)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_pText->setOpenExternalLinks(true);
    auto* pButtons = new QDialogButtonBox;
    m_pClose = pButtons->addButton(QString(), QDialogButtonBox::RejectRole);
    m_pClose->setDefault(true);
    ShowTexts();
    connect(pButtons, &QDialogButtonBox::rejected, this, &TextWindow::close);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pText);
    pLayout->addWidget(pButtons);
    // On a small screen it leaves room for the window's frame.
    resize(size.boundedTo(pParent->screen()->availableSize() * 9 / 10));
}

void TextWindow::changeEvent(QEvent* pEvent)
{
    QDialog::changeEvent(pEvent);
    if (pEvent->type() == QEvent::LanguageChange)
        ShowTexts();
}

void TextWindow::ShowTexts()
{
    setWindowTitle(m_title());
    m_pText->setHtml(m_html());
    m_pClose->setText("关闭"_tr);
}
