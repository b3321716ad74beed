#pragma once

#include "HostUi/Inspector.h"

#include "Control/LineEditDefinition.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/DimensionInputController.h"
#include "Support/HostFixture.h"

#include <QLabel>
#include <QListWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <memory>

namespace vesk::test
{

/// An inspector on screen, and controls in another window.
struct InspectorFixture
{
    InspectorFixture()
    {
        panel.setLayout(new QVBoxLayout);
        panel.show();
        pEdit = Add<ILineEditDefinition>(MakeOwner<LineEditDefinition>(L"Edit"));
        pInspector = std::make_unique<Inspector>(*pControls, input);
        pInspector->resize(600, 300);
        pInspector->show();
    }

    ~InspectorFixture()
    {
        if (pInspector != nullptr)
            pInspector->Stop();
        pControls.reset();
    }

    template <class Interface, class Definition>
    Definition* Add(OwnerPtr<Definition> opDefinition)
    {
        Definition* pDefinition = opDefinition.Get();
        pDefinition->SetVisible(false);
        panel.layout()->addWidget(pControls->Create(OwnerPtr<Interface>(std::move(opDefinition))));
        pDefinition->SetVisible(true);
        return pDefinition;
    }

    /// The rows with their cells.
    QStringList Rows() const
    {
        const auto* pTree = pInspector->findChild<QTreeWidget*>("InspectorDefinitions");
        QStringList rows;
        for (int row = 0; row < pTree->topLevelItemCount(); ++row)
        {
            QStringList cells;
            for (int column = 0; column < pTree->columnCount(); ++column)
                cells << pTree->topLevelItem(row)->text(column);
            rows << cells.join('|');
        }
        return rows;
    }

    QListWidget* EventList() const
    {
        pInspector->UpdateStatus();
        return pInspector->findChild<QListWidget*>("InspectorEvents");
    }

    /// What happened, without the times.
    QStringList Events() const
    {
        const int timeSize = static_cast<int>(qstrlen("HH:mm:ss.zzz  "));
        QStringList events;
        for (int row = 0; row < EventList()->count(); ++row)
            events << EventList()->item(row)->text().mid(timeSize);
        return events;
    }

    QString State() const { return pInspector->findChild<QLabel*>()->text(); }

    HostFixture host;
    ControlLibrary library;
    DimensionInputController input;
    QWidget panel;
    std::unique_ptr<ControlHost> pControls = std::make_unique<ControlHost>();
    LineEditDefinition* pEdit = nullptr;
    std::unique_ptr<Inspector> pInspector;
};

}
