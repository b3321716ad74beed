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

/// Snaps the cursor to the point that the user means.
///
/// The cursor snaps to points within 10 pixels. Ends take precedence over all other points, and the
/// grid comes last; among the rest the nearest point wins. Hidden layers give no points.
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

    /// Initially only End is on. The sketch is not owned and outlives the snapper.
    explicit Snapper(const Sketch& sketch);

    bool IsOn(Kind kind) const { return m_isOn[kind]; }
    void SetOn(Kind kind, bool isOn) { m_isOn[kind] = isOn; }

    /// The snapped point, or the cursor itself if there is none. Without a view there is none.
    vesk::Vector3d Catch(const vesk::Vector3d& cursor, const vesk::IUiView* pView);

    /// The point to which the last Catch snapped.
    const std::optional<Caught>& GetCaught() const { return m_caught; }

    /// Forgets the snapped point.
    void Release() { m_caught.reset(); }

private:
    std::optional<Caught> Find(const vesk::Vector3d& cursor, double reach, double gridStep) const;
    std::vector<const Entity*> GetAround(const vesk::Vector3d& cursor, double reach) const;

    const Sketch& m_sketch;
    std::array<bool, KindCount> m_isOn{};
    std::optional<Caught> m_caught;
};
