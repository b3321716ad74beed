#pragma once

#include <QObject>

#include <vector>

class Sketch;

/// The entities that are selected, in the order in which they were picked. An entity that leaves
/// the drawing leaves the selection.
class Selection final : public QObject
{
    Q_OBJECT

public:
    /// The sketch is not owned and outlives the selection.
    explicit Selection(const Sketch& sketch);

    const std::vector<int>& GetIds() const { return m_ids; }
    bool IsEmpty() const { return m_ids.empty(); }
    bool Contains(int id) const;

    /// Selects these entities and no others, and records it. False, and nothing changes, when one
    /// of them is not in the drawing; the same selection again is nothing.
    bool Select(const std::vector<int>& ids);

signals:
    void changed();

private:
    void OnSketchChanged();

    void Set(std::vector<int> ids);

    const Sketch& m_sketch;
    std::vector<int> m_ids;

    /// The same in ascending order, to be searched.
    std::vector<int> m_ascending;
};
