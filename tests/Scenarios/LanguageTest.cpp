#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Settings/SettingsDialog.h"
#include "SketcherWindow.h"

#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableView>
#include <QTextBrowser>

namespace
{

/// The locale that programs follow, as long as it lives; not a locale of the machine.
class ScopedLocale
{
public:
    explicit ScopedLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~ScopedLocale() { QLocale::setDefault(m_former); }
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

private:
    const QLocale m_former;
};

QStringList TextsOf(const QAbstractItemView& view)
{
    QStringList texts;
    const QAbstractItemModel& model = *view.model();
    for (int column = 0; column < model.columnCount(); ++column)
    {
        texts << model.headerData(column, Qt::Horizontal).toString()
              << model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
        for (int row = 0; row < model.rowCount(); ++row)
            texts << model.index(row, column).data().toString()
                  << model.index(row, column).data(Qt::ToolTipRole).toString();
    }
    return texts;
}

/// What a widget shows of its own, and its tips.
QStringList TextsOf(const QWidget& widget)
{
    QStringList texts = {widget.windowTitle(), widget.toolTip(), widget.accessibleName()};
    for (const QAction* pAction : widget.actions())
        texts << pAction->text() << pAction->toolTip();
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(&widget))
        texts << pButton->text();
    if (const auto* pLabel = qobject_cast<const QLabel*>(&widget))
        texts << pLabel->text();
    if (const auto* pBox = qobject_cast<const QGroupBox*>(&widget))
        texts << pBox->title();
    if (const auto* pEdit = qobject_cast<const QLineEdit*>(&widget))
        texts << pEdit->text() << pEdit->placeholderText();
    if (const auto* pSpin = qobject_cast<const QSpinBox*>(&widget))
        texts << pSpin->suffix() << pSpin->specialValueText();
    if (const auto* pGroup = dynamic_cast<const Qtitan::RibbonGroup*>(&widget))
        texts << pGroup->title();
    if (const auto* pPage = dynamic_cast<const Qtitan::RibbonPage*>(&widget))
        texts << pPage->title();
    if (const auto* pBrowser = qobject_cast<const QTextBrowser*>(&widget))
        texts << pBrowser->toPlainText();
    const auto* pView = qobject_cast<const QAbstractItemView*>(&widget);
    if (pView != nullptr && pView->model() != nullptr && !qobject_cast<const QHeaderView*>(pView))
        texts << TextsOf(*pView);
    return texts;
}

/// The texts on screen, and those of hidden panes and pages, that are left in Chinese.
QStringList ChineseTexts()
{
    static const QRegularExpression s_chinese(
        QStringLiteral("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]"));
    // The name of a language is in itself.
    static const QString s_name = QStringLiteral("中文");
    QStringList found;
    for (const QWidget* pWidget : QApplication::allWidgets())
    {
        for (const QString& text : TextsOf(*pWidget))
        {
            if (text.contains(s_chinese) && text != s_name)
                found << QString(pWidget->metaObject()->className()) + ": " + text;
        }
    }
    return found;
}

bool IsDialogOpen()
{
    return ScriptedUser::FindDialog() != nullptr;
}

void CloseDialogs()
{
    for (QWidget* pWidget : QApplication::topLevelWidgets())
    {
        if (auto* pDialog = qobject_cast<QDialog*>(pWidget))
            pDialog->reject();
    }
}

/// Opens the settings, chooses a language and closes them.
void ChooseLanguage(const QString& locale)
{
    ScriptedUser::FindButton("Sketcher.Settings")->click();
    QTRY_VERIFY(ScriptedUser::FindWindow()->findChild<SettingsDialog*>() != nullptr);
    auto* pDialog = ScriptedUser::FindWindow()->findChild<SettingsDialog*>();
    auto* pBox = pDialog->findChild<QComboBox*>("Language");
    pBox->setCurrentIndex(pBox->findData(locale));
    pDialog->findChild<QPushButton*>("Accept")->click();
}

int CountRecords()
{
    return ScriptedUser::FindWindow()
        ->findChild<QAbstractItemView*>("JournalRecords")
        ->model()
        ->rowCount();
}

QString Prompt()
{
    const auto labels = ScriptedUser::FindWindow()->findChildren<QLabel*>();
    for (const QLabel* pLabel : labels)
    {
        if (pLabel->text().contains("Esc "))
            return pLabel->text();
    }
    return {};
}

}

