#pragma once

#include <QLineEdit>

namespace vesk
{

/// The line edit in which a dimension is typed; all handlers of a view share it.
class TemporaryDimensionHandleEditor final : public QLineEdit
{
    Q_OBJECT

public:
    explicit TemporaryDimensionHandleEditor(QWidget* pParent);

private:
    bool m_isViewInput;
};

}
