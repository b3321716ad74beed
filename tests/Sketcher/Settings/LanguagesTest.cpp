#include "Settings/Languages.h"

#include "Support/TestValues.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// Which languages can be chosen.
class LanguagesTest final : public QObject
{
    Q_OBJECT

private slots:
    void theDesktopsAndTheSourcesLanguageAreAlwaysThere()
    {
        const QVector<Language> languages = FindLanguages(QStringLiteral("/nowhere"));

        QCOMPARE(languages.size(), 2);
        QCOMPARE(languages[0].locale, QString());
        QCOMPARE(languages[0].caption, QStringLiteral("与桌面相同"));
        QCOMPARE(languages[1].locale, QString("zh"));
        QCOMPARE(languages[1].caption, QStringLiteral("中文"));
    }

    void eachCatalogueIsALanguage()
    {
        const QTemporaryDir folder;
        for (const char* name :
             {"sketcher_de.qm", "sketcher_zh.qm", "other_fr.qm", "sketcher_it.ts"})
        {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }

        const QVector<Language> languages = FindLanguages(folder.path());

        QCOMPARE(languages.size(), 3);
        QCOMPARE(languages[2].locale, QString("de"));
        QCOMPARE(languages[2].caption, QString("Deutsch"));
    }

    void aCatalogueNamesItsLanguage()
    {
        const QDir programs(QCoreApplication::applicationDirPath());

        const QVector<Language> languages =
            FindLanguages(programs.filePath("../share/sketcher/translations"));

        QCOMPARE(languages.size(), 4);
        QCOMPARE(languages[2].caption, QString("Deutsch"));
        QCOMPARE(languages[3].caption, QString("English"));
    }
};

VESK_TESTS(LanguagesTest);
#include "LanguagesTest.moc"
