#include "Panes/RecordText.h"

#include "Model/Overloaded.h"

#include "Dimension/InputField.h"
#include "HostUi/QtText.h"
#include "Journal/JournalRecord.h"

#include <QLocale>
#include <QStringList>
#include <QVariant>

using namespace vesk;

namespace
{

QString NumberText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

/// A user's text or a list of entities may have any length and any number of lines.
QString Shortened(QString text)
{
    constexpr int MostShown = 80;
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (const char lineEnd : {'\n', '\r'})
        text.replace(QLatin1Char(lineEnd), QLatin1Char(' '));
    return text.size() > MostShown ? text.left(MostShown) + QStringLiteral("…") : text;
}

QString ValueText(const CommandParameterValue& value)
{
    return std::visit(Overloaded{
                          [](bool isOn) { return QVariant(isOn).toString(); },
                          [](int number) { return QString::number(number); },
                          [](double number) { return NumberText(number); },
                          [](const std::wstring& text) { return Shortened(ToQString(text)); },
                      },
                      value.Get());
}

QString CommandText(const CommandRecord& record)
{
    QStringList parts = {QStringLiteral("命令 ") + ToQString(record.commandId)};
    for (const auto& [name, value] : record.parameters.GetAll())
        parts << QStringLiteral("%1=%2").arg(ToQString(name), ValueText(value));
    return parts.join(QStringLiteral("  "));
}

QString PointText(const PointRecord& record)
{
    const QString text =
        QStringLiteral("点 %1, %2").arg(NumberText(record.point.x()), NumberText(record.point.y()));
    return record.entity.has_value() ? text + QStringLiteral("  图元 #%1").arg(*record.entity)
                                     : text;
}

QString SelectionText(const SelectionRecord& record)
{
    constexpr std::size_t MostNamed = 8;
    if (record.entities.empty())
        return QStringLiteral("取消选择");
    if (record.entities.size() > MostNamed)
        return QStringLiteral("选择 %1 个图元").arg(record.entities.size());
    QStringList ids;
    for (const int id : record.entities)
        ids << QStringLiteral("#%1").arg(id);
    return QStringLiteral("选择 ") + ids.join(QLatin1Char(' '));
}

}

QString DescribeRecord(const JournalRecord& record)
{
    const QString text = std::visit(
        Overloaded{
            [](const CommandRecord& command) { return CommandText(command); },
            [](const PointRecord& point) { return PointText(point); },
            [](const ValueRecord& value) {
                return QStringLiteral("%1 “%2” = %3")
                    .arg(ToQString(CaptionOf(value.field)), Shortened(ToQString(value.text)),
                         NumberText(value.value));
            },
            [](const SelectionRecord& selection) { return SelectionText(selection); },
            [](const PropertyRecord& property) {
                return QStringLiteral("%1.%2 = %3")
                    .arg(ToQString(property.object), ToQString(property.property),
                         Shortened(ToQString(property.value)));
            },
            [](const UndoRecord& undo) { return QStringLiteral("撤销 #%1").arg(undo.entity); },
            [](const RedoRecord& redo) { return QStringLiteral("重做 #%1").arg(redo.entity); },
            [](const MarkRecord& mark) {
                return QStringLiteral("图纸 %1").arg(
                    Shortened(QString::fromStdString(mark.digest).left(8)));
            },
            [](const CloseRecord&) { return QStringLiteral("程序结束"); },
            [](const HeaderRecord& header) {
                return QStringLiteral("日志 %1  %2")
                    .arg(Shortened(ToQString(header.program)), Shortened(ToQString(header.time)));
            },
            [](const EndRecord& end) {
                return end.isRefused ? QStringLiteral("未执行") : QStringLiteral("结束");
            },
        },
        record.what);
    return QStringLiteral("%1  %2").arg(record.number, 5).arg(text);
}
