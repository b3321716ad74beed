#include "DebugWarnFixture.h"
#include "Foundation/TranslatorManager.h"
#include "Support/MemberAccess.h"
#include "Support/TestValues.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

namespace vesk::test
{

VESK_EXPOSE(Form, DebugWarnForm, DebugWarnDialog, m_form)

/// What the dialog looks like, widget by widget.
class DebugWarnFormTest : public QObject
{
    Q_OBJECT

private slots:
    void theFormIsTheOnlyMember();
    void theWindowIsAsItIsMeant();
    void aLargerWindowMovesNothing();
    void theFormIsAsItIsMeantInHouse();
    void theFormIsAsItIsMeantWhenPublished();
    void onlyTheReportLabelsHaveAFontOfTheirOwn();
    void theReportGroupShowsNothing();
    void theButtonsFillTheirRowFromLeftToRight();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
};

QString TextOf(const QWidget& widget)
{
    if (const auto* pLabel = qobject_cast<const QLabel*>(&widget))
        return pLabel->text();
    if (const auto* pButton = qobject_cast<const QPushButton*>(&widget))
        return pButton->text();
    if (const auto* pGroup = qobject_cast<const QGroupBox*>(&widget))
        return pGroup->title();
    if (const auto* pEdit = qobject_cast<const QLineEdit*>(&widget))
        return pEdit->text();
    const auto* pBox = qobject_cast<const QTextEdit*>(&widget);
    return pBox != nullptr ? pBox->toPlainText() : QString();
}

/// Class, geometry, text and any unusual state; without the geometry if a layout decides it.
static QString Describe(const QWidget& widget)
{
    const QRect rect = widget.geometry();
    const bool isLaidOut = widget.parentWidget()->layout() != nullptr;
    QString text = widget.metaObject()->className();
    if (!isLaidOut)
        text += QString(" %1,%2 %3x%4")
                    .arg(rect.x())
                    .arg(rect.y())
                    .arg(rect.width())
                    .arg(rect.height());
    text += " '" + TextOf(widget) + '\'';
    if (widget.property("readOnly").toBool())
        text += " read-only";
    if (!widget.isEnabled())
        text += " disabled";
    if (widget.isHidden())
        text += " hidden";
    return text;
}

/// All widgets in order of creation; contents of a group or row are indented.
QStringList DescribeChildren(const QWidget& parent, const QString& indent = {})
{
    QStringList lines;
    for (const QObject* pChild : parent.children())
    {
        const auto* pWidget = qobject_cast<const QWidget*>(pChild);
        if (pWidget == nullptr)
            continue;
        lines << indent + Describe(*pWidget);
        if (qobject_cast<const QGroupBox*>(pWidget) != nullptr ||
            pWidget->metaObject() == &QWidget::staticMetaObject)
            lines << DescribeChildren(*pWidget, indent + "  ");
    }
    return lines;
}

void DebugWarnFormTest::theFormIsTheOnlyMember()
{
    DialogFixture f;

    QCOMPARE(BaseOffsetIn<QDialog>(f.dialog), std::ptrdiff_t(0));
    QCOMPARE(OffsetIn(f.dialog, MemberOf(Form())), std::ptrdiff_t(sizeof(QDialog)));
    QCOMPARE(sizeof(DebugWarnDialog), sizeof(QDialog) + sizeof(DebugWarnForm));
}

void DebugWarnFormTest::theWindowIsAsItIsMeant()
{
    HostFixture host;
    QWidget parent;
    const DebugWarnDialog dialog(&parent);

    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowFlags(), QDialog(&parent).windowFlags());
    QCOMPARE(dialog.windowTitle(), QString::fromUtf8("调试警告"));
    QCOMPARE(dialog.size(), QSize(485, 393));
    QCOMPARE(dialog.minimumSize(), QSize(485, 393));
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
}

void DebugWarnFormTest::aLargerWindowMovesNothing()
{
    DialogFixture f;
    f.dialog.show();
    const QStringList before = DescribeChildren(f.dialog);

    f.dialog.resize(900, 700);

    QCOMPARE(f.dialog.size(), QSize(900, 700));
    QCOMPARE(DescribeChildren(f.dialog), before);
}

/// What both forms share, without the row of buttons and the last two fields.
const char* const s_reportLines[] = {
    "QGroupBox 10,370 181x16 ''",
    "  QLabel 10,30 54x16 '用户名：'",
    "  QLabel 190,30 41x16 '密码：'",
    "  QLineEdit 70,30 81x20 '' disabled",
    "  QLineEdit 250,30 91x20 '' disabled",
    "  QPushButton 380,30 91x23 '报告' disabled",
    "QWidget 200,360 281x31 ''",
};

const char* const s_informationLines[] = {
    "QGroupBox 9,193 471x161 '信息'", "  QTextEdit 10,20 451x131 'pDock是空指针' read-only",
    "QLabel 10,10 48x23 '文件：'",    "QTextEdit 60,10 420x41 'src/文件.cpp' read-only",
    "QLabel 10,60 48x23 '行号：'",    "QLineEdit 60,60 200x22 '12' read-only",
    "QLabel 10,90 48x23 '函数：'",    "QTextEdit 60,90 420x31 'vesk::F::G' read-only",
    "QLabel 10,130 48x23 '负责人：'",
};

