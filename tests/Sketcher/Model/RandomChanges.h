#pragma once

#include "Model/Sketch.h"

#include <cmath>
#include <random>
#include <utility>
#include <vector>

/// Draws and changes anything in a small crowded drawing, with undo and redo; the same for the same
/// seed. Most coordinates are whole numbers, so that many distances are equal.
class RandomChanges final
{
public:
    /// The sketch is not owned.
    RandomChanges(Sketch& sketch, unsigned seed) : m_sketch(sketch), m_random(seed)
    {
        SketchContent content;
        content.layers = {Layer(), Layer{1, L"hidden"}, Layer{2, L"locked"}};
        content.lastLayerId = 2;
        m_sketch.Restore(content);
    }

    void Make()
    {
        const int kind = Below(20);
        if (kind < 9)
            m_sketch.Add(ShapesWithPens(1 + Below(4)), L"draw");
        else if (kind < 11)
            m_sketch.Add(ShapesWithPens(60), L"draw many");
        else if (kind < 13)
            m_sketch.Erase(SomeIds(1 + Below(5)));
        else if (kind < 15)
            m_sketch.Replace(SomeReplaced());
        else if (kind < 16)
            m_sketch.SetPen(SomeIds(4), &Pen::layer, Below(3));
        else if (kind < 17)
            ToggleLayer(1 + Below(2));
        else if (kind < 19)
            m_sketch.Undo();
        else
            m_sketch.Redo();
    }

    /// Not empty.
    int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    /// A point of the drawing, at times far beyond it.
    vesk::Vector3d Point()
    {
        if (Below(50) == 0)
            return {1e8 * (Below(3) - 1), 1e7, 0};
        if (Below(4) == 0)
            return {Number(), Number(), 0};
        return {1.0 * Below(100), 1.0 * Below(100), 0};
    }

private:
    double Number() { return std::uniform_real_distribution<>(0, 100)(m_random); }

    Shape AnyShape()
    {
        const vesk::Vector3d from = Point();
        const double size = 1 + Below(20);
        switch (Below(6))
        {
        case 0:
            return CircleShape{from, size};
        case 1:
            return CircleShape{from, size, vesk::Vector3d(1, 2, 3).normalized()};
        case 2:
            return FlatArc(from);
        case 3:
            return RectangleShape{{from, from + vesk::Vector3d(size, 0, 0),
                                   from + vesk::Vector3d(size, 5, 0),
                                   from + vesk::Vector3d(0, 5, 0)}};
        default:
            return LineShape{from, from + vesk::Vector3d(Below(30) - 15, Below(30) - 15, 0)};
        }
    }

    /// Its centre may be far from it.
    Shape FlatArc(const vesk::Vector3d& centre)
    {
        const double radius = 1 + Below(40);
        const double begin = Number();
        const double end = begin + 0.1 + Below(3);
        const auto at = [&](double angle) {
            return vesk::Vector3d(centre +
                                  radius * vesk::Vector3d(std::cos(angle), std::sin(angle), 0));
        };
        return ArcShape{centre, radius, at(begin), at(end)};
    }

    std::vector<Sketch::PenShape> ShapesWithPens(int count)
    {
        std::vector<Sketch::PenShape> shapes;
        while (static_cast<int>(shapes.size()) < count)
        {
            const Shape shape = AnyShape();
            if (IsDrawable(shape))
                shapes.emplace_back(shape, Pen{0, 0, 2, Below(6) < 4 ? 0 : 1 + Below(2)});
        }
        return shapes;
    }

    std::vector<int> SomeIds(int count)
    {
        std::vector<int> ids;
        const auto& entities = m_sketch.GetEntities();
        for (int i = 0; i < count && !entities.empty(); ++i)
            ids.push_back(entities[m_random() % entities.size()].id);
        return ids;
    }

    std::vector<std::pair<int, Shape>> SomeReplaced()
    {
        std::vector<std::pair<int, Shape>> shapes;
        for (const int id : SomeIds(1 + Below(5)))
            shapes.emplace_back(id, AnyShape());
        return shapes;
    }

    void ToggleLayer(int id)
    {
        Layer layer = *m_sketch.FindLayer(id);
        (id == 1 ? layer.isVisible : layer.isLocked) ^= true;
        m_sketch.SetLayer(layer);
    }

    Sketch& m_sketch;
    std::mt19937 m_random;
};
