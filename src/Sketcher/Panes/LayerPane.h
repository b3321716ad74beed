#pragma once

#include "Dock/IPropertyWidget.h"

#include <QWidget>

class LayerModel;
class QLabel;
class QModelIndex;
class QToolButton;
class QTreeView;
struct Workspace;

/// The layers of the drawing: their names, colours, visibility and locks, and which one is current.
/// Every change is one command, and one undo step; a name that is refused stays as it was, and a
/// message says why.
class LayerPane final : public QWidget, public vesk::IWidget
{
    Q_OBJECT

public:
    /// The workspace is not owned and must outlive all use of the pane.
    explicit LayerPane(Workspace& workspace);
    ~LayerPane() override;

    void UpdateStatus() override;

private:
    QToolButton* MakeButton(const QString& name, const QString& text, const QString& toolTip,
                            void (LayerPane::*onClicked)());
    QWidget* MakeButtons();
    void Choose(const QModelIndex& index);
    void ChooseColour(const QModelIndex& index);
    void OnNew();
    void OnRemove();
    void OnMakeCurrent();
    void OnAnswered(const QString& refusal);
    void MakeCurrent(int layerId);
    void Select(int layerId);
    void ShowPossible();

    /// The id of the selected layer; -1 if there is none.
    int GetSelected() const;

    Workspace& m_workspace;
    LayerModel* m_pModel;
    QTreeView* m_pView;
    QLabel* m_pMessage;
    QToolButton* m_pRemove = nullptr;
    QToolButton* m_pMakeCurrent = nullptr;
};