QStringList FormLines(const QStringList& buttons, const QString& person, const QString& date)
{
    QStringList lines;
    for (const char* line : s_reportLines)
        lines << QString::fromUtf8(line);
    lines << buttons;
    for (const char* line : s_informationLines)
        lines << QString::fromUtf8(line);
    lines << QString("QLineEdit 60,130 200x22 '%1' read-only").arg(person);
    lines << QString::fromUtf8("QLabel 10,160 48x23 '日期：'");
    lines << QString("QLineEdit 60,160 200x22 '%1' read-only").arg(date);
    return lines;
}

void DebugWarnFormTest::theFormIsAsItIsMeantInHouse()
{
    const DialogFixture f;

    QCOMPARE(DescribeChildren(f.dialog), FormLines({QString::fromUtf8("  QPushButton '忽略一次'"),
                                                    QString::fromUtf8("  QPushButton '忽略所有'"),
                                                    QString::fromUtf8("  QPushButton '调试'")},
                                                   "vesk-ui", "2026-11-21"));
}

void DebugWarnFormTest::theFormIsAsItIsMeantWhenPublished()
{
    const DialogFixture f(true);

    QCOMPARE(DescribeChildren(f.dialog),
             FormLines({QString::fromUtf8("  QPushButton '忽略一次' hidden"),
                        QString::fromUtf8("  QPushButton '确定'"),
                        QString::fromUtf8("  QPushButton '调试' hidden")},
                       "******", "******"));
}

void DebugWarnFormTest::onlyTheReportLabelsHaveAFontOfTheirOwn()
{
    const DialogFixture f;
    QStringList own;
    for (const QWidget* pWidget : f.dialog.findChildren<QWidget*>())
    {
        const bool hasFont = pWidget->testAttribute(Qt::WA_SetFont);
        if (hasFont && pWidget->font() != QApplication::font())
            own << QString("%1 %2 %3")
                       .arg(TextOf(*pWidget), pWidget->font().family())
                       .arg(pWidget->font().pointSize());
    }

    QCOMPARE(own, (QStringList{QString::fromUtf8("用户名： 宋体 12"),
                               QString::fromUtf8("密码： 宋体 12")}));
}

void DebugWarnFormTest::theReportGroupShowsNothing()
{
    DialogFixture f;
    const auto* pGroup = f.dialog.findChild<QGroupBox*>();
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.dialog, vesk::test::PatienceMs));
    int seen = 0;
    for (const QWidget* pWidget : pGroup->findChildren<QWidget*>())
        seen += pWidget->visibleRegion().isEmpty() ? 0 : 1;

    QVERIFY(pGroup->isVisible());
    QCOMPARE(seen, 0);
}

void DebugWarnFormTest::theButtonsFillTheirRowFromLeftToRight()
{
    DialogFixture f;
    const QWidget& row = *f.Button(IgnoreButton).parentWidget();
    f.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.dialog, vesk::test::PatienceMs));

    QVERIFY(qobject_cast<QHBoxLayout*>(row.layout()) != nullptr);
    QCOMPARE(row.layout()->contentsMargins(), QMargins());
    QCOMPARE(f.Button(IgnoreButton).x(), 0);
    QVERIFY(f.Button(IgnoreAllButton).x() > f.Button(IgnoreButton).geometry().right());
    QVERIFY(f.Button(DebugButton).x() > f.Button(IgnoreAllButton).geometry().right());
    QCOMPARE(f.Button(DebugButton).geometry().right(), row.rect().right());
}

/// Puts the text to translate in brackets and records it, with the name of any other context.
class BracketTranslator final : public ITranslator
{
public:
    std::wstring Translate(const std::wstring& context, const std::wstring& text) const override
    {
        const bool isOwn = context == L"VeskUiQtImpl";
        asked << QString::fromStdWString(isOwn ? text : context + L"/" + text);
        return L"[" + text + L"]";
    }

    mutable QStringList asked;
};

void DebugWarnFormTest::everyTextIsTranslated_data()
{
    const QStringList form =
        QString::fromUtf8(
            "调试警告|用户名：|密码：|报告|忽略一次|忽略所有|调试|信息|文件：|行号：|函数：|"
            "负责人：|日期：")
            .split('|');
    QTest::addColumn<bool>("isPublished");
    QTest::addColumn<QStringList>("asked");
    QTest::newRow("in house") << false << form;
    QTest::newRow("published") << true << form + QStringList(QString::fromUtf8("确定"));
}

void DebugWarnFormTest::everyTextIsTranslated()
{
    QFETCH(bool, isPublished);
    HostFixture host;
    const BracketTranslator translator;
    TranslatorManager::Get()->SetTranslator(&translator);
    IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, !isPublished);

    DebugWarnDialog dialog(nullptr);
    dialog.SetInfo("file", 1, "function", L"message", L"person", L"date");

    QTEST(translator.asked, "asked");
    QCOMPARE(dialog.windowTitle(), QString::fromUtf8("[调试警告]"));
    const QString form = DescribeChildren(dialog).join('\n');
    QCOMPARE(form.count("'["), translator.asked.size() - (isPublished ? 2 : 1));
}

}

VESK_TESTS(vesk::test::DebugWarnFormTest);
#include "DebugWarnFormTest.moc"
