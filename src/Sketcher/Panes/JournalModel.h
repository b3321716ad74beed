#pragma once

#include "Journal/JournalManager.h"

#include <QAbstractListModel>

#include <deque>
#include <string>
#include <vector>

/// The records of the journal as rows of text, the newest last. It keeps the newest 10,000; the
/// file has them all.
class JournalModel final : public QAbstractListModel, public vesk::IJournalObserver
{
    Q_OBJECT

public:
    /// Hears of records from now on.
    explicit JournalModel(QObject* pParent);
    ~JournalModel() override;

    void OnRecord(const vesk::JournalRecord& record) override;
    void OnUiObject(const vesk::IJournalUiObject& object, int kind) override;

    /// Makes rows of the records heard of since the last time.
    void Refresh();

    /// The line that stands in the file.
    QString GetLine(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::deque<vesk::JournalRecord> m_records;
    std::deque<vesk::JournalRecord> m_new;
};
