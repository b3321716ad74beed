#pragma once

#include <QObject>

#include <vector>

class Sketch;

/// The selected entities, in the order in which they were picked. An entity that leaves the
/// drawing, or whose layer is hidden or locked, leaves the selection.
class Selection final : public QObject
{
    Q_OBJECT

public:
    /// The sketch is not owned and outlives the selection.
    explicit Selection(const Sketch& sketch);

    const std::vector<int>& GetIds() const { return m_ids; }
    bool IsEmpty() const { return m_ids.empty(); }
    bool Contains(int id) const;

    /// Selects exactly these entities and records it. Returns false and changes nothing if one of
    /// them cannot be picked; selecting the same again has no effect.
    bool Select(const std::vector<int>& ids);

signals:
    void changed();

private:
    void OnSketchChanged();

    void Set(std::vector<int> ids);

    const Sketch& m_sketch;
    std::vector<int> m_ids;

    /// The same in ascending order, for searching.
    std::vector<int> m_ascending;
};
