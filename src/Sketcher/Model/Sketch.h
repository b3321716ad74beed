#pragma once

#include "Model/Digest.h"
#include "Model/EntityIndex.h"
#include "Model/RecentChanges.h"
#include "Model/SketchChange.h"
#include "Model/SketchContent.h"
#include "Model/SketchInsertion.h"
#include "Model/UiText.h"

#include <QObject>
#include <QUndoStack>

#include <string>
#include <utility>
#include <vector>

/// The drawing: entities in the order in which they were drawn, in millimetres, layers and a name.
///
/// Each change of entities, layers or the name is one undo step, which has a name. Entities on a
/// locked layer cannot be changed. The same changes result in the same sketch, bit for bit.
class Sketch final : public QObject
{
    Q_OBJECT

public:
    /// A shape to be drawn with that pen; its layer exists.
    using PenShape = std::pair<Shape, Pen>;

    Sketch();

    const std::vector<Entity>& GetEntities() const { return m_content.entities; }

    /// The entity with that id; null if there is none. Valid until the next change.
    const Entity* Find(int id) const;

    /// The entities whose outline or centre may be in an area or on its edge, in drawing order,
    /// whatever their layers: all that are, and few others. Does not look at the entities far from
    /// it. Valid until the next change.
    std::vector<const Entity*> FindIn(const Area& area) const;

    /// Draws a shape with the current pen and returns its id. Returns 0 and draws nothing if the
    /// shape is not drawable.
    int Add(const Shape& shape);

    /// The same for a line.
    int AddLine(const vesk::Vector3d& start, const vesk::Vector3d& end);

    /// Draws shapes in one step of that name and returns their ids in order. Returns none and draws
    /// nothing if one of them is not drawable or has a layer that does not exist.
    std::vector<int> Add(const std::vector<PenShape>& shapes, const std::wstring& stepName);

    /// Draws the entities of another drawing in one step of that name and returns their new ids in
    /// order. Their layers are those of the same names; missing ones are added in the same step.
    /// Returns none and changes nothing if there are no entities or the content is not valid.
    std::vector<int> Insert(const SketchContent& content, const std::wstring& stepName);

    /// The same with what MakeInsertion has worked out for the place that GetInsertionPlace
    /// returned, possibly in another thread. Returns none and changes nothing if the place is
    /// another one by now.
    std::vector<int> Insert(SketchInsertion insertion, const std::wstring& stepName);
    InsertionPlace GetInsertionPlace() const;

    /// Gives entities other shapes; their ids, order and pens stay. Returns false and makes no step
    /// if one of them cannot be changed, a shape is not drawable, or no shape differs.
    bool Replace(const std::vector<std::pair<int, Shape>>& shapes,
                 const std::wstring& stepName = L"修改"_source);
    bool CanReplace(const std::vector<std::pair<int, Shape>>& shapes) const;

    /// Returns false and erases nothing if there are none or one of them cannot be changed.
    bool Erase(const std::vector<int>& ids, const std::wstring& stepName = L"删除"_source);
    bool Erase(int id) { return Erase(std::vector<int>{id}); }

    /// Gives entities another style, colour, width or layer. Returns false and makes no step if
    /// they all have it already, one of them cannot be changed, or the layer does not exist.
    bool SetPen(const std::vector<int>& ids, int Pen::*part, int value);

    /// True if the entity exists and its layer is not locked.
    bool CanChange(int id) const;

    /// True if the entity exists and can be picked and selected: its layer is visible and not
    /// locked.
    bool CanPick(int id) const;

    /// The same for an entity of this drawing.
    bool CanPick(const Entity& entity) const;

    /// How the next entities are drawn. Setting it is not an undo step; a layer that does not exist
    /// is ignored.
    const Pen& GetCurrentPen() const { return m_content.currentPen; }
    void SetCurrentPen(int Pen::*part, int value);

    /// By ascending id; the base layer comes first.
    const std::vector<Layer>& GetLayers() const { return m_content.layers; }

    /// The layer with that id or name; null if there is none. Valid until the next change.
    const Layer* FindLayer(int id) const;
    const Layer* FindLayer(const std::wstring& name) const;

    /// The layer of an entity of this drawing.
    const Layer& LayerOf(const Entity& entity) const;

    /// Adds a layer of that name and returns its id, which is never reused. Returns 0 and adds
    /// nothing if the name is empty or taken, or ids have run out.
    int AddLayer(const std::wstring& name);
    bool CanAddLayer(const std::wstring& name) const;

    /// Gives the layer with that id the other values. Returns false and makes no step if nothing
    /// differs or that is impossible: it does not exist, or its name is empty or another layer's.
    bool SetLayer(const Layer& layer);
    bool CanSetLayer(const Layer& layer) const;

    /// Removes a layer. Returns false and removes nothing if it is the base layer, does not exist
    /// or has entities. If it is the current pen's, the base layer becomes that.
    bool RemoveLayer(int id);
    bool CanRemoveLayer(int id) const;

    /// An undo or redo of the last step. Returns the id of the entity that appeared or disappeared,
    /// or of the first that changed; 0 if none did.
    bool CanUndo() const { return m_steps.canUndo(); }
    bool CanRedo() const { return m_steps.canRedo(); }
    int Undo();
    int Redo();

    /// The names of the steps that they would act on; empty for none.
    std::wstring GetUndoText() const;
    std::wstring GetRedoText() const;

    /// What the last Undo or Redo returned.
    int GetLastUndone() const { return m_lastUndone; }

    const std::wstring& GetName() const { return m_content.name; }

    /// The name as people see it: that of a new drawing is in their language.
    std::wstring GetShownName() const;

    /// One undo step, unless that is the name already.
    void SetName(const std::wstring& name);

    /// From now on, until the next Restore or Clear, a name is no step: so it was when journals of
    /// version 1 were written, and their undos count without it.
    void SetNamesWithoutSteps() { m_isNameStep = false; }

    /// The digest of entities, layers and name, as 64 hexadecimal digits: equal for equal drawings,
    /// whatever their history. Costs the same for any size.
    std::string GetDigest() const;

    /// Another number as soon as an entity or a layer that was there is changed or gone: while it
    /// stays the same, entities have at most been added after the others.
    unsigned GetRevision() const { return m_revision; }

    /// Another number as soon as an entity that was there has another shape or is gone.
    unsigned GetShapeRevision() const { return m_shapeRevision; }

    /// Which entities were concerned by the last changes.
    const RecentChanges& GetRecentChanges() const { return m_recent; }

    const SketchContent& GetContent() const { return m_content; }

    /// Replaces the drawing; nothing can be undone afterwards. Returns false and changes nothing if
    /// the content breaks a rule of SketchContent or an entity is not drawable.
    bool Restore(SketchContent content);

    /// The same, with the digest of the content, which another thread may have computed: for a
    /// large drawing that takes longer than anything else.
    bool Restore(SketchContent content, const Digest& digest);

    /// Starts a new drawing in the initial state; nothing can be undone.
    void Clear();

signals:
    void changed();

private:
    class Step;

    bool AreChangeable(const std::vector<int>& ids) const;
    void Push(SketchChange change, int entityId, const std::wstring& stepName);
    void Exchange(SketchChange& change);
    int Turn(int index, void (QUndoStack::*turn)());

    SketchContent m_content;
    Digest m_digest;             ///< Of m_content.
    mutable EntityIndex m_index; ///< The same.
    RecentChanges m_recent;      ///< The same.
    unsigned m_revision = 0;
    unsigned m_shapeRevision = 0;
    QUndoStack m_steps;
    int m_lastUndone = 0;
    bool m_isNameStep = true;
};
