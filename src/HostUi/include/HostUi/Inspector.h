#pragma once

#include "Dock/IPropertyWidget.h"
#include "HostUi/ControlHost.h"
#include "HostUi/HostUiExport.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <map>
#include <memory>
#include <string>

class QLabel;
class QListWidget;
class QTreeWidget;

namespace vesk
{

class DimensionInputController;
class IControlDefinition;
class IControlDefinitionChangeEventArgs;

/// Shows what a host and the library tell each other: all live definitions with their values, the
/// change events as they happen and who made them, the running action, and the dimension input.
///
/// Keeps itself in step while it can be seen. It keeps the newest 1,000 events.
class VESK_HOST_UI_API Inspector final : public QWidget,
                                         public IWidget,
                                         public IControlRemovalObserver
{
    Q_OBJECT

public:
    /// Listens to the definitions that there are then, and later to new ones. The arguments are not
    /// owned; Stop is called before they go. The only observer of removals.
    Inspector(ControlHost& controls, const DimensionInputController& input);
    ~Inspector() override;

    void UpdateStatus() override;
    void OnControlRemoved(const IControlDefinition& definition) override;

    /// Looks at nothing any more.
    void Stop();

protected:
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    class Watch;

    void Listen();
    void AddEvent(const std::wstring& id, const IControlDefinitionChangeEventArgs& args);
    void ShowState();
    void ShowDefinitions();
    void ShowEvents();

    ControlHost* m_pControls;
    const DimensionInputController* m_pInput;
    QLabel* m_pState;
    QTreeWidget* m_pDefinitions;
    QListWidget* m_pEvents;

    /// Those that are not in the list yet: there may be thousands at a time.
    QStringList m_newEvents;
    QTimer m_refresh;

    /// One for each definition listened to.
    std::map<const IControlDefinition*, std::unique_ptr<Watch>> m_watches;
};

}
