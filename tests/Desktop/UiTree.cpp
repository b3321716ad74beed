#include "Desktop/UiTree.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace vesk
{

namespace
{

QRect ToRect(const QJsonValue& value)
{
    const QJsonArray numbers = value.toArray();
    if (numbers.size() != 4)
        return QRect();
    return QRect(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt());
}

UiControl ToControl(const QJsonObject& json)
{
    UiControl control;
    control.id = json["id"].toString();
    control.className = json["class"].toString();
    control.text = json["text"].toString();
    control.rect = ToRect(json["rect"]);
    control.isVisible = json["visible"].toBool();
    control.isEnabled = json["enabled"].toBool();
    if (json["checked"].isBool())
        control.isChecked = json["checked"].toBool();
    return control;
}

}

QPoint UiView::ToScreen(QPointF world) const
{
    const double x = rect.x() + rect.width() / 2.0 + (world.x() - centre.x()) / worldPerPixel;
    const double y = rect.y() + rect.height() / 2.0 - (world.y() - centre.y()) / worldPerPixel;
    return QPoint(qRound(x), qRound(y));
}

std::optional<UiTree> UiTree::Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return std::nullopt;
    UiTree tree;
    tree.m_root = document.object();
    return tree;
}

std::optional<UiControl> UiTree::FindControl(const QString& id) const
{
    // An action may have the same id as its button; only the button has a geometry.
    std::optional<UiControl> found;
    for (const QJsonValue value : m_root["controls"].toArray())
    {
        if (value["id"].toString() == id && (!found || found->rect.isEmpty()))
            found = ToControl(value.toObject());
    }
    return found;
}

QString UiTree::GetKeyTip(const QString& id) const
{
    for (const QJsonValue value : m_root["controls"].toArray())
    {
        if (value["id"].toString() == id && !value["keyTip"].isUndefined())
            return value["keyTip"].toString();
    }
    return {};
}

std::optional<UiControl> UiTree::FindEntry(const QString& commandId) const
{
    for (const QJsonValue value : m_root["controls"].toArray())
    {
        const UiControl control = ToControl(value.toObject());
        if (control.id == commandId && control.className == "QAction" && !control.rect.isEmpty())
            return control;
    }
    return std::nullopt;
}

std::optional<UiView> UiTree::FindView() const
{
    const QJsonArray views = m_root["views"].toArray();
    if (views.isEmpty())
        return std::nullopt;
    const QJsonObject json = views.first().toObject();
    const QJsonArray centre = json["centre"].toArray();
    UiView view;
    view.rect = ToRect(json["rect"]);
    view.worldPerPixel = json["worldPerPixel"].toDouble();
    view.centre = QPointF(centre.at(0).toDouble(), centre.at(1).toDouble());
    return view;
}

std::optional<UiEditor> UiTree::FindEditor() const
{
    if (!m_root["editor"].isObject())
        return std::nullopt;
    const QJsonObject json = m_root["editor"].toObject();
    UiEditor editor;
    editor.text = json["text"].toString();
    editor.selectedText = json["selectedText"].toString();
    editor.message = json["message"].toString();
    editor.rect = ToRect(json["rect"]);
    editor.isVisible = json["visible"].toBool();
    editor.hasFocus = json["focus"].toBool();
    editor.state = json["state"].toInt();
    if (json["value"].isDouble())
        editor.value = json["value"].toDouble();
    for (const QJsonValue state : json["locked"].toArray())
        editor.locked << state.toInt();
    return editor;
}

QString UiTree::GetAction() const
{
    return m_root["action"].toString();
}

QString UiTree::GetHint() const
{
    return m_root["hint"].toString();
}

int UiTree::GetEntityCount() const
{
    return m_root["entities"].toInt(-1);
}

bool UiTree::HasWarning() const
{
    return m_root["warning"].isObject();
}

}
