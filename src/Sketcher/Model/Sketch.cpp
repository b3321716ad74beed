#include "Model/Sketch.h"

#include "Model/ShapeKind.h"
#include "Model/UiText.h"

#include "HostUi/QtText.h"

#include <QSignalBlocker>
#include <QUndoCommand>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

namespace
{

constexpr const wchar_t* NewName = L"未命名"_source;

SketchContent NewContent()
{
    SketchContent content;
    content.name = NewName;
    return content;
}

constexpr int GreatestId = SketchContent::GreatestId;

}

/// A change, and then what takes it back.
class Sketch::Step final : public QUndoCommand
{
public:
    /// `entityId` is the first entity concerned, 0 for none.
    Step(Sketch& sketch, SketchChange change, int entityId)
        : m_sketch(sketch), m_change(std::move(change)), m_entityId(entityId)
    {}

    void redo() override { m_sketch.Exchange(m_change); }
    void undo() override { m_sketch.Exchange(m_change); }

    int GetEntityId() const { return m_entityId; }

private:
    Sketch& m_sketch;
    SketchChange m_change;
    int m_entityId;
};

Sketch::Sketch() : m_content(NewContent()), m_digest(DigestOf(m_content))
{
    connect(&m_steps, &QUndoStack::indexChanged, this, &Sketch::changed);
}

const Entity* Sketch::Find(int id) const
{
    return FindById(m_content.entities, id);
}

std::vector<const Entity*> Sketch::FindIn(const Area& area) const
{
    return m_index.Find(m_content.entities, area);
}

int Sketch::Add(const Shape& shape)
{
    const std::vector<int> ids = Add({{shape, m_content.currentPen}}, KindOf(shape).caption);
    return ids.empty() ? 0 : ids.front();
}

int Sketch::AddLine(const vesk::Vector3d& start, const vesk::Vector3d& end)
{
    return Add(LineShape{start, end});
}

std::vector<int> Sketch::Add(const std::vector<PenShape>& shapes, const std::wstring& stepName)
{
    const bool arePossible =
        shapes.size() <= static_cast<std::size_t>(GreatestId - m_content.lastId) &&
        std::all_of(shapes.begin(), shapes.end(), [this](const PenShape& shape) {
            return IsDrawable(shape.first) && FindLayer(shape.second.layer) != nullptr;
        });
    if (shapes.empty() || !arePossible)
        return {};
    SketchChange change;
    std::vector<int> ids;
    for (const auto& [shape, pen] : shapes)
    {
        ids.push_back(++m_content.lastId);
        change.entities.emplace_hint(change.entities.end(), ids.back(),
                                     Entity{ids.back(), shape, pen});
    }
    Push(std::move(change), ids.front(), stepName);
    return ids;
}

std::vector<int> Sketch::Insert(const SketchContent& content, const std::wstring& stepName)
{
    return Insert(MakeInsertion(content, GetInsertionPlace()), stepName);
}

std::vector<int> Sketch::Insert(SketchInsertion insertion, const std::wstring& stepName)
{
    SketchChange& change = insertion.change;
    if (change.entities.empty() || !(insertion.place == GetInsertionPlace()))
        return {};
    std::vector<int> ids;
    for (const auto& entity : change.entities)
        ids.push_back(entity.first);
    m_content.lastId = ids.back();
    m_content.lastLayerId += static_cast<int>(change.layers.size());
    Push(std::move(change), ids.front(), stepName);
    return ids;
}

InsertionPlace Sketch::GetInsertionPlace() const
{
    return {m_content.layers, m_content.lastId, m_content.lastLayerId};
}

bool Sketch::CanReplace(const std::vector<std::pair<int, Shape>>& shapes) const
{
    const auto isPossible = [this](const auto& next) {
        return CanChange(next.first) && IsDrawable(next.second);
    };
    const auto isOther = [this](const auto& next) {
        return !(Find(next.first)->shape == next.second);
    };
    return std::all_of(shapes.begin(), shapes.end(), isPossible) &&
           std::any_of(shapes.begin(), shapes.end(), isOther);
}

bool Sketch::Replace(const std::vector<std::pair<int, Shape>>& shapes, const std::wstring& stepName)
{
    if (!CanReplace(shapes))
        return false;
    SketchChange change;
    for (const auto& [id, shape] : shapes)
        change.entities[id] = Entity{id, shape, Find(id)->pen};
    Push(std::move(change), shapes.front().first, stepName);
    return true;
}

bool Sketch::Erase(const std::vector<int>& ids, const std::wstring& stepName)
{
    if (ids.empty() || !AreChangeable(ids))
        return false;
    SketchChange change;
    for (const int id : ids)
        change.entities[id] = std::nullopt;
    Push(std::move(change), ids.front(), stepName);
    return true;
}

bool Sketch::SetPen(const std::vector<int>& ids, int Pen::*part, int value)
{
    const bool isPossible =
        AreChangeable(ids) && (part != &Pen::layer || FindLayer(value) != nullptr);
    const bool isChange = isPossible && std::any_of(ids.begin(), ids.end(), [&](int id) {
                              return Find(id)->pen.*part != value;
                          });
    if (!isChange)
        return false;
    SketchChange change;
    for (const int id : ids)
    {
        Entity entity = *Find(id);
        entity.pen.*part = value;
        change.entities[id] = entity;
    }
    Push(std::move(change), ids.front(), L"线条特性"_source);
    return true;
}

bool Sketch::CanChange(int id) const
{
    const Entity* pEntity = Find(id);
    return pEntity != nullptr && !LayerOf(*pEntity).isLocked;
}

