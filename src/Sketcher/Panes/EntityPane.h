#pragma once

#include "Dock/IPropertyWidget.h"

#include <QWidget>

class EntityList;
class EntityModel;
class QItemSelection;
struct Workspace;

/// The entities of the drawing as a list. Its selection and the drawing's follow each other.
class EntityPane final : public QWidget, public vesk::IWidget
{
    Q_OBJECT

public:
    /// The workspace is not owned and must outlive all use of the pane.
    explicit EntityPane(Workspace& workspace);

    void UpdateStatus() override;

signals:
    /// The user wants the menu of what is selected, at a point of the screen.
    void menuRequested(const QPoint& position);

private:
    void OnSelected();
    std::vector<int> GetSelectedRows() const;
    std::vector<int> ToRows(const std::vector<int>& ids) const;
    QItemSelection ToSelection(const std::vector<int>& rows) const;

    Workspace& m_workspace;
    EntityModel* m_pModel;
    EntityList* m_pView;
    bool m_isShowing = false;
};
