#include "Support/TestValues.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <vector>

namespace
{

/// A text of a catalogue and its translation, in all its plural forms.
struct Entry
{
    QString source;
    QStringList forms;
    bool isFinished = true;
    bool isPlural = false;
};

/// The forms that a plural has in English and in German.
constexpr int PluralForms = 2;

void ReadForms(QXmlStreamReader& xml, Entry& entry)
{
    entry.isFinished = xml.attributes().value("type").isEmpty();
    if (!entry.isPlural)
    {
        entry.forms << xml.readElementText();
        return;
    }
    while (xml.readNextStartElement())
        entry.forms << xml.readElementText();
}

std::vector<Entry> ReadEntries(const QString& path)
{
    QFile file(path);
    std::vector<Entry> entries;
    if (!file.open(QIODevice::ReadOnly))
        return entries;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
    {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("message"))
        {
            entries.emplace_back();
            entries.back().isPlural = xml.attributes().hasAttribute("numerus");
        }
        else if (xml.name() == QLatin1String("source"))
            entries.back().source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation"))
            ReadForms(xml, entries.back());
    }
    return entries;
}

/// "%1", "%n", … in the order of their names.
QStringList PlacesIn(const QString& text)
{
    static const QRegularExpression s_place(QStringLiteral("%[1-9n]"));
    QStringList places;
    auto matches = s_place.globalMatch(text);
    while (matches.hasNext())
        places << matches.next().captured();
    places.sort();
    return places;
}

/// What a text ends with, as English and German write it; empty for an ordinary character. The full
/// stop of an abbreviation is none.
QString EndOf(const QString& text)
{
    if (text.endsWith('.') && !text.contains(' '))
        return {};
    static const QHash<QChar, QString> s_ends = {
        {QChar(0x2026), "…"}, {QChar(0xff1a), ":"}, {':', ":"}, {QChar(0x3002), "."},
        {'.', "."},           {QChar(0xff1f), "?"}, {'?', "?"}, {'\t', "\t"}};
    const QString end = text.trimmed().right(1);
    return end.isEmpty() ? QString() : s_ends.value(end[0]);
}

}

/// The catalogues of translations in the tree.
class TranslationsTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyTextHasAFinishedTranslation_data() { AddCatalogues(); }
    void everyTextHasAFinishedTranslation()
    {
        VerifyEach([](const Entry& entry, const QString& form) {
            return entry.isFinished && !form.isEmpty();
        });
    }

    void noTranslationIsLeftInChinese_data() { AddCatalogues(); }
    void noTranslationIsLeftInChinese()
    {
        const QRegularExpression chinese(
            QStringLiteral("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]"));
        VerifyEach([&](const Entry&, const QString& form) { return !form.contains(chinese); });
    }

    void translationHasThePlacesOfItsText_data() { AddCatalogues(); }
    void translationHasThePlacesOfItsText()
    {
        VerifyEach([](const Entry& entry, const QString& form) {
            return PlacesIn(form) == PlacesIn(entry.source);
        });
    }

    void translationHasAShortcutLetterIfItsTextHas_data() { AddCatalogues(); }
    void translationHasAShortcutLetterIfItsTextHas()
    {
        VerifyEach([](const Entry& entry, const QString& form) {
            return form.count('&') == entry.source.count('&');
        });
    }

    void translationEndsAsItsText_data() { AddCatalogues(); }
    void translationEndsAsItsText()
    {
        VerifyEach([](const Entry& entry, const QString& form) {
            return EndOf(form) == EndOf(entry.source);
        });
    }

    void pluralHasAllItsForms_data() { AddCatalogues(); }
    void pluralHasAllItsForms()
    {
        VerifyEach([](const Entry& entry, const QString&) {
            return entry.forms.size() == (entry.isPlural ? PluralForms : 1) &&
                   entry.isPlural == entry.source.contains("%n");
        });
    }

private:
    static void AddCatalogues()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(VESK_TRANSLATIONS, "*.ts");
        for (const QString& name : folder.entryList())
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    template <class Rule>
    static void VerifyEach(const Rule& isKept)
    {
        QFETCH(QString, path);
        const std::vector<Entry> entries = ReadEntries(path);
        QVERIFY(!entries.empty());
        for (const Entry& entry : entries)
        {
            QVERIFY(!entry.forms.isEmpty());
            for (const QString& form : entry.forms)
                QVERIFY2(isKept(entry, form), qPrintable(entry.source + " -> " + form));
        }
    }
};

VESK_TESTS_WITHOUT_WINDOWS(TranslationsTest);
#include "TranslationsTest.moc"
