#pragma once

#include <QObject>
#include <QTimer>

struct Workspace;
class SketchView;

/// Describes the view to programs such as screen readers: what the tool expects, what was drawn
/// last, what is selected, how many entities there are and, if the arrow keys move the cursor,
/// where it is and what is below it. They are told of each change once the event loop is idle.
class ViewDescription final : public QObject
{
    Q_OBJECT

public:
    /// The view becomes the parent; the workspace is not owned and outlives it.
    ViewDescription(Workspace& workspace, SketchView& view);

    /// Describes it anew, also in another language.
    void Update();

private:
    void OnSketchChanged();
    QString DescribeCursor() const;

    Workspace& m_workspace;
    SketchView& m_view;
    QTimer m_update;
    int m_newest = 0; ///< The greatest number of an entity so far.
    int m_drawn = 0;  ///< What the last change has drawn; 0 for nothing.
};
