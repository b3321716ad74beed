#include "Model/UiText.h"

#include "Model/Pen.h"
#include "Model/Sketch.h"

#include "HostUi/TranslationCatalogue.h"
#include "Support/TestValues.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

using vesk::TranslationCatalogue;

namespace
{

QString Catalogues()
{
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../share/sketcher/translations");
}

/// Notes a text each time that it hears of another language.
class Listener final : public QWidget
{
public:
    QStringList heard;

protected:
    void changeEvent(QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::LanguageChange)
            heard << "直线"_tr;
    }
};

/// The program's texts in a language as long as it lives.
struct Speaking
{
    explicit Speaking(QLocale::Language language)
        : catalogue(Catalogues(), "sketcher", QLocale(language))
    {}

    TranslationCatalogue catalogue;
};

}

/// Texts of the program in the user's language, from the catalogues as they are built.
class UiTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void textIsInTheLanguageOfTheCatalogue_data()
    {
        QTest::addColumn<QLocale::Language>("language");
        QTest::addColumn<QString>("text");

        QTest::newRow("English") << QLocale::English << "Nothing selected";
        QTest::newRow("German") << QLocale::German << "Nichts ausgewählt";
        QTest::newRow("Chinese") << QLocale::Chinese << "未选图元";
        QTest::newRow("without a catalogue") << QLocale::Icelandic << "未选图元";
        QTest::newRow("C") << QLocale::C << "未选图元";
    }

    void textIsInTheLanguageOfTheCatalogue()
    {
        QFETCH(QLocale::Language, language);
        QFETCH(QString, text);
        const Speaking speaking(language);

        QCOMPARE("未选图元"_tr, text);
        QCOMPARE(L"未选图元"_tr, text.toStdWString());
    }

    void numberSelectsThePluralForm_data()
    {
        QTest::addColumn<QLocale::Language>("language");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");

        QTest::newRow("one, English") << QLocale::English << 1 << "1 entity selected";
        QTest::newRow("two, English") << QLocale::English << 2 << "2 entities selected";
        QTest::newRow("none, German") << QLocale::German << 0 << "0 Objekte ausgewählt";
        QTest::newRow("one, German") << QLocale::German << 1 << "1 Objekt ausgewählt";
        QTest::newRow("one, Chinese") << QLocale::Chinese << 1 << "已选 1 个图元";
    }

    void numberSelectsThePluralForm()
    {
        QFETCH(QLocale::Language, language);
        QFETCH(int, number);
        QFETCH(QString, text);
        const Speaking speaking(language);

        QCOMPARE(Tr("已选 %n 个图元"_source, number), text);
    }

    void otherTextsStand()
    {
        const Speaking german(QLocale::German);

        QCOMPARE(Tr("0.25 mm"), QString("0.25 mm"));
        QCOMPARE(Tr(L"Holes"), std::wstring(L"Holes"));
    }

    void languageCanBeChanged()
    {
        Speaking speaking(QLocale::German);

        speaking.catalogue.SetLocale(QLocale(QLocale::English));
        const QString english = "未选图元"_tr;
        speaking.catalogue.SetLocale(QLocale::c());

        QCOMPARE(english, QString("Nothing selected"));
        QCOMPARE("未选图元"_tr, QString("未选图元"));
    }

    void widgetsAreToldWhenTheTextsHaveChanged_data()
    {
        QTest::addColumn<QLocale>("former");
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");

        const QLocale german(QLocale::German);
        QTest::newRow("to another catalogue") << QLocale(QLocale::English) << german << "Linie";
        QTest::newRow("to a catalogue") << QLocale::c() << german << "Linie";
        QTest::newRow("to none") << german << QLocale::c() << "直线";
    }

    void widgetsAreToldWhenTheTextsHaveChanged()
    {
        QFETCH(QLocale, former);
        QFETCH(QLocale, locale);
        TranslationCatalogue catalogue(Catalogues(), "sketcher", former);
        Listener listener;
        QCoreApplication::processEvents();
        listener.heard.clear();

        catalogue.SetLocale(locale);

        QTRY_VERIFY(!listener.heard.isEmpty());
        QTEST(listener.heard.first(), "text");
        QTEST(listener.heard.last(), "text");
    }

    void tablesHoldSourceTexts()
    {
        const Speaking german(QLocale::German);

        const LineStyle& dashed = LineStyles()[1];

        QCOMPARE(dashed.name, std::wstring(L"dashed"));
        QCOMPARE(dashed.caption, std::wstring(L"虚线"));
        QCOMPARE(Tr(dashed.caption), std::wstring(L"Gestrichelt"));
    }

    void newDrawingIsShownInTheLanguageButNotNamedInIt()
    {
        const Speaking english(QLocale::English);

        const Sketch sketch;

        QCOMPARE(sketch.GetName(), std::wstring(L"未命名"));
        QCOMPARE(sketch.GetShownName(), std::wstring(L"Untitled"));
    }

    void nameThatSomebodyGaveIsShownAsItIs()
    {
        const Speaking english(QLocale::English);
        Sketch sketch;

        sketch.SetName(L"图纸");

        QCOMPARE(sketch.GetShownName(), std::wstring(L"图纸"));
    }
};

VESK_TESTS(UiTextTest);
#include "UiTextTest.moc"
