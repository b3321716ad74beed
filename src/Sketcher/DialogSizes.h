#pragma once

#include <QHash>
#include <QObject>
#include <QSize>
#include <QString>

/// Keeps the dialogs of the program within their screen and gives each, by its object name, the
/// size that it had when it was last closed.
class DialogSizes final : public QObject
{
public:
    DialogSizes();

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    QHash<QString, QSize> m_sizes;
};
