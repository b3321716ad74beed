#include "ReplayOptions.h"

#include "Journal/JournalRecord.h"

#include <QCommandLineParser>

#include <algorithm>

using namespace vesk;

namespace
{

const QString s_sync = QStringLiteral("journal-sync");
const QString s_until = QStringLiteral("until");
const QString s_speed = QStringLiteral("speed");
const QString s_stay = QStringLiteral("stay");

/// The number of a record; nothing, with the error set, if the text is none.
std::optional<int> ReadNumber(const QString& text, QString& error)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber && number > 0)
        return number;
    error = QStringLiteral("%1 is not the number of a record").arg(text);
    return std::nullopt;
}

}

void ReplayOptions::Declare(QCommandLineParser& parser)
{
    parser.addOptions({
        {s_sync, QStringLiteral("write each journal record to disk before it is done")},
        {s_until, QStringLiteral("with --replay: stop after record N"), QStringLiteral("N")},
        {s_speed, QStringLiteral("with --replay: max (default), or real to watch it as recorded"),
         QStringLiteral("SPEED")},
        {s_stay, QStringLiteral("with --replay: show the window afterwards")},
    });
}

ReplayOptions ReplayOptions::Read(const QCommandLineParser& parser, bool isContinued,
                                  QString& error)
{
    ReplayOptions options;
    for (const QString& name : {s_until, s_speed, s_stay})
    {
        if (parser.isSet(name) && !parser.isSet(QStringLiteral("replay")))
            error = QStringLiteral("--%1 needs --replay").arg(name);
    }
    if (parser.isSet(s_until))
        options.until = ReadNumber(parser.value(s_until), error);
    if (parser.isSet(s_until) && isContinued)
        error = QStringLiteral("--until cannot be used with a journal that is continued");
    const QString speed = parser.value(s_speed);
    options.isRealTime = speed == QLatin1String("real");
    if (parser.isSet(s_speed) && !options.isRealTime && speed != QLatin1String("max"))
        error = QStringLiteral("unknown speed %1").arg(speed);
    options.isSynced = parser.isSet(s_sync);
    options.isStaying = parser.isSet(s_stay);
    return options;
}

/// Ends of commands that follow directly belong to what was done up to there.
void ReplayOptions::Cut(std::vector<JournalRecord>& records) const
{
    if (!until.has_value())
        return;
    const auto isAfter = [this](const JournalRecord& record) { return record.number > *until; };
    records.erase(std::find_if(records.begin(), records.end(), isAfter), records.end());
}
