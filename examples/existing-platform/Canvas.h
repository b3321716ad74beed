#pragma once

#include "CanvasMapping.h"

#include <View/IUiView.h>

#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <vector>

namespace vesk
{
class DimensionInputController;
}

/// The program's own canvas: the rooms of a floor plan, in millimetres.
///
/// All that it does for the library is to be an IUiView, and to pass on what the user does.
class Canvas final : public QWidget, public vesk::IUiView
{
    Q_OBJECT

public:
    explicit Canvas(vesk::DimensionInputController& input);

    void AddRoom(const QRectF& room);

    std::uint32_t GetId() const override { return 1; }
    vesk::WindowId GetWindowId() const override { return winId(); }
    vesk::IModelView* GetModelView() const override { return &m_mapping; }
    void SetViewText(const std::wstring& text) override;
    void Activate() override { setFocus(); }
    void Redraw() override { update(); }

signals:
    void hintChanged(const QString& hint);
    void roomAdded(const QString& summary);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    bool focusNextPrevChild(bool isNext) override;

private:
    vesk::Vector3d ToWorld(const QPointF& position) const;

    vesk::DimensionInputController& m_input;
    mutable CanvasMapping m_mapping{*this};
    std::vector<QRectF> m_rooms;
};
