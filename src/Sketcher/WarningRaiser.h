#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <thread>

class QWidget;

/// Raises debug warnings for developers who want to see how they are handled.
class WarningRaiser final : public QObject
{
    Q_OBJECT

public:
    /// The supported kinds: "plain", one; "paint", one in each paint event of a view that is
    /// repainted continuously; "nested", one while the first is shown; "thread", one from another
    /// thread; "loop", 10,000 from one site.
    static const QStringList& GetKinds();

    /// Raises warnings of that kind as soon as the event loop runs. The view is not owned and
    /// outlives the raiser.
    WarningRaiser(const QString& kind, QWidget& view);
    ~WarningRaiser() override;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void Raise();

    QString m_kind;
    QWidget& m_view;
    std::thread m_thread;
};
