#pragma once

#include "Model/EntityEdit.h"
#include "Model/Workspace.h"
#include "Panes/PropertyPane.h"

#include "Dimension/LengthUnit.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QLabel>
#include <QLineEdit>

#include <memory>
#include <optional>
#include <vector>

namespace vesk::test
{

using Ids = std::vector<int>;

constexpr int LineId = 1;
constexpr int CircleId = 2;
constexpr int ArcId = 3;
constexpr int RectangleId = 4;
constexpr int OtherCircleId = 5;

inline const QString s_radius = QStringLiteral("radius");

/// A pane on screen for a drawing with one shape of each kind and a second circle.
struct PropertyPaneFixture
{
    PropertyPaneFixture()
    {
        workspace.sketch.AddLine({0, 0, 0}, {30, 40, 0});
        workspace.sketch.Add(CircleShape{{1, 2, 0}, 10});
        workspace.sketch.Add(ArcShape{{1, 7, 0}, 5, {4, 11, 0}, {-4, 7, 0}});
        workspace.sketch.Add(RectangleShape{{{{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}}}});
        workspace.sketch.Add(CircleShape{{1, 50, 0}, 20});
        host.AddCommand(EntityEdit::CommandId, [this](const CommandParameters& parameters) {
            recordedAtRun.push_back(host.journal.GetCommands().size());
            EntityEdit::From(parameters)->Apply(workspace.sketch);
        });
        pPane = std::make_unique<PropertyPane>(workspace, *controls);
        pPane->resize(300, 600);
        pPane->show();
        pPane->activateWindow();
        if (!QTest::qWaitForWindowActive(pPane.get(), vesk::test::PatienceMs))
            qFatal("the pane does not become active");
        controls->RefreshControls();
    }

    ~PropertyPaneFixture()
    {
        controls.reset();
        LengthUnit::SetCurrent(LengthUnit::Millimetre());
    }

    void Select(const Ids& ids)
    {
        workspace.selection.Select(ids);
        pPane->UpdateStatus();
    }

    QLineEdit* Field(const QString& name) const
    {
        return pPane->findChild<QLineEdit*>("Sketcher.Property." + name);
    }

    QString Text(const QString& name) const { return Field(name)->text(); }

    /// Replaces the text of a field by typing, without finishing it.
    void Type(const QString& name, const QString& text) const
    {
        QLineEdit* pField = Field(name);
        pField->setFocus();
        pField->selectAll();
        QTest::keyClick(pField, Qt::Key_Delete);
        QTest::keyClicks(pField, text);
    }

    void Enter(const QString& name, const QString& text) const
    {
        Type(name, text);
        QTest::keyClick(Field(name), Qt::Key_Return);
    }

    void LeaveField() const
    {
        if (QWidget* pField = QApplication::focusWidget())
            pField->clearFocus();
    }

    QString Message() const
    {
        const auto* pMessage = pPane->findChild<QLabel*>("PropertyMessage");
        return pMessage->isHidden() ? QString() : pMessage->text();
    }

    QString Title() const { return pPane->findChild<QLabel*>("PropertyTitle")->text(); }

    /// The names of the visible fields, from top to bottom.
    QString Fields() const
    {
        QStringList names;
        const QString prefix = QStringLiteral("Sketcher.Property.");
        for (const QLineEdit* pField : pPane->findChildren<QLineEdit*>())
        {
            if (pField->isVisibleTo(pPane.get()))
                names << pField->objectName().mid(prefix.size());
        }
        return names.join(' ');
    }

    double Radius(int id) const
    {
        return std::get<CircleShape>(workspace.sketch.Find(id)->shape).radius;
    }

    const std::vector<CommandRecord>& Commands() const { return host.journal.GetCommands(); }

    HostFixture host;
    ControlLibrary library;
    Workspace workspace;
    std::unique_ptr<PropertyPane> pPane;
    std::optional<ControlHost> controls{std::in_place};

    /// How many commands were in the journal at each run of a command.
    std::vector<std::size_t> recordedAtRun;
};

}
