#pragma once

#include "Model/Pen.h"
#include "Model/Shape.h"

#include <QObject>
#include <QUndoStack>

#include <string>
#include <utility>
#include <vector>

/// One shape of the drawing. Its id is never given to another entity.
struct Entity
{
    int id = 0;
    Shape shape;
    Pen pen;
};

/// The drawing: entities in the order in which they were drawn, in millimetres, and a name.
///
/// Each change of an entity is one undo step. A sketch made by the same changes is the same to the
/// last bit.
class Sketch final : public QObject
{
    Q_OBJECT

public:
    Sketch();

    const std::vector<Entity>& GetEntities() const { return m_entities; }

    /// The entity with that id, null when there is none. Valid until the next change.
    const Entity* Find(int id) const;

    /// Draws a shape with the current pen and returns its id; 0, and nothing is drawn, when it is
    /// not drawable.
    int Add(const Shape& shape);

    /// The same with a line.
    int AddLine(const vesk::Vector3d& start, const vesk::Vector3d& end);

    /// Gives entities other shapes; their ids, places and pens stay. False, and no step is made,
    /// when one of them does not exist, a shape is not drawable, or none of them differs.
    bool Replace(const std::vector<std::pair<int, Shape>>& shapes);
    bool CanReplace(const std::vector<std::pair<int, Shape>>& shapes) const;

    /// False when there is no such entity.
    bool Erase(int id);

    /// Gives entities another style or colour. False, and no step is made, when they are all drawn
    /// so already or one of them does not exist.
    bool SetPen(const std::vector<int>& ids, int Pen::*part, int value);

    /// How the next entities are drawn. Setting it is not an undo step.
    const Pen& GetCurrentPen() const { return m_currentPen; }
    void SetCurrentPen(int Pen::*part, int value);

    bool CanUndo() const;

    /// Takes the last change back. The id of the entity that came or went, or of the first that was
    /// changed; 0 when there was none.
    int Undo();

    /// What the last Undo returned.
    int GetLastUndone() const { return m_lastUndone; }

    const std::wstring& GetName() const { return m_name; }

    /// Not an undo step.
    void SetName(const std::wstring& name);

    /// Makes a new drawing of it, as at first: nothing can be undone.
    void Clear();

signals:
    void changed();

private:
    class Step;
    class AddStep;
    class EraseStep;
    class PenStep;
    class ShapeStep;

    Entity* FindEntity(int id);

    std::vector<Entity> m_entities;
    std::wstring m_name;
    Pen m_currentPen;
    QUndoStack m_steps;
    int m_lastId = 0;
    int m_lastUndone = 0;
};
