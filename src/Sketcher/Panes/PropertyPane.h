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

/// The values of the selected entities, each in a line edit: those that all of them have.
///
/// What the user types is read as in a dimension's editor, formulas and units too. A value that is
/// finished is sent as a command; a text that makes no sense stays in its field, and a message says
/// why. Escape gives a field the text back that it showed. Values that differ between the entities
/// are left empty.
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

    /// The id of the field that the message is about; empty without one.
    std::wstring m_refusedId;
    std::vector<Row> m_rows;

    /// The selection that the fields show.
    std::vector<int> m_shownIds;

    /// One shape of each kind in it.
    std::vector<Shape> m_kinds;
};
