#include "Panes/RefusalMessage.h"

#include <QLabel>

QLabel* MakeRefusalMessage(const QString& name)
{
    auto* pMessage = new QLabel;
    pMessage->setObjectName(name);
    pMessage->setTextFormat(Qt::PlainText);
    pMessage->setWordWrap(true);
    pMessage->setMargin(4);
    pMessage->setStyleSheet(
        QStringLiteral("background: #992f2c; color: white; border-radius: 4px"));
    pMessage->hide();
    return pMessage;
}
