#include "Panes/TextCellDelegate.h"

#include "Settings/DarkStyle.h"
#include "Settings/HighContrastStyle.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QImage>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTableWidget>

#include <functional>
#include <memory>

namespace
{

using Change = std::function<void(QTableWidget&)>;

std::unique_ptr<QStyle> MakeStyle(const QString& name)
{
    if (name == DarkStyle::Name)
        return std::make_unique<DarkStyle>();
    if (name == HighContrastStyle::Name)
        return std::make_unique<HighContrastStyle>();
    return std::unique_ptr<QStyle>(QStyleFactory::create(name));
}

/// One row: short and long texts, several scripts, a number, nothing, two lines.
void Fill(QTableWidget& table)
{
    const QStringList texts = {"Line",
                               "radius 12.345 mm, width 3 mm",
                               "直线",
                               "مستطيل",
                               "Ångström قائمة 长",
                               "",
                               "7",
                               "a (ق)",
                               "first\nsecond"};
    table.setRowCount(2);
    table.setColumnCount(texts.size());
    for (int column = 0; column < texts.size(); ++column)
    {
        table.setColumnWidth(column, 70);
        for (int row = 0; row < 2; ++row)
            table.setItem(row, column, new QTableWidgetItem(texts[column]));
    }
    table.resize(700, 120);
    table.setWordWrap(false);
}

/// Colours by which each state of a text can be told.
QPalette TellingColours()
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::darkGreen);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::darkGray);
    palette.setColor(QPalette::Active, QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::cyan);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, Qt::lightGray);
    return palette;
}

}

Q_DECLARE_METATYPE(Change)

/// Cells look as the style paints them.
class TextCellDelegateTest final : public QObject
{
    Q_OBJECT

private slots:
    void cellsLookAsTheStylePaintsThem_data();
    void cellsLookAsTheStylePaintsThem();
};

void TextCellDelegateTest::cellsLookAsTheStylePaintsThem_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<Change>("change");

    const QVector<QPair<const char*, Change>> changes = {
        {"plain", [](QTableWidget&) {}},
        {"selected", [](QTableWidget& table) { table.selectRow(0); }},
        {"one selected cell", [](QTableWidget& table) { table.item(1, 0)->setSelected(true); }},
        {"with the focus",
         [](QTableWidget& table) {
             table.activateWindow();
             QVERIFY(QTest::qWaitForWindowActive(&table, vesk::test::PatienceMs));
             table.setFocus();
             table.setCurrentCell(0, 2);
         }},
        {"right to left", [](QTableWidget& table) { table.setLayoutDirection(Qt::RightToLeft); }},
        {"behind another window",
         [](QTableWidget& table) {
             table.selectRow(0);
             auto* pOther = new QDialog(&table);
             pOther->show();
             QApplication::setActiveWindow(pOther);
         }},
        {"disabled", [](QTableWidget& table) { table.setEnabled(false); }},
        {"disabled item", [](QTableWidget& table) { table.item(0, 0)->setFlags({}); }},
        {"centred",
         [](QTableWidget& table) { table.item(0, 0)->setTextAlignment(Qt::AlignCenter); }},
        {"at the right, below",
         [](QTableWidget& table) {
             table.item(0, 2)->setTextAlignment(Qt::AlignRight | Qt::AlignBottom);
         }},
        {"low rows",
         [](QTableWidget& table) {
             table.verticalHeader()->setMinimumSectionSize(9);
             table.setRowHeight(0, 9);
         }},
        {"large font",
         [](QTableWidget& table) {
             QFont font = table.font();
             font.setPointSizeF(17.5);
             font.setItalic(true);
             table.setFont(font);
         }},
        {"colours of their own",
         [](QTableWidget& table) {
             table.item(0, 0)->setForeground(Qt::red);
             table.item(0, 0)->setBackground(Qt::yellow);
         }},
    };
    for (const char* style : {"fusion", "windows", DarkStyle::Name, HighContrastStyle::Name})
        for (const auto& [name, change] : changes)
            QTest::newRow(qPrintable(QString("%1, %2").arg(style, name)))
                << QString(style) << change;
}

void TextCellDelegateTest::cellsLookAsTheStylePaintsThem()
{
    QFETCH(QString, style);
    QFETCH(Change, change);
    const std::unique_ptr<QStyle> pStyle = MakeStyle(style);
    QTableWidget table;
    Fill(table);
    for (QWidget* pWidget : table.findChildren<QWidget*>())
        pWidget->setStyle(pStyle.get());
    table.setStyle(pStyle.get());
    table.setPalette(TellingColours());
    table.show();
    change(table);
    const QImage byTheStyle = table.grab().toImage();

    TextCellDelegate delegate;
    table.setItemDelegate(&delegate);

    QCOMPARE(table.grab().toImage(), byTheStyle);
}

VESK_TESTS(TextCellDelegateTest);
#include "TextCellDelegateTest.moc"
