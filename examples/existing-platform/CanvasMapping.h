#pragma once

#include <View/IModelView.h>

#include <QWidget>

/// How the canvas shows millimetres: 20 of them to a pixel, y up from its lower left corner.
class CanvasMapping final : public vesk::IModelView
{
public:
    static constexpr double Scale = 20.0;

    /// The canvas is not owned and outlives this.
    explicit CanvasMapping(const QWidget& canvas) : m_canvas(canvas) {}

    void WorldToScreen(const vesk::Vector3d& world, double& x, double& y,
                       double& depth) const override
    {
        x = world.x() / Scale;
        y = GetHeight() - world.y() / Scale;
        depth = world.z();
    }

    vesk::Vector3d ScreenToWorld(double x, double y) const override
    {
        return {x * Scale, (GetHeight() - y) * Scale, 0.0};
    }

    double GetWorldPerPixel() const override { return Scale; }
    int GetWidth() const override { return m_canvas.width(); }
    int GetHeight() const override { return m_canvas.height(); }

private:
    const QWidget& m_canvas;
};