bool Sketch::CanPick(int id) const
{
    const Entity* pEntity = Find(id);
    return pEntity != nullptr && CanPick(*pEntity);
}

bool Sketch::CanPick(const Entity& entity) const
{
    const Layer& layer = LayerOf(entity);
    return !layer.isLocked && layer.isVisible;
}

bool Sketch::AreChangeable(const std::vector<int>& ids) const
{
    return std::all_of(ids.begin(), ids.end(), [this](int id) { return CanChange(id); });
}

void Sketch::SetCurrentPen(int Pen::*part, int value)
{
    const bool isKnown = part != &Pen::layer || FindLayer(value) != nullptr;
    if (!isKnown || m_content.currentPen.*part == value)
        return;
    m_content.currentPen.*part = value;
    emit changed();
}

const Layer* Sketch::FindLayer(int id) const
{
    return FindById(m_content.layers, id);
}

const Layer* Sketch::FindLayer(const std::wstring& name) const
{
    const auto found = std::find_if(m_content.layers.begin(), m_content.layers.end(),
                                    [&name](const Layer& layer) { return layer.name == name; });
    return found != m_content.layers.end() ? &*found : nullptr;
}

const Layer& Sketch::LayerOf(const Entity& entity) const
{
    return *FindLayer(entity.pen.layer);
}

bool Sketch::CanAddLayer(const std::wstring& name) const
{
    return !name.empty() && FindLayer(name) == nullptr && m_content.lastLayerId < GreatestId;
}

int Sketch::AddLayer(const std::wstring& name)
{
    if (!CanAddLayer(name))
        return 0;
    Layer layer;
    layer.id = ++m_content.lastLayerId;
    layer.name = name;
    SketchChange change;
    change.layers[layer.id] = layer;
    Push(std::move(change), 0, L"新建图层"_source);
    return layer.id;
}

bool Sketch::CanSetLayer(const Layer& layer) const
{
    const Layer* pNamesake = FindLayer(layer.name);
    const bool isNameFree =
        !layer.name.empty() && (pNamesake == nullptr || pNamesake->id == layer.id);
    return isNameFree && FindLayer(layer.id) != nullptr;
}

bool Sketch::SetLayer(const Layer& layer)
{
    if (!CanSetLayer(layer) || *FindLayer(layer.id) == layer)
        return false;
    SketchChange change;
    change.layers[layer.id] = layer;
    Push(std::move(change), 0, L"修改图层"_source);
    return true;
}

bool Sketch::CanRemoveLayer(int id) const
{
    return id != Layer::BaseId && FindLayer(id) != nullptr &&
           std::none_of(m_content.entities.begin(), m_content.entities.end(),
                        [id](const Entity& entity) { return entity.pen.layer == id; });
}

bool Sketch::RemoveLayer(int id)
{
    if (!CanRemoveLayer(id))
        return false;
    SketchChange change;
    change.layers[id] = std::nullopt;
    Push(std::move(change), 0, L"删除图层"_source);
    return true;
}

int Sketch::Undo()
{
    return Turn(m_steps.index() - 1, &QUndoStack::undo);
}

int Sketch::Redo()
{
    return Turn(m_steps.index(), &QUndoStack::redo);
}

/// Undoes or redoes the step at that index, if there is one.
int Sketch::Turn(int index, void (QUndoStack::*turn)())
{
    const auto* pStep = static_cast<const Step*>(m_steps.command(index));
    m_lastUndone = pStep != nullptr ? pStep->GetEntityId() : 0;
    (m_steps.*turn)();
    return m_lastUndone;
}

std::wstring Sketch::GetUndoText() const
{
    return vesk::ToWide(m_steps.undoText());
}

std::wstring Sketch::GetRedoText() const
{
    return vesk::ToWide(m_steps.redoText());
}

std::wstring Sketch::GetShownName() const
{
    return m_content.name == NewName ? Tr(m_content.name) : m_content.name;
}

void Sketch::SetName(const std::wstring& name)
{
    if (name == m_content.name)
        return;
    SketchChange change;
    change.name = name;
    if (m_isNameStep)
    {
        Push(std::move(change), 0, L"图名"_source);
        return;
    }
    Exchange(change);
    emit changed();
}

std::string Sketch::GetDigest() const
{
    return m_digest.ToText();
}

bool Sketch::Restore(SketchContent content)
{
    const Digest digest = IsValid(content) ? DigestOf(content) : Digest();
    return Restore(std::move(content), digest);
}

bool Sketch::Restore(SketchContent content, const Digest& digest)
{
    if (!IsValid(content))
        return false;
    ++m_revision;
    ++m_shapeRevision;
    m_index.Forget();
    m_recent.Forget();
    m_content = std::move(content);
    m_digest = digest;
    m_lastUndone = 0;
    m_isNameStep = true;
    {
        const QSignalBlocker noSignals(this);
        m_steps.clear();
    }
    emit changed();
    return true;
}

void Sketch::Clear()
{
    Restore(NewContent());
}

void Sketch::Push(SketchChange change, int entityId, const std::wstring& stepName)
{
    auto pStep = std::make_unique<Step>(*this, std::move(change), entityId);
    pStep->setText(vesk::ToQString(stepName));
    m_steps.push(pStep.release());
}

void Sketch::Exchange(SketchChange& change)
{
    m_revision += IsAddition(m_content, change) ? 0 : 1;
    m_shapeRevision += KeepsShapes(m_content, change) ? 0 : 1;
    m_index.Follow(m_content.entities, change);
    m_recent.Add(change);
    ::Exchange(m_content, m_digest, change);
    if (FindLayer(m_content.currentPen.layer) == nullptr)
        m_content.currentPen.layer = Layer::BaseId;
}
