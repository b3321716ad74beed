#include "Model/Sketch.h"

#include <QUndoCommand>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{

constexpr wchar_t NewName[] = L"未命名";

}

/// A change of entities, identified by the id of the first.
class Sketch::Step : public QUndoCommand
{
public:
    Step(Sketch& sketch, int entityId) : m_sketch(sketch), m_entityId(entityId) {}

    int GetEntityId() const { return m_entityId; }

protected:
    std::vector<Entity>& Entities() { return m_sketch.m_entities; }
    Entity& Get(int id) { return *m_sketch.FindEntity(id); }

private:
    Sketch& m_sketch;
    int m_entityId;
};

class Sketch::AddStep final : public Step
{
public:
    AddStep(Sketch& sketch, const Entity& entity) : Step(sketch, entity.id), m_entity(entity) {}

    void redo() override { Entities().push_back(m_entity); }
    void undo() override { Entities().pop_back(); }

private:
    Entity m_entity;
};

class Sketch::EraseStep final : public Step
{
public:
    EraseStep(Sketch& sketch, const Entity& entity, std::ptrdiff_t place)
        : Step(sketch, entity.id), m_entity(entity), m_place(place)
    {}

    void redo() override { Entities().erase(Entities().begin() + m_place); }
    void undo() override { Entities().insert(Entities().begin() + m_place, m_entity); }

private:
    Entity m_entity;
    std::ptrdiff_t m_place;
};

class Sketch::PenStep final : public Step
{
public:
    PenStep(Sketch& sketch, const std::vector<int>& ids, int Pen::*part, int value)
        : Step(sketch, ids.front()), m_part(part), m_value(value)
    {
        for (const int id : ids)
            m_before.emplace_back(id, Get(id).pen.*part);
    }

    void redo() override
    {
        for (const auto& [id, before] : m_before)
            Get(id).pen.*m_part = m_value;
    }

    void undo() override
    {
        for (const auto& [id, before] : m_before)
            Get(id).pen.*m_part = before;
    }

private:
    int Pen::*m_part;
    int m_value;
    std::vector<std::pair<int, int>> m_before;
};

class Sketch::ShapeStep final : public Step
{
public:
    ShapeStep(Sketch& sketch, const std::vector<std::pair<int, Shape>>& shapes)
        : Step(sketch, shapes.front().first), m_others(shapes)
    {}

    void redo() override
    {
        for (auto& other : m_others)
            Exchange(other);
    }

    void undo() override
    {
        // In reverse, so that an entity listed twice ends up with its original shape.
        for (auto other = m_others.rbegin(); other != m_others.rend(); ++other)
            Exchange(*other);
    }

private:
    void Exchange(std::pair<int, Shape>& other)
    {
        other.second = std::exchange(Get(other.first).shape, other.second);
    }

    /// The shapes to swap with the entities' current ones.
    std::vector<std::pair<int, Shape>> m_others;
};

Sketch::Sketch() : m_name(NewName)
{
    connect(&m_steps, &QUndoStack::indexChanged, this, &Sketch::changed);
}

const Entity* Sketch::Find(int id) const
{
    // Ids ascend in drawing order, and an undo restores an entity at its old position.
    const auto found =
        std::lower_bound(m_entities.begin(), m_entities.end(), id,
                         [](const Entity& entity, int sought) { return entity.id < sought; });
    return found != m_entities.end() && found->id == id ? &*found : nullptr;
}

Entity* Sketch::FindEntity(int id)
{
    const Entity* pEntity = Find(id);
    return pEntity != nullptr ? &m_entities[static_cast<std::size_t>(pEntity - m_entities.data())]
                              : nullptr;
}

int Sketch::Add(const Shape& shape)
{
    if (!IsDrawable(shape))
        return 0;
    m_steps.push(new AddStep(*this, Entity{++m_lastId, shape, m_currentPen}));
    return m_lastId;
}

int Sketch::AddLine(const vesk::Vector3d& start, const vesk::Vector3d& end)
{
    return Add(LineShape{start, end});
}

bool Sketch::CanReplace(const std::vector<std::pair<int, Shape>>& shapes) const
{
    const auto isPossible = [this](const auto& next) {
        return Find(next.first) != nullptr && IsDrawable(next.second);
    };
    const auto isOther = [this](const auto& next) {
        return !(Find(next.first)->shape == next.second);
    };
    return std::all_of(shapes.begin(), shapes.end(), isPossible) &&
           std::any_of(shapes.begin(), shapes.end(), isOther);
}

bool Sketch::Replace(const std::vector<std::pair<int, Shape>>& shapes)
{
    const bool isChange = CanReplace(shapes);
    if (isChange)
        m_steps.push(new ShapeStep(*this, shapes));
    return isChange;
}

bool Sketch::Erase(int id)
{
    const Entity* pEntity = Find(id);
    if (pEntity == nullptr)
        return false;
    m_steps.push(new EraseStep(*this, *pEntity, pEntity - m_entities.data()));
    return true;
}

bool Sketch::SetPen(const std::vector<int>& ids, int Pen::*part, int value)
{
    const bool isKnown =
        std::all_of(ids.begin(), ids.end(), [this](int id) { return Find(id) != nullptr; });
    const bool isChange = isKnown && std::any_of(ids.begin(), ids.end(), [&](int id) {
                              return Find(id)->pen.*part != value;
                          });
    if (isChange)
        m_steps.push(new PenStep(*this, ids, part, value));
    return isChange;
}

void Sketch::SetCurrentPen(int Pen::*part, int value)
{
    if (m_currentPen.*part == value)
        return;
    m_currentPen.*part = value;
    emit changed();
}

bool Sketch::CanUndo() const
{
    return m_steps.canUndo();
}

int Sketch::Undo()
{
    m_lastUndone = 0;
    if (const QUndoCommand* pStep = m_steps.command(m_steps.index() - 1))
        m_lastUndone = static_cast<const Step*>(pStep)->GetEntityId();
    m_steps.undo();
    return m_lastUndone;
}

void Sketch::SetName(const std::wstring& name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit changed();
}

void Sketch::Clear()
{
    m_entities.clear();
    m_name = NewName;
    m_currentPen = {};
    m_lastId = 0;
    m_lastUndone = 0;
    m_steps.clear();
    emit changed();
}
