#pragma once

#include "Dock/IPropertyWidget.h"
#include "HostUi/ControlHost.h"
#include "HostUi/HostUiExport.h"

#include <QString>
#include <QTimer>
#include <QWidget>

#include <deque>
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

/// Shows what passes between a host and the library: all live definitions with their values, the
/// change events and who caused them, the running action, and the dimension input.
///
/// While it can be seen, it refreshes itself within 200 ms after something happened in the program,
/// and rests while nothing does. Keeps the newest 1,000 events.
class VESK_HOST_UI_API Inspector final : public QWidget,
                                         public IWidget,
                                         public IControlRemovalObserver
{
    Q_OBJECT

public:
    /// Listens to all present definitions, and to new ones as they appear. The arguments are not
    /// owned; call Stop before they are destroyed. Becomes the control host's only removal
    /// observer.
    Inspector(ControlHost& controls, const DimensionInputController& input);
    ~Inspector() override;

    void UpdateStatus() override;
    void OnControlRemoved(const IControlDefinition& definition) override;

    /// Stops observing anything.
    void Stop();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    class Watch;

    void RefreshSoon();
    void OnRefreshDue();
    void Rest();
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

    /// Events not in the list yet; there may be thousands at a time.
    struct Event
    {
        qint64 time; ///< In milliseconds since 1970.
        std::wstring id;
        int type;
        int index;
        bool isByUser;
    };

    static QString Describe(const Event& event);

    /// Not shown yet. They come far more often than they are looked at, and are put into words only
    /// then.
    std::deque<Event> m_newEvents;
    QTimer m_refresh;

    /// One for each definition listened to.
    std::map<const IControlDefinition*, std::unique_ptr<Watch>> m_watches;
};

}
