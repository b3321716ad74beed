#pragma once

#include "Journal/JournalManager.h"

#include <QAbstractListModel>

#include <deque>
#include <string>
#include <vector>

/// The records of the journal as rows of text, newest last. It keeps the newest 10,000; the file
/// has them all.
class JournalModel final : public QAbstractListModel, public vesk::IJournalObserver
{
    Q_OBJECT

public:
    /// Receives records from now on.
    explicit JournalModel(QObject* pParent);
    ~JournalModel() override;

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

    /// Adds rows for the records received since the last call.
    void Refresh();

    /// The record's line as in the file.
    QString GetLine(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::deque<vesk::JournalRecord> m_records;
    std::deque<vesk::JournalRecord> m_new;
};
