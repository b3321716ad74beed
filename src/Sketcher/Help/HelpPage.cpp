#include "Help/HelpPage.h"

#include "Help/TypedExamples.h"
#include "Model/UiText.h"
#include "Ribbon/CommandEntry.h"

#include "HostUi/QtText.h"

#include <QKeySequence>
#include <QVector>

#include <utility>

namespace
{

using HelpRow = std::pair<QString, QString>;

/// What is not a command.
QVector<HelpRow> MouseRows()
{
    return {
        {"左键"_tr, "画点；没有工具时选取图元，按 Ctrl 增减"_tr},
        {"左键拖动"_tr, "向右框选全部在框内的图元，向左也选碰到框的"_tr},
        {"滚轮"_tr, "以光标为中心缩放"_tr},
        {"中键拖动"_tr, "平移"_tr},
    };
}

QVector<HelpRow> WalkingRows()
{
    return {
        {"方向键"_tr, "光标移到下一栅格点，按 Shift 移十分之一；按 Ctrl 移动画面"_tr},
        {"方向键之后的空格"_tr, "在光标处单击，直到按 Esc 或移动鼠标"_tr},
        {"Shift+空格"_tr, "开始框选，再按空格结束"_tr},
        {QStringLiteral("Ctrl++ / Ctrl+-"), "放大、缩小"_tr},
        {QStringLiteral("F6 / Shift+F6"), "转到下一区域或上一区域：图纸、面板、功能区"_tr},
        {QStringLiteral("Alt+-"), "打开所在面板的菜单：浮动、移动、改变大小、关闭"_tr},
    };
}

QVector<HelpRow> TypingRows()
{
    return {
        {"数字"_tr, "工具运行时键入长度、半径或角度"_tr},
        {QStringLiteral("Tab"), "锁定此值，转到另一个值"_tr},
        {QStringLiteral("Enter"), "确定数值"_tr},
        {"点的坐标"_tr, "工具要点时键入数：Tab 转到另一坐标，Enter 确定；数前加 @ 从上一点算起"_tr},
        {"空格"_tr, "键入的是数时确定（可在设置中改为键入空格）"_tr},
        {QStringLiteral("Esc"), "依次取消键入、解除锁定、结束工具、取消选取"_tr},
        {"Alt 或 F10"_tr, "显示功能区的按键"_tr},
    };
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
            rows.append(
                {keys.toString(QKeySequence::NativeText), vesk::ToQString(Tr(entry.toolTip))});
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
    return ToTable("鼠标"_tr, MouseRows()) + ToTable("键入数值"_tr, TypingRows()) +
           ToTable("不用鼠标"_tr, WalkingRows()) +
           ToTable("可以键入"_tr, ToRows(AcceptedExamples())) +
           ToTable("不会猜测，因此不接受"_tr, ToRows(RejectedExamples())) +
           ToTable("命令"_tr, CommandRows(commands));
}
