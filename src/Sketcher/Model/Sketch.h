#pragma once

#include "Model/Pen.h"
#include "Model/Shape.h"

#include <QObject>
#include <QUndoStack>

#include <string>
#include <utility>
#include <vector>

/// One shape of the drawing. Its id is never reused.
struct Entity
{
    int id = 0;
    Shape shape;
    Pen pen;
};

/// The drawing: entities in the order in which they were drawn, in millimetres, and a name.
///
/// Each change of entities is one undo step. The same changes result in the same sketch, bit for
/// bit.
class Sketch final : public QObject
{
    Q_OBJECT

public:
    Sketch();

    const std::vector<Entity>& GetEntities() const { return m_entities; }

    /// The entity with that id; null if there is none. Valid until the next change.
    const Entity* Find(int id) const;

    /// Draws a shape with the current pen and returns its id. Returns 0 and draws nothing if the
    /// shape is not drawable.
    int Add(const Shape& shape);

    /// The same for a line.
    int AddLine(const vesk::Vector3d& start, const vesk::Vector3d& end);

    /// Gives entities other shapes; their ids, order and pens stay. Returns false and makes no step
    /// if one of them does not exist, a shape is not drawable, or no shape differs.
    bool Replace(const std::vector<std::pair<int, Shape>>& shapes);
    bool CanReplace(const std::vector<std::pair<int, Shape>>& shapes) const;

    /// Returns false if there is no such entity.
    bool Erase(int id);

    /// Gives entities another style or colour. Returns false and makes no step if they all have it
    /// already or one of them does not exist.
    bool SetPen(const std::vector<int>& ids, int Pen::*part, int value);

    /// How the next entities are drawn. Setting it is not an undo step.
    const Pen& GetCurrentPen() const { return m_currentPen; }
    void SetCurrentPen(int Pen::*part, int value);

    bool CanUndo() const;

    /// Undoes the last change. Returns the id of the entity that appeared or disappeared, or of the
    /// first that changed; 0 if there was nothing to undo.
    int Undo();

    /// What the last Undo returned.
    int GetLastUndone() const { return m_lastUndone; }

    const std::wstring& GetName() const { return m_name; }

    /// Not an undo step.
    void SetName(const std::wstring& name);

    /// Starts a new drawing in the initial state; nothing can be undone.
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
