#include "Settings/Settings.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>

using nlohmann::json;

namespace
{

constexpr const char* ColourNames[] = {"desktop", "light", "dark", "contrast"};
constexpr const char* UnitNames[] = {"mm", "cm", "m", "inch"};

/// In the order of the kinds.
constexpr const char* SnapNames[Snapper::KindCount] = {"end", "middle", "centre", "intersection",
                                                       "grid"};

/// An object; empty if the text is not one.
json ReadObject(const std::string& text)
{
    json object = json::parse(text, nullptr, false);
    return object.is_object() ? object : json::object();
}

QString TextOf(const json& object, const char* name, const QString& byDefault)
{
    const auto found = object.find(name);
    return found != object.end() && found->is_string()
               ? QString::fromStdString(found->get<std::string>())
               : byDefault;
}

bool TruthOf(const json& object, const char* name, bool byDefault)
{
    const auto found = object.find(name);
    return found != object.end() && found->is_boolean() ? found->get<bool>() : byDefault;
}

QStringList ListOf(const json& object, const char* name)
{
    QStringList texts;
    const auto found = object.find(name);
    if (found == object.end() || !found->is_array())
        return texts;
    for (const json& text : *found)
    {
        if (text.is_string())
            texts << QString::fromStdString(text.get<std::string>());
    }
    return texts;
}

/// A whole number from 0 to a greatest one.
int NumberOf(const json& object, const char* name, int greatest, int byDefault)
{
    const auto found = object.find(name);
    if (found == object.end() || !found->is_number_unsigned())
        return byDefault;
    const auto number = found->get<json::number_unsigned_t>();
    return number <= static_cast<json::number_unsigned_t>(greatest) ? static_cast<int>(number)
                                                                    : byDefault;
}

/// The index of a name in a list; the default's if it is not there.
template <std::size_t Count>
std::size_t IndexOf(const char* const (&names)[Count], const QString& name, std::size_t byDefault)
{
    const auto found = std::find(std::begin(names), std::end(names), name);
    return found != std::end(names) ? static_cast<std::size_t>(found - std::begin(names))
                                    : byDefault;
}

}

bool operator==(const Settings& a, const Settings& b)
{
    return a.language == b.language && a.colours == b.colours && a.unit == b.unit &&
           a.snaps == b.snaps && a.isSpaceCommitting == b.isSpaceCommitting &&
           a.journalFolder == b.journalFolder && a.autosaveMinutes == b.autosaveMinutes &&
           a.isRibbonFolded == b.isRibbonFolded;
}

Settings SettingsFromText(const std::string& text)
{
    const json object = ReadObject(text);
    Settings settings;
    settings.language = TextOf(object, "language", settings.language);
    settings.colours =
        static_cast<Settings::Colours>(IndexOf(ColourNames, TextOf(object, "colours", {}), 0));
    settings.unit =
        QString::fromLatin1(UnitNames[IndexOf(UnitNames, TextOf(object, "unit", {}), 0)]);
    const auto snaps = object.find("snaps");
    const json noSnaps = json::object();
    for (std::size_t i = 0; i < settings.snaps.size(); ++i)
        settings.snaps[i] = TruthOf(snaps != object.end() && snaps->is_object() ? *snaps : noSnaps,
                                    SnapNames[i], settings.snaps[i]);
    settings.isSpaceCommitting = TruthOf(object, "spaceCommits", settings.isSpaceCommitting);
    settings.isRibbonFolded = TruthOf(object, "ribbonFolded", settings.isRibbonFolded);
    settings.journalFolder = TextOf(object, "journalFolder", settings.journalFolder);
    settings.formerJournalFolders = ListOf(object, "formerJournalFolders");
    settings.autosaveMinutes = NumberOf(
        object, "autosaveMinutes", Settings::GreatestAutosaveMinutes, settings.autosaveMinutes);
    return settings;
}

std::string ToText(const Settings& settings, const std::string& formerText)
{
    json object = ReadObject(formerText);
    object["language"] = settings.language.toStdString();
    object["colours"] = ColourNames[static_cast<std::size_t>(settings.colours)];
    object["unit"] = settings.unit.toStdString();
    json& snaps = object["snaps"];
    if (!snaps.is_object())
        snaps = json::object();
    for (std::size_t i = 0; i < settings.snaps.size(); ++i)
        snaps[SnapNames[i]] = settings.snaps[i];
    object["spaceCommits"] = settings.isSpaceCommitting;
    object["ribbonFolded"] = settings.isRibbonFolded;
    object["journalFolder"] = settings.journalFolder.toStdString();
    json& former = object["formerJournalFolders"] = json::array();
    for (const QString& folder : settings.formerJournalFolders)
        former.push_back(folder.toStdString());
    object["autosaveMinutes"] = settings.autosaveMinutes;
    constexpr int Indent = 4;
    return object.dump(Indent, ' ', false, json::error_handler_t::replace) + '\n';
}
