#include "Help/HelpPage.h"

#include "Help/TypedExamples.h"
#include "Ribbon/CommandEntry.h"

#include "HostUi/QtText.h"

#include <QKeySequence>
#include <QVector>

#include <utility>

namespace
{

using HelpRow = std::pair<QString, QString>;

/// What is not a command.
const QVector<HelpRow>& MouseRows()
{
    static const QVector<HelpRow> s_rows = {
        {QStringLiteral("左键"), QStringLiteral("画点；没有工具时选取图元，按 Ctrl 增减")},
        {QStringLiteral("左键拖动"), QStringLiteral("向右框选全部在框内的图元，向左也选碰到框的")},
        {QStringLiteral("滚轮"), QStringLiteral("以光标为中心缩放")},
        {QStringLiteral("中键拖动"), QStringLiteral("平移")},
    };
    return s_rows;
}

const QVector<HelpRow>& TypingRows()
{
    static const QVector<HelpRow> s_rows = {
        {QStringLiteral("数字"), QStringLiteral("工具运行时键入长度、半径或角度")},
        {QStringLiteral("Tab"), QStringLiteral("锁定此值，转到另一个值")},
        {QStringLiteral("Enter"), QStringLiteral("确定数值")},
        {QStringLiteral("空格"), QStringLiteral("键入的是数时确定（可在设置中改为键入空格）")},
        {QStringLiteral("Esc"), QStringLiteral("依次取消键入、解除锁定、结束工具、取消选取")},
        {QStringLiteral("Alt 或 F10"), QStringLiteral("显示功能区的按键")},
    };
    return s_rows;
}

QString ToHtmlRow(const HelpRow& row)
{
    return QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
        .arg(row.first.toHtmlEscaped(), row.second.toHtmlEscaped());
}

QString ToTable(const QString& title, const QVector<HelpRow>& rows)
{
    QString table = QStringLiteral("<h3>%1</h3><table cellspacing='0' cellpadding='3'>").arg(title);
    for (const HelpRow& row : rows)
        table += ToHtmlRow(row);
    return table + QStringLiteral("</table>");
}

/// The commands that have keys, and those keys as the system names them.
QVector<HelpRow> CommandRows(const std::vector<CommandEntry>& commands)
{
    QVector<HelpRow> rows;
    for (const CommandEntry& entry : commands)
    {
        const QKeySequence keys(vesk::ToQString(entry.keys));
        if (!entry.keys.empty() && !entry.group.empty())
            rows.append({keys.toString(QKeySequence::NativeText), vesk::ToQString(entry.toolTip)});
    }
    return rows;
}

QVector<HelpRow> ToRows(const QVector<TypedExample>& examples)
{
    QVector<HelpRow> rows;
    for (const TypedExample& example : examples)
        rows.append({example.text, example.meaning});
    return rows;
}

}

QString MakeHelpPage(const std::vector<CommandEntry>& commands)
{
    return ToTable(QStringLiteral("鼠标"), MouseRows()) +
           ToTable(QStringLiteral("键入数值"), TypingRows()) +
           ToTable(QStringLiteral("可以键入"), ToRows(AcceptedExamples())) +
           ToTable(QStringLiteral("不会猜测，因此不接受"), ToRows(RejectedExamples())) +
           ToTable(QStringLiteral("命令"), CommandRows(commands));
}
