#include "Panes/RecordText.h"

#include "Model/Overloaded.h"
#include "Model/UiText.h"

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
    QStringList parts = {"命令 %1"_tr.arg(ToQString(record.commandId))};
    for (const auto& [name, value] : record.parameters.GetAll())
        parts << QStringLiteral("%1=%2").arg(ToQString(name), ValueText(value));
    return parts.join(QStringLiteral("  "));
}

QString PointText(const PointRecord& record)
{
    const QString text =
        "点 %1, %2"_tr.arg(NumberText(record.point.x()), NumberText(record.point.y()));
    return record.entity.has_value()
               ? text + QStringLiteral("  ") + "图元 #%1"_tr.arg(*record.entity)
               : text;
}

QString SelectionText(const SelectionRecord& record)
{
    constexpr std::size_t MostNamed = 8;
    if (record.entities.empty())
        return "取消选择"_tr;
    if (record.entities.size() > MostNamed)
        return Tr("选择 %n 个图元"_source, static_cast<int>(record.entities.size()));
    QStringList ids;
    for (const int id : record.entities)
        ids << QStringLiteral("#%1").arg(id);
    return "选择 %1"_tr.arg(ids.join(QLatin1Char(' ')));
}

}

QString DescribeRecord(const JournalRecord& record)
{
    const QString text = std::visit(
        Overloaded{
            [](const CommandRecord& command) { return CommandText(command); },
            [](const PointRecord& point) { return PointText(point); },
            [](const ValueRecord& value) {
                return "%1 “%2” = %3"_tr.arg(ToQString(CaptionOf(value.field)),
                                             Shortened(ToQString(value.text)),
                                             NumberText(value.value));
            },
            [](const SelectionRecord& selection) { return SelectionText(selection); },
            [](const PropertyRecord& property) {
                return QStringLiteral("%1.%2 = %3")
                    .arg(ToQString(property.object), ToQString(property.property),
                         Shortened(ToQString(property.value)));
            },
            [](const UndoRecord& undo) { return "撤销 #%1"_tr.arg(undo.entity); },
            [](const RedoRecord& redo) { return "重做 #%1"_tr.arg(redo.entity); },
            [](const MarkRecord& mark) {
                return "图纸 %1"_tr.arg(Shortened(QString::fromStdString(mark.digest).left(8)));
            },
            [](const CloseRecord&) { return "程序结束"_tr; },
            [](const HeaderRecord& header) {
                return "日志 %1  %2"_tr.arg(Shortened(ToQString(header.program)),
                                            Shortened(ToQString(header.time)));
            },
            [](const EndRecord& end) { return end.isRefused ? "未执行"_tr : "结束"_tr; },
        },
        record.what);
    return QStringLiteral("%1  %2").arg(record.number, 5).arg(text);
}
