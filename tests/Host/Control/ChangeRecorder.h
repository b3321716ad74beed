#pragma once

#include "Control/IControlDefinitionChangeEvent.h"
#include "Support/TestValues.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{

/// One change, as described by its arguments.
struct Change
{
    int type;
    int index;
    std::wstring caption;
    const IControlDefinition* pItem;
    bool isByUser;
};

/// Records the changes of one event; a function passed to Then runs once, after the next change.
class ChangeRecorder final : public IControlDefinitionChangeEventHandler
{
public:
    explicit ChangeRecorder(IControlDefinitionChangeEvent& event) { event.Add(this); }

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        m_changes.push_back({pArgs->GetType(), pArgs->GetIndex(), pArgs->GetItemCaption(),
                             pArgs->GetItemDefinition(), pArgs->IsChangeByUser()});
        if (m_then)
            std::exchange(m_then, nullptr)();
    }

    void Then(std::function<void()> action) { m_then = std::move(action); }
    const std::vector<Change>& GetChanges() const { return m_changes; }
    int GetCount() const { return static_cast<int>(m_changes.size()); }

private:
    std::vector<Change> m_changes;
    std::function<void()> m_then;
};

/// Columns that describe the change of a definition with items.
inline void AddItemChangeColumns()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("caption");
}

/// Verifies that the only change recorded is that of the row. Without an index it has no item.
inline void VerifyItemChange(const ChangeRecorder& recorder)
{
    QFETCH(int, type);
    QFETCH(int, index);
    QFETCH(QString, caption);

    QCOMPARE(recorder.GetCount(), 1);
    const Change& change = recorder.GetChanges().front();
    QCOMPARE(change.type, type);
    QCOMPARE(change.index, index);
    QCOMPARE(QString::fromStdWString(change.caption), caption);
    QCOMPARE(change.pItem != nullptr, index >= 0);
}

}
