#include "Settings/Languages.h"

#include "Model/UiText.h"

#include <QDir>
#include <QLocale>

QVector<Language> FindLanguages(const QString& folder)
{
    QVector<Language> languages = {
        {QString(), "与桌面相同"_tr},
        {QStringLiteral("zh"), QStringLiteral("中文")},
    };
    const QString prefix = QStringLiteral("sketcher_");
    const QDir catalogues(folder, prefix + QStringLiteral("*.qm"), QDir::Name, QDir::Files);
    for (const QString& file : catalogues.entryList())
    {
        const QString locale = file.chopped(3).mid(prefix.size());
        const QString name = QLocale(locale).nativeLanguageName();
        if (locale != languages[1].locale)
            languages.append({locale, name.isEmpty() ? locale : name});
    }
    return languages;
}
