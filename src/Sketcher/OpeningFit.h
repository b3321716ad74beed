#pragma once

#include <QObject>

class SketchView;

/// Keeps all of a drawing in the view while the window finds its size at start: a window manager
/// maximises it when it likes. Destroys itself at the user's first key or click.
class OpeningFit final : public QObject
{
public:
    /// Becomes a child of the view.
    explicit OpeningFit(SketchView& view);

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    SketchView& m_view;
};
