#include "RecoveryUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"

#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLocale>

namespace
{

QString LetterOf(const QString& text)
{
    return QKeySequence::mnemonic(text).toString();
}

/// The keys that the controls of a dialog have by a letter of their texts.
QStringList LettersOf(const QWidget& dialog)
{
    QStringList letters;
    for (const auto* pButton : dialog.findChildren<QAbstractButton*>())
    {
        if (pButton->isVisible())
            letters << LetterOf(pButton->text());
    }
    for (const auto* pLabel : dialog.findChildren<QLabel*>())
    {
        if (pLabel->isVisible() && pLabel->buddy() != nullptr)
            letters << LetterOf(pLabel->text());
    }
    letters.removeAll(QString());
    letters.sort();
    return letters;
}

}

/// The letters that are underlined in dialogs.
class DialogLettersTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void eachLetterBelongsToOneControl_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("command");

        for (const QLocale& locale :
             {QLocale(QLocale::English), QLocale(QLocale::German), QLocale::c()})
        {
            for (const char* command : {"Settings", "Open", "SaveAs", "Print", "Export", "Import"})
                QTest::addRow("%s, %s", command, qPrintable(locale.name()))
                    << locale << QString("Sketcher.") + command;
        }
    }

    void eachLetterBelongsToOneControl()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, command);
        ScriptedUser user;
        QStringList letters;

        user.DrawLine(0, 0, 50, 20);
        user.Do([command] { ScriptedUser::FindButton(command)->click(); })
            .Until([] { return ScriptedUser::FindDialog() != nullptr; })
            .Do([&letters] { letters = LettersOf(*ScriptedUser::FindDialog()); })
            .Do([] { ScriptedUser::FindDialog()->reject(); });

        QCOMPARE(RunIn(locale, user, m_pFixture->Draw()), 0);
        VerifyOnce(letters);
    }

    void eachLetterOfTheQuestionToSaveBelongsToOneControl_data()
    {
        QTest::addColumn<QLocale>("locale");

        QTest::newRow("English") << QLocale(QLocale::English);
        QTest::newRow("German") << QLocale(QLocale::German);
        QTest::newRow("Chinese") << QLocale::c();
    }

    void eachLetterOfTheQuestionToSaveBelongsToOneControl()
    {
        QFETCH(QLocale, locale);
        ScriptedUser user;
        QStringList letters;

        user.DrawLine(0, 0, 50, 20);
        OpenDialog(user, "Sketcher.New");
        user.Do([&letters] { letters = LettersOf(*FindQuestion()); }).Do(&Discard);

        QCOMPARE(RunIn(locale, user, Options()), 0);
        VerifyOnce(letters);
    }

private:
    /// Runs an attended session in the language of a locale.
    static int RunIn(const QLocale& locale, ScriptedUser& user, const Options& options)
    {
        const ScopedVariable attended("VESK_UNATTENDED", {});
        const QLocale former;
        QLocale::setDefault(locale);
        const int code = user.Run(options);
        QLocale::setDefault(former);
        return code;
    }

    static void VerifyOnce(const QStringList& letters)
    {
        QVERIFY(!letters.isEmpty());
        QStringList once = letters;
        once.removeDuplicates();
        QCOMPARE(letters.join(' '), once.join(' '));
    }
};

VESK_TESTS(DialogLettersTest);
#include "DialogLettersTest.moc"
