#include "Panes/JournalModel.h"

#include "Panes/RecordText.h"

#include "Journal/JournalFormat.h"

#include <algorithm>

using namespace vesk;

namespace
{

constexpr std::size_t MostRecords = 10000;

}

JournalModel::JournalModel(QObject* pParent) : QAbstractListModel(pParent)
{
    JournalManager::GetInstance().AddObserver(this);
}

JournalModel::~JournalModel()
{
    JournalManager::GetInstance().RemoveObserver(this);
}

void JournalModel::OnRecord(const JournalRecord& record)
{
    // A mark tells what a step has led to, not what the user did.
    if (std::holds_alternative<MarkRecord>(record.what))
        return;
    m_new.push_back(record);
    if (m_new.size() > MostRecords)
        m_new.pop_front();
}

void JournalModel::OnUiObject(const IJournalUiObject&, int) {}

void JournalModel::Refresh()
{
    if (m_new.empty())
        return;
    const std::size_t all = m_records.size() + m_new.size();
    const std::size_t surplus = std::min(m_records.size(), all - std::min(all, MostRecords));
    if (surplus > 0)
    {
        beginRemoveRows(QModelIndex(), 0, static_cast<int>(surplus) - 1);
        m_records.erase(m_records.begin(),
                        m_records.begin() + static_cast<std::ptrdiff_t>(surplus));
        endRemoveRows();
    }
    const int first = rowCount();
    beginInsertRows(QModelIndex(), first, first + static_cast<int>(m_new.size()) - 1);
    m_records.insert(m_records.end(), m_new.begin(), m_new.end());
    m_new.clear();
    endInsertRows();
}

QString JournalModel::GetLine(int row) const
{
    return QString::fromStdString(JournalFormat::ToLine(m_records[static_cast<std::size_t>(row)]));
}

int JournalModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

QVariant JournalModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole)
        return DescribeRecord(m_records[static_cast<std::size_t>(index.row())]);
    if (role == Qt::ToolTipRole)
        return GetLine(index.row());
    return {};
}
