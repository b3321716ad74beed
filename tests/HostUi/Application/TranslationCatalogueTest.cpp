#include "HostUi/TranslationCatalogue.h"

#include "Support/TestValues.h"

namespace vesk
{

/// Translation catalogues; `catalogue_de.qm` is compiled from `catalogue_de.ts`.
class TranslationCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    void textsOfTheCatalogueAreTranslated();
    void textsOfTheLibraryAreInIt_data();
    void textsOfTheLibraryAreInIt();
    void textsOfTheDrawingProgramAreNotInTheLibrary();
    void otherTextsStand_data();
    void otherTextsStand();
    void localesWithoutACatalogueKeepTheSourceTexts_data();
    void localesWithoutACatalogueKeepTheSourceTexts();
    void nothingIsTranslatedWhenTheCatalogueIsGone();

private:
    static std::wstring Translate(const std::wstring& context, const std::wstring& text)
    {
        return TranslatorManager::Get()->Translate(context, text);
    }

    const QString m_folder = QStringLiteral(VESK_TEST_DATA);
    const QString m_name = QStringLiteral("catalogue");
};

void TranslationCatalogueTest::textsOfTheCatalogueAreTranslated()
{
    const TranslationCatalogue catalogue(m_folder, m_name, QLocale(QLocale::German));

    QCOMPARE(Translate(L"VeskUiQtImpl", L"忽略一次"), std::wstring(L"Einmal übergehen"));
}

void TranslationCatalogueTest::textsOfTheLibraryAreInIt_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("translation");

    const QLocale english(QLocale::English);
    const QLocale german(QLocale::German, QLocale::Austria);
    QTest::newRow("host") << english << "Host"
                          << "长度"
                          << "Length";
    QTest::newRow("its Qt side") << english << "HostUi"
                                 << "取消"
                                 << "Cancel";
    QTest::newRow("control library") << english << "VeskUiQtImpl"
                                     << "忽略一次"
                                     << "Ignore once";
    QTest::newRow("German") << german << "Host"
                            << "长度"
                            << "Länge";
    QTest::newRow("C") << QLocale::c() << "Host"
                       << "长度"
                       << "长度";
}

void TranslationCatalogueTest::textsOfTheLibraryAreInIt()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, context);
    QFETCH(QString, text);
    QFETCH(QString, translation);
    const TranslationCatalogue catalogue(locale);

    QCOMPARE(Translate(context.toStdWString(), text.toStdWString()), translation.toStdWString());
}

void TranslationCatalogueTest::textsOfTheDrawingProgramAreNotInTheLibrary()
{
    const TranslationCatalogue catalogue{QLocale(QLocale::English)};

    QCOMPARE(Translate(L"Sketcher", L"直线"), std::wstring(L"直线"));
}

void TranslationCatalogueTest::otherTextsStand_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("text");

    QTest::newRow("another text") << "VeskUiQtImpl"
                                  << "忽略所有";
    QTest::newRow("another context") << "Sketcher"
                                     << "忽略一次";
    QTest::newRow("beyond the basic plane") << "VeskUiQtImpl"
                                            << "𠀀";
    QTest::newRow("no text") << "VeskUiQtImpl"
                             << "";
}

void TranslationCatalogueTest::otherTextsStand()
{
    QFETCH(QString, context);
    QFETCH(QString, text);
    const TranslationCatalogue catalogue(m_folder, m_name, QLocale(QLocale::German));

    QCOMPARE(Translate(context.toStdWString(), text.toStdWString()), text.toStdWString());
}

void TranslationCatalogueTest::localesWithoutACatalogueKeepTheSourceTexts_data()
{
    QTest::addColumn<QLocale>("locale");

    QTest::newRow("C") << QLocale::c();
    QTest::newRow("Chinese") << QLocale(QLocale::Chinese);
    QTest::newRow("English") << QLocale(QLocale::English);
}

void TranslationCatalogueTest::localesWithoutACatalogueKeepTheSourceTexts()
{
    QFETCH(QLocale, locale);
    const TranslationCatalogue catalogue(m_folder, m_name, locale);

    QCOMPARE(Translate(L"VeskUiQtImpl", L"忽略一次"), std::wstring(L"忽略一次"));
}

void TranslationCatalogueTest::nothingIsTranslatedWhenTheCatalogueIsGone()
{
    {
        const TranslationCatalogue catalogue(m_folder, m_name, QLocale(QLocale::German));
    }

    QCOMPARE(Translate(L"VeskUiQtImpl", L"忽略一次"), std::wstring(L"忽略一次"));
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::TranslationCatalogueTest);
#include "TranslationCatalogueTest.moc"