/// The whole program in another language.
class LanguageTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void nothingOnScreenIsLeftInChinese_data() { AddLanguages(); }
    void nothingOnScreenIsLeftInChinese()
    {
        QFETCH(QLocale, locale);
        const ScopedLocale scope(locale);
        ScriptedUser user;

        user.DrawLine(0, 0, 50, 20).Do([] { QCOMPARE(ChineseTexts(), QStringList()); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void noDialogIsLeftInChinese_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("command");

        for (const char* command : {"Sketcher.Settings", "Sketcher.Help", "Sketcher.About"})
        {
            QTest::addRow("%s, English", command) << QLocale(QLocale::English) << command;
            QTest::addRow("%s, German", command) << QLocale(QLocale::German) << command;
        }
    }

    void noDialogIsLeftInChinese()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, command);
        const ScopedLocale scope(locale);
        ScriptedUser user;

        user.Do([command] { ScriptedUser::FindButton(command)->click(); })
            .Until(&IsDialogOpen)
            .Do([] { QCOMPARE(ChineseTexts(), QStringList()); })
            .Do(&CloseDialogs);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void promptsSpeakTheLanguage_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("prompt");

        QTest::newRow("English") << QLocale(QLocale::English)
                                 << "Line: click the start or type its coordinates; Esc ends";
        QTest::newRow("German")
            << QLocale(QLocale::German)
            << "Linie: Startpunkt klicken oder Koordinaten eingeben; Esc beendet";
        QTest::newRow("C") << QLocale::c() << "直线：单击起点，或键入坐标；Esc 结束";
    }

    void promptsSpeakTheLanguage()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, prompt);
        const ScopedLocale scope(locale);
        ScriptedUser user;

        user.Click("Sketcher.Line").UntilRunning("Sketcher.Line");
        user.Do([prompt] { QTRY_COMPARE(Prompt(), prompt); }).Press(Qt::Key_Escape);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void languageChosenInTheSettingsHoldsAtOnce_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("title");

        QTest::newRow("English") << "en"
                                 << "Untitled[*] - Sketcher";
        QTest::newRow("German") << "de"
                                << "Unbenannt[*] - Sketcher";
    }

    void languageChosenInTheSettingsHoldsAtOnce()
    {
        QFETCH(QString, language);
        QFETCH(QString, title);
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 20).Click("Sketcher.Unit.cm").Click("Sketcher.Snap.Grid");
        user.Click("Sketcher.Help").Click("Sketcher.About");

        user.Do([language] { ChooseLanguage(language); })
            .Until([title] { return ScriptedUser::FindWindow()->windowTitle() == title; })
            .Do([] { QCOMPARE(ChineseTexts(), QStringList()); })
            .Do([] { QVERIFY(ScriptedUser::FindButton("Sketcher.Unit.cm")->isChecked()); })
            .Do([] { QVERIFY(ScriptedUser::FindButton("Sketcher.Snap.Grid")->isChecked()); });
        user.Click("Sketcher.Snap.Grid")
            .DrawLine(0, 10, 50, 30)
            .Press(Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 1);
        VerifyReplay();
    }

    void numbersAreWrittenAsInTheCountry_data()
    {
        QTest::addColumn<QLocale>("users");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("expected");

        const QLocale swiss(QLocale::German, QLocale::Switzerland);
        QTest::newRow("the user's") << QLocale(QLocale::German) << QString() << "1234,500";
        QTest::newRow("the chosen language's") << QLocale::c() << "de"
                                               << "1234,500";
        QTest::newRow("the country's") << swiss << "de"
                                       << "1234.500";
        QTest::newRow("another language's") << QLocale(QLocale::German) << "en"
                                            << "1234.500";
    }

    void numbersAreWrittenAsInTheCountry()
    {
        QFETCH(QLocale, users);
        QFETCH(QString, language);
        const ScopedLocale locale(users);
        ScriptedUser user;
        QString shown;

        if (!language.isEmpty())
            user.Do([language] { ChooseLanguage(language); });
        user.Until([language] {
            const QString title = ScriptedUser::FindWindow()->windowTitle();
            return title.startsWith(language == "en" ? "Untitled" : "Unbenannt");
        });
        user.Click("Sketcher.Line").ClickAt(0, 0).Type("1234.5").Press(Qt::Key_Return);
        user.Press(Qt::Key_Escape).UntilRunning(QString());
        QFETCH(QString, expected);
        // The list is built anew when the language changes, which waits until the tool has ended.
        user.Until([&shown, expected] {
            const auto* pList = ScriptedUser::FindWindow()->findChild<QTableView*>("Entities");
            shown = pList->model()->index(0, pList->model()->columnCount() - 1).data().toString();
            return shown.contains(expected);
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY2(shown.contains(expected), qPrintable(shown));
        QVERIFY2(QLocale() == users, "the former locale is not restored");
    }

    void journalPaneKeepsItsRecords()
    {
        ScriptedUser user;
        int before = 0;

        user.DrawLine(0, 0, 50, 20).Do([&before] { before = CountRecords(); });
        user.Do([] { ChooseLanguage("de"); }).Until([] {
            return ScriptedUser::FindWindow()->windowTitle() == "Unbenannt[*] - Sketcher";
        });

        user.Do([&before] { QTRY_VERIFY(CountRecords() >= before); });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY(before > 0);
    }

    void languageCanBeChangedAgainAndAgain()
    {
        ScriptedUser user;

        for (const char* language : {"de", "en", "zh"})
            user.Do([language] { ChooseLanguage(language); }).Until([] { return !IsDialogOpen(); });
        user.Until(
            [] { return ScriptedUser::FindWindow()->windowTitle() == "未命名[*] - Sketcher"; });
        user.DrawLine(0, 10, 50, 30);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 1);
    }

    void whatWasDrawnIsReplayedInAnyLanguage_data() { AddLanguages(); }
    void whatWasDrawnIsReplayedInAnyLanguage()
    {
        QFETCH(QLocale, locale);
        {
            const ScopedLocale scope(locale);
            ScriptedUser user;
            user.DrawLine(0, 0, 50, 20).ChooseItem("Sketcher.LineColour", 2);
            user.DrawLine(0, 10, 50, 30).Click("Sketcher.Undo").Click("Sketcher.Redo");
            QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        }

        QCOMPARE(Model().size(), 2);
        VerifyReplay();
    }

private:
    static void AddLanguages()
    {
        QTest::addColumn<QLocale>("locale");

        QTest::newRow("English") << QLocale(QLocale::English);
        QTest::newRow("German") << QLocale(QLocale::German);
    }
};

VESK_TESTS(LanguageTest);
#include "LanguageTest.moc"
