#pragma once

#include "HostUi/HostUiExport.h"

#include <QLabel>

namespace vesk
{

/// A label for one line of plain text that asks for no room: what does not fit ends in an ellipsis.
/// `text()` and what screen readers read are always the whole; its owner shows it as the tool tip.
class VESK_HOST_UI_API ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label.
    explicit ElidedLabel(QWidget* pParent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
};

}
