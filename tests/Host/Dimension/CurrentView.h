#pragma once

#include "Dimension/TemporaryDimensionStyle.h"
#include "Host/View/StubView.h"
#include "View/IUiDocumentViewManager.h"
#include "View/ModelView.h"
#include "View/UiViewUtility.h"

#include <QPoint>
#include <QRect>
#include <QSize>

namespace vesk
{

/// A view that is the current one while it exists, and where things are in it.
struct CurrentView
{
    CurrentView() { views.AddView(&view); }

    QRect GetView() const { return {0, 0, camera.GetWidth(), camera.GetHeight()}; }

    QPoint ToPixel(const Vector3d& world) const
    {
        int x = 0;
        int y = 0;
        float depth = 0;
        UiViewUtility::WorldPositionToScreenPosition(&view, world, x, y, depth);
        return {x, y};
    }

    /// Where the editor of a value would be.
    QRect EditorAt(const Vector3d& textPosition, const TemporaryDimensionStyle& style) const
    {
        const QSize size(style.GetEditorWidth(), style.GetEditorHeight());
        const QPoint half(size.width() / 2, size.height() / 2);
        return {ToPixel(textPosition) - half, size};
    }

    /// The cursor and the area around it that must not be covered.
    QRect CursorAt(const Vector3d& cursor) const
    {
        return QRect(ToPixel(cursor), QSize(1, 1)).marginsAdded(QMargins(8, 8, 8, 8));
    }

    UiDocumentViewManager views;
    ModelView camera;
    StubView view{1, &camera};
};

}
