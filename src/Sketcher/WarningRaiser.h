#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <thread>

class QWidget;

/// Raises debug warnings, for developers who want to see what becomes of them.
class WarningRaiser final : public QObject
{
    Q_OBJECT

public:
    /// The kinds that can be asked for: "plain", one; "paint", one in each paint of a view that is
    /// painted all the time; "nested", one while the first is shown; "thread", one from another
    /// thread; "loop", 10,000 at one place.
    static const QStringList& GetKinds();

    /// Raises warnings of a kind as soon as the event loop runs. The view is not owned and outlives
    /// the raiser.
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
