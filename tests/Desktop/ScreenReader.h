#pragma once

#include "Support/ChildProcess.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

namespace vesk
{

/// A user who cannot see the screen: knows what programs tell on the accessibility bus.
class ScreenReader
{
public:
    ScreenReader() = default;
    ~ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    /// Joins the bus of that environment.
    bool Start(const QMap<QString, QString>& environment);

    /// The first object on screen with these properties (`name`, `role`, `description`, `focused`);
    /// empty if there is none in time.
    QJsonObject Find(const QJsonObject& wanted);

    /// Does the first action of the object with that name and role.
    bool Press(const QString& name, const QString& role);

    /// The texts of a table's cells, row by row.
    QJsonArray GetRows(const QString& table);

    /// Waits until an event has told of an object with these properties.
    bool Hears(const QString& event, const QJsonObject& wanted);

    /// All that was told since the start, for diagnosis.
    const QJsonArray& GetHeard() const { return m_heard; }

private:
    QJsonValue Ask(const QString& what, QJsonObject request = {});

    ChildProcess m_client;
    QJsonArray m_heard;
    int m_understood = 0; ///< So many of these have been waited for.
};

}
