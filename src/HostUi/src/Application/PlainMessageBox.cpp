#include "HostUi/PlainMessageBox.h"

#include <QLabel>

namespace vesk
{

QMessageBox* MakePlainMessageBox(QWidget* pParent, QMessageBox::Icon icon, const QString& title,
                                 const QString& text, const QString& details)
{
    auto* pBox = new QMessageBox(icon, title, text, QMessageBox::NoButton, pParent);
    pBox->setInformativeText(details);
    for (QLabel* pLabel : pBox->findChildren<QLabel*>())
        pLabel->setTextFormat(Qt::PlainText);
    return pBox;
}

}
