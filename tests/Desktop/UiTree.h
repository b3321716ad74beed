#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QVector>

#include <optional>

namespace vesk
{

/// One control on screen.
struct UiControl
{
    QString id;
    QString className;
    QString text;
    QRect rect; ///< In device pixels of the screen; empty without geometry.
    bool isVisible = false;
    bool isEnabled = false;
    std::optional<bool> isChecked;
};

/// A drawing view.
struct UiView
{
    QRect rect;
    double worldPerPixel = 1.0;
    QPointF centre;

    /// The screen position of a world point.
    QPoint ToScreen(QPointF world) const;
};

/// The editor of a provisional dimension.
struct UiEditor
{
    QString text;
    QString selectedText;
    QString message;
    QRect rect;
    bool isVisible = false;
    bool hasFocus = false;
    int state = 0;
    std::optional<double> value; ///< Empty if the text has no value.
    QVector<int> locked;
};

/// The screen contents reported by the program, as read from its file.
class UiTree
{
public:
    /// Reads the file; empty while it does not exist or is incomplete.
    static std::optional<UiTree> Read(const QString& path);

    /// The control with that id; empty if there is none.
    std::optional<UiControl> FindControl(const QString& id) const;

    /// The key tip that the ribbon shows on a control; empty if it has none of its own.
    QString GetKeyTip(const QString& id) const;

    /// The entry of an open menu with that command; empty while it is not on screen.
    std::optional<UiControl> FindEntry(const QString& commandId) const;

    /// The first view; empty if there is none.
    std::optional<UiView> FindView() const;

    /// The open editor; empty while no dimension is being typed.
    std::optional<UiEditor> FindEditor() const;

    /// The command whose action is running; empty if none is.
    QString GetAction() const;
    QString GetHint() const;
    int GetEntityCount() const;
    bool HasWarning() const;

    const QJsonObject& GetJson() const { return m_root; }

private:
    QJsonObject m_root;
};

}
