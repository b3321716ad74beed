#pragma once

#include "Model/Area.h"

#include <optional>
#include <vector>

class Sketch;
class Selection;
struct Entity;

/// The entities to be painted in an area. Keeps what it found, because an area is painted in parts.
class VisibleEntities final
{
public:
    /// Both are not owned and outlive this.
    VisibleEntities(const Sketch& sketch, const Selection& selection);

    /// The drawing or the selection is another one.
    void Forget() { m_area.reset(); }

    /// Those with that id or a greater one, in drawing order. Contains all that are in the area.
    /// Valid until the drawing changes or another area is asked for.
    std::vector<const Entity*>::const_iterator From(int id, const Area& area);
    std::vector<const Entity*>::const_iterator End() const { return m_entities.end(); }

    /// The selected among all in the area, in the order in which they were selected. As valid.
    const std::vector<const Entity*>& GetSelected(const Area& area);

private:
    bool IsFound(int id, const Area& area) const;
    void Find(int id, const Area& area);

    const Sketch& m_sketch;
    const Selection& m_selection;
    std::optional<Area> m_area; ///< Nothing until something was found.
    int m_first = 0;            ///< The least id that m_entities may contain.
    std::vector<const Entity*> m_entities;
    std::optional<std::vector<const Entity*>> m_selected; ///< Nothing until asked for.
};
