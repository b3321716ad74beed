#pragma once

#include "Geometry/Vector3d.h"

#include <array>
#include <optional>
#include <vector>

class Sketch;
struct Entity;

namespace vesk
{
class IUiView;
}

/// Moves the cursor onto a point that the user means.
///
/// A point within 10 pixels of the cursor is caught. An end comes before all others, the grid after
/// all others; between them the nearest point wins.
class Snapper final
{
public:
    enum Kind
    {
        End,
        Middle,
        Centre,
        Intersection,
        Grid,
    };
    static constexpr int KindCount = 5;

    struct Caught
    {
        Kind kind;
        vesk::Vector3d point;
    };

    /// Only End is on at first. The sketch is not owned and outlives the snapper.
    explicit Snapper(const Sketch& sketch);

    bool IsOn(Kind kind) const { return m_isOn[kind]; }
    void SetOn(Kind kind, bool isOn) { m_isOn[kind] = isOn; }

    /// The point that the cursor means; the cursor's own when nothing is caught. Without a view
    /// nothing is.
    vesk::Vector3d Catch(const vesk::Vector3d& cursor, const vesk::IUiView* pView);

    /// What the last Catch caught.
    const std::optional<Caught>& GetCaught() const { return m_caught; }

    /// Forgets what was caught.
    void Release() { m_caught.reset(); }

private:
    std::optional<Caught> Find(const vesk::Vector3d& cursor, double reach, double gridStep) const;
    std::vector<const Entity*> GetNear(const vesk::Vector3d& cursor, double reach) const;

    const Sketch& m_sketch;
    std::array<bool, KindCount> m_isOn{};
    std::optional<Caught> m_caught;
};
