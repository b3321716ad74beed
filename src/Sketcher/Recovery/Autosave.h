#pragma once

#include "Journal/JournalManager.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QThread>

#include <functional>
#include <memory>
#include <string>

class Sketch;

/// Writes a snapshot of the drawing beside the journal every few minutes, so that recovery does not
/// have to replay a long session. Never touches the user's own file.
///
/// A snapshot is taken after a step, while no action runs, and written in another thread. While
/// there is nothing to write, no timer runs.
class Autosave final : public QObject, public vesk::IJournalObserver
{
    Q_OBJECT

public:
    /// `journal` returns the path of the journal in use; empty for none, and then nothing is
    /// written. The sketch is not owned and outlives this.
    Autosave(const Sketch& sketch, std::function<QString()> journal);

    /// Waits for the snapshot that is being written.
    ~Autosave() override;

    /// Sets the time between two snapshots; 0, as at first, turns them off.
    void SetInterval(int minutes);

    /// Begins a snapshot of a drawing that has changed since the last one. Returns false if there
    /// is nothing to write, or while that is impossible.
    bool SaveNow();

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject&, int) override {}

signals:
    /// A snapshot was written.
    void saved(int record);

protected:
    void timerEvent(QTimerEvent* pEvent) override;

private:
    qint64 GetWaitMs() const;
    void Await();

    const Sketch& m_sketch;
    const std::function<QString()> m_journal;
    int m_minutes = 0;
    QElapsedTimer m_sinceLast;
    QBasicTimer m_due;
    std::unique_ptr<QThread> m_pWriting; ///< Writes, or wrote, the last snapshot.

    /// The last mark of the journal.
    int m_record = 0;
    std::string m_digest;

    /// Of the last snapshot.
    std::string m_savedDigest;
};
