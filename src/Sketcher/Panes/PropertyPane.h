#pragma once

#include "Model/ShapeProperty.h"

#include "Control/LineEditEvent.h"
#include "Dock/IPropertyWidget.h"

#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QFormLayout;
class QLabel;
struct Workspace;

namespace vesk
{
class ControlHost;
class LineEditDefinition;
}

/// The properties that all selected entities have, each in a line edit.
///
/// What the user types is read as in a dimension's editor, including formulas and units. A finished
/// value is sent as a command; an invalid text stays in its field, and a message says why. Escape
/// restores the text that the field showed. Fields whose values differ between the entities are
/// empty.
class PropertyPane final : public QWidget,
                           public vesk::IPropertyWidget,
                           public vesk::ILineEditEventHandler
{
    Q_OBJECT

public:
    /// The arguments are not owned. The controls are destroyed before the pane.
    PropertyPane(Workspace& workspace, vesk::ControlHost& controls);
    ~PropertyPane() override;

    void UpdateStatus() override;
    void On(vesk::LineEditEventArgs* pArgs) override;

private:
    struct Row
    {
        ShapeProperty property;
        QLabel* pCaption;
        vesk::LineEditDefinition* pDefinition; ///< Owned by its control.
        std::wstring shown;
    };

    void AddRow(const ShapeProperty& property, vesk::ControlHost& controls, QFormLayout& layout);
    void FindKinds();
    void ShowTitle();
    void ShowRow(Row& row, bool isAnew);
    bool IsCommon(const ShapeProperty& property) const;
    std::optional<double> GetValue(const ShapeProperty& property) const;
    std::wstring GetText(const ShapeProperty& property) const;
    void Commit(Row& row, const std::wstring& text);
    void Refuse(const Row& row, const QString& reason);
    void Accept(const Row& row);

    Workspace& m_workspace;
    QLabel* m_pTitle;
    QLabel* m_pMessage;

    /// The id of the field that the message is about; empty if there is none.
    std::wstring m_refusedId;
    std::vector<Row> m_rows;

    /// The selection that the fields show.
    std::vector<int> m_shownIds;

    /// One shape of each kind in it.
    std::vector<Shape> m_kinds;
};
