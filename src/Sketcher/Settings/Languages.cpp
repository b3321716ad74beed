#include "Settings/Languages.h"

#include "Model/UiText.h"

#include <QDir>
#include <QLocale>
#include <QTranslator>

namespace
{

/// Each catalogue translates this into the name of its own language.
constexpr const char* SourceLanguage = "中文"_source;

/// Qt names a language without a country after one country: "American English".
QString NameOf(const QString& locale, const QString& path)
{
    QTranslator catalogue;
    const QString own =
        catalogue.load(path) ? catalogue.translate("Sketcher", SourceLanguage) : QString();
    const QString name = own.isEmpty() ? QLocale(locale).nativeLanguageName() : own;
    return name.isEmpty() ? locale : name;
}

}

QVector<Language> FindLanguages(const QString& folder)
{
    QVector<Language> languages = {
        {QString(), "与桌面相同"_tr},
        {QStringLiteral("zh"), QString::fromUtf8(SourceLanguage)},
    };
    const QString prefix = QStringLiteral("sketcher_");
    const QDir catalogues(folder, prefix + QStringLiteral("*.qm"), QDir::Name, QDir::Files);
    for (const QString& file : catalogues.entryList())
    {
        const QString locale = file.chopped(3).mid(prefix.size());
        if (locale != languages[1].locale)
            languages.append({locale, NameOf(locale, catalogues.filePath(file))});
    }
    return languages;
}
