#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"

#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLocale>
#include <QMenu>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QToolButton>

namespace
{

/// A row of a table: the command's name, its keys, what its tool tip says, and its id.
QString RowOf(const QString& name, const QString& toolTip, const QString& id)
{
    static const QRegularExpression s_keys(
        QStringLiteral("^(.*) \\(((?:Ctrl|Shift|Alt|Del|F[0-9])[^()]*)\\)$"));
    const QRegularExpressionMatch match = s_keys.match(toolTip);
    const QString keys = match.hasMatch() ? '`' + match.captured(2) + '`' : QString();
    QString meaning = match.hasMatch() ? match.captured(1) : toolTip;
    // The tool tips of tools begin with their names.
    if (meaning.startsWith(name + ": "))
        meaning = meaning.mid(name.size() + 2);
    meaning[0] = meaning.at(0).toUpper();
    return QStringLiteral("| %1 | %2 | %3 | `%4` |\n").arg(name, keys, meaning, id);
}

QString RowsOf(const QMenu& menu)
{
    QString rows;
    for (const QAction* pAction : menu.actions())
    {
        const QString id = pAction->property("CommandId").toString();
        if (pAction->menu() != nullptr)
            rows += RowsOf(*pAction->menu());
        else if (id.startsWith("Sketcher."))
            rows += RowOf(pAction->text(), pAction->toolTip(), id);
    }
    return rows;
}

QString RowsOf(const QList<QAbstractButton*>& buttons)
{
    QString rows;
    for (const auto* pButton : buttons)
    {
        const auto* pToolButton = qobject_cast<const QToolButton*>(pButton);
        if (!pButton->property("IsDefinition").toBool())
            continue;
        rows += RowOf(pButton->text(), pButton->toolTip(), pButton->objectName());
        if (pToolButton != nullptr && pToolButton->menu() != nullptr)
            rows += RowsOf(*pToolButton->menu());
    }
    return rows;
}

QString TableOf(const QString& rows)
{
    return QStringLiteral("\n| command | keys | what it does | id |\n|---|---|---|---|\n") + rows;
}

/// All commands of the ribbon, with a table for the row of the tabs and for each group.
QString CommandTables()
{
    const Qtitan::RibbonBar& ribbon = *ScriptedUser::FindWindow()->GetRibbon();
    const QList<QAbstractButton*> besideTheTabs =
        ribbon.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
    QString tables = QStringLiteral("\n## Beside the tabs\n") + TableOf(RowsOf(besideTheTabs));
    for (int i = 0; i < ribbon.pageCount(); ++i)
    {
        tables += QStringLiteral("\n## The page %1\n").arg(ribbon.page(i)->title());
        for (const auto* pGroup : ribbon.page(i)->findChildren<Qtitan::RibbonGroup*>())
        {
            const QString rows = RowsOf(pGroup->findChildren<QAbstractButton*>());
            if (!rows.isEmpty())
                tables += QStringLiteral("\n### %1\n").arg(pGroup->title()) + TableOf(rows);
        }
    }
    return tables;
}

QString PathOf(const QString& page)
{
    return QStringLiteral(VESK_MANUAL "/") + page;
}

QString Read(const QString& page)
{
    QFile file(PathOf(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Compares what a page says from a line on with what is so; replaces it if that is asked for.
void VerifyPage(const QString& page, const QString& line, const QString& expected)
{
    const QString text = Read(page);
    const int begin = text.indexOf(line) + line.size();
    QVERIFY2(begin >= line.size(), qPrintable(page + " has no line " + line));
    if (qEnvironmentVariableIntValue("VESK_WRITE_REFERENCE") == 1)
    {
        QFile file(PathOf(page));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write((text.left(begin) + expected).toUtf8());
    }
    QCOMPARE(Read(page).mid(begin), expected);
}

}

/// The reference of the manual, against the program. With VESK_WRITE_REFERENCE=1 these tests write
/// what the pages lack.
class ReferenceTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void manualListsTheCommandsThatTheRibbonHas()
    {
        const QLocale former;
        const auto restore = qScopeGuard([former] { QLocale::setDefault(former); });
        QLocale::setDefault(QLocale(QLocale::English));
        QString tables;
        ScriptedUser user;

        user.Do([&tables] { tables = CommandTables(); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        VerifyPage("commands.md", "<!-- The rest is written by ReferenceTest. -->\n", tables);
    }

    void manualHasTheHelpOfTheProgram()
    {
        const QRegularExpression program(QStringLiteral("^Usage: \\S+"));

        const QString help = ParseOptions({"sketcher", "--help"}).help;

        VerifyPage("options.md", "<!-- The rest is written by ReferenceTest. -->\n",
                   QStringLiteral("\n```text\n%1```\n")
                       .arg(QString(help).replace(program, "Usage: sketcher")));
    }
};

VESK_TESTS(ReferenceTest);

#include "ReferenceTest.moc"
