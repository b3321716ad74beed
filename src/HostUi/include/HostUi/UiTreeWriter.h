#pragma once

#include "HostUi/HostUiExport.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <string>

namespace vesk
{

class DimensionInputController;

/// Keeps a JSON file that describes what is on screen: controls, views, the editor, the running
/// action.
///
/// After a change the file is replaced as a whole as soon as the event loop is idle, and at the
/// latest after 200 ms, in nested loops too.
class VESK_HOST_UI_API UiTreeWriter final : public QObject
{
    Q_OBJECT

public:
    /// Counts the entities of the drawing.
    using EntityCount = std::function<int()>;

    /// Writes to `path`. The controller is not owned and must outlive the writer.
    UiTreeWriter(const QString& path, const DimensionInputController& input,
                 EntityCount countEntities);
    ~UiTreeWriter() override;

    /// Writes now. Returns false if the file cannot be written.
    bool Write();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    QString m_path;
    const DimensionInputController& m_input;
    EntityCount m_countEntities;
    std::string m_written;
    QTimer m_whenIdle;
    QTimer m_atTheLatest;
};

}
