#pragma once

#include "Geometry/Vector3d.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandleEditor.h"

#include <QPointer>

namespace vesk
{

class IUiView;

/// The line edit over a view, seen as a window: its look, its place, the keyboard focus. It knows
/// nothing of values.
///
/// Showing it moves the focus, and handlers of that may destroy the editor, the view or the caller.
class EditorWindow
{
public:
    /// The editor of a view. The view owns it, and successive handlers share it: only the first
    /// call creates one. Null, after a warning, if it could not be created.
    static TemporaryDimensionHandleEditor* FindOrCreate(QWidget& view);

    /// `pEditor` must not be null.
    explicit EditorWindow(TemporaryDimensionHandleEditor* pEditor) : m_pEditor(pEditor) {}

    /// Gives the editor its size, shows it and requests the focus; from then on `filter` sees its
    /// events first. Returns false if the editor or the view was destroyed meanwhile.
    bool Activate(QWidget& view, QObject& filter, const QSize& size);

    void ApplyStyle();

    /// Shows a text, selected or with the caret behind it, and requests the focus.
    void Show(const QString& text, bool isSelected);

    /// Centres the editor on a world point of the view. Warns if the view has no widget.
    void MoveTo(const IUiView& view, const Vector3d& world);

    void Hide();

private:
    QPointer<TemporaryDimensionHandleEditor> m_pEditor;
};

}
