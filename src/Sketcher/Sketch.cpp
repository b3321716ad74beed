#include "Sketch.h"

#include "Geometry/Constants.h"

#include <QUndoCommand>

#include <algorithm>
#include <cstddef>

using vesk::Constants;
using vesk::Vector3d;

/// A change of one entity.
class Sketch::Step : public QUndoCommand
{
public:
    Step(Sketch& sketch, int entityId) : m_sketch(sketch), m_entityId(entityId) {}

    int GetEntityId() const { return m_entityId; }

protected:
    std::vector<Entity>& Entities() { return m_sketch.m_entities; }

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

Sketch::Sketch() : m_name(L"未命名")
{
    connect(&m_steps, &QUndoStack::indexChanged, this, &Sketch::changed);
}

const Entity* Sketch::Find(int id) const
{
    const auto found = std::find_if(m_entities.begin(), m_entities.end(),
                                    [id](const Entity& entity) { return entity.id == id; });
    return found != m_entities.end() ? &*found : nullptr;
}

int Sketch::AddLine(const Vector3d& start, const Vector3d& end)
{
    const double length = (end - start).norm();
    if (!(length >= Constants::MIN_MODEL_SIZE && length <= Constants::MAX_MODEL_SIZE))
        return 0;
    m_steps.push(new AddStep(*this, Entity{++m_lastId, start, end}));
    return m_lastId;
}

bool Sketch::Erase(int id)
{
    const Entity* pEntity = Find(id);
    if (pEntity == nullptr)
        return false;
    m_steps.push(new EraseStep(*this, *pEntity, pEntity - m_entities.data()));
    return true;
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
