#include "LongerTexts.h"
#include "RecoveryUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Settings/SettingsDialog.h"
#include "SketcherWindow.h"

#include "Qtitan/RibbonButtonControl.h"
#include "Qtitan/RibbonGroup.h"
#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFileInfo>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTextDocument>

namespace
{

QString PlainText(const QString& text)
{
    QTextDocument document;
    if (Qt::mightBeRichText(text))
        document.setHtml(text);
    else
        document.setPlainText(text);
    return document.toPlainText().remove('&').simplified();
}

/// What is cut may be read in a tip.
bool IsInTip(const QString& tip, const QString& text)
{
    return !text.isEmpty() && PlainText(tip).contains(PlainText(text));
}

/// A folder's path is as long as its user made it.
bool IsUsersOwn(const QString& text)
{
    return QFileInfo(text).isAbsolute();
}

int WidthOf(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

QStringList CutTextsOf(const QLabel& label)
{
    const bool fits = label.wordWrap() ? label.heightForWidth(label.width()) <= label.height()
                                       : label.sizeHint().width() <= label.width();
    const bool isRead = fits || label.text().isEmpty() || IsInTip(label.toolTip(), label.text());
    return isRead ? QStringList() : QStringList(label.text());
}

QStringList CutTextsOf(const QAbstractButton& button)
{
    // In a ribbon, the frame around a button knows how much room its content needs.
    const auto* pFrame = dynamic_cast<const Qtitan::RibbonButtonControl*>(button.parentWidget());
    const QWidget& sized = pFrame != nullptr ? static_cast<const QWidget&>(*pFrame) : button;
    const QSize hint = sized.sizeHint();
    const bool fits = hint.width() <= sized.width() && hint.height() <= sized.height();
    return fits || button.text().isEmpty() ? QStringList() : QStringList(button.text());
}

QStringList CutTextsOf(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
            .width();
    QStringList cut;
    for (int i = 0; i < box.count(); ++i)
    {
        const QString text = box.itemText(i);
        if (WidthOf(box, text) > room && !IsUsersOwn(text))
            cut << text;
    }
    return cut;
}

QStringList CutTextsOf(const QTabBar& bar)
{
    QStringList cut;
    for (int i = 0; i < bar.count(); ++i)
    {
        if (WidthOf(bar, bar.tabText(i)) > bar.tabRect(i).width() &&
            !IsInTip(bar.tabToolTip(i), bar.tabText(i)))
            cut << bar.tabText(i);
    }
    return cut;
}

QStringList CutTextsOf(const QHeaderView& header)
{
    QStringList cut;
    const QAbstractItemModel& model = *header.model();
    for (int i = 0; i < header.count() && header.orientation() == Qt::Horizontal; ++i)
    {
        const QString text = model.headerData(i, Qt::Horizontal).toString();
        const QString tip = model.headerData(i, Qt::Horizontal, Qt::ToolTipRole).toString();
        const bool fits = WidthOf(header, text) <= header.sectionSize(i);
        if (!fits && !header.isSectionHidden(i) && !IsInTip(tip, text))
            cut << text;
    }
    return cut;
}

QStringList CutTitle(const QWidget& widget, const QString& title)
{
    const bool fits = WidthOf(widget, title) <= widget.width();
    return fits ? QStringList() : QStringList(title);
}

/// The texts that a widget shows in part only, and that no tip shows whole.
QStringList CutTextsOf(const QWidget& widget)
{
    if (const auto* pLabel = qobject_cast<const QLabel*>(&widget))
        return CutTextsOf(*pLabel);
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(&widget))
        return CutTextsOf(*pButton);
    if (const auto* pBox = qobject_cast<const QComboBox*>(&widget))
        return CutTextsOf(*pBox);
    if (const auto* pBar = qobject_cast<const QTabBar*>(&widget))
        return CutTextsOf(*pBar);
    if (const auto* pHeader = qobject_cast<const QHeaderView*>(&widget))
        return CutTextsOf(*pHeader);
    if (const auto* pBox = qobject_cast<const QGroupBox*>(&widget))
        return CutTitle(*pBox, pBox->title());
    if (const auto* pGroup = dynamic_cast<const Qtitan::RibbonGroup*>(&widget))
        return CutTitle(*pGroup, pGroup->title());
    if (const auto* pDock = qobject_cast<const QDockWidget*>(&widget))
        return CutTitle(*pDock, pDock->windowTitle());
    return {};
}

/// One line for each text that is cut, so that a failure names them.
QString CutTexts()
{
    QStringList found;
    for (const QWidget* pWidget : QApplication::allWidgets())
    {
        if (!pWidget->isVisible())
            continue;
        for (const QString& text : CutTextsOf(*pWidget))
            found << QString("%1 %2: %3")
                         .arg(pWidget->metaObject()->className(), pWidget->objectName(), text);
    }
    return found.join('\n');
}

/// Chooses Chinese, which has no catalogue: the texts are those of the translator that is there.
void ChooseLongerTexts()
{
    ScriptedUser::FindButton("Sketcher.Settings")->click();
    QTRY_VERIFY(ScriptedUser::FindWindow()->findChild<SettingsDialog*>() != nullptr);
    auto* pDialog = ScriptedUser::FindWindow()->findChild<SettingsDialog*>();
    auto* pBox = pDialog->findChild<QComboBox*>("Language");
    pBox->setCurrentIndex(pBox->findData("zh"));
    pDialog->findChild<QPushButton*>("Accept")->click();
}

}

/// The whole program with texts that are half as long again as the English ones.
class LongerTextsTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void textIsLengthened_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("longer");

        QTest::newRow("word") << "Line"
                              << "Liinee";
        QTest::newRow("shortcut letter") << "&Open"
                                         << "&Opeen";
        QTest::newRow("number") << "%n selected, %1"
                                << "%n sselleccteed,, %1";
        QTest::newRow("mark-up") << "<b>On</b>"
                                 << "<b>Onn</b>";
    }

    void textIsLengthened()
    {
        QFETCH(QString, text);

        QTEST(LongerTexts::Lengthen(text), "longer");
    }

    void nothingInTheWindowIsCut()
    {
        ScriptedUser user;
        Start(user);
        user.DrawLine(0, 0, 50, 20).Press(Qt::Key_A, Qt::ControlModifier);

        user.Do([] { QCOMPARE(CutTexts(), QString()); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void nothingInADialogIsCut_data()
    {
        QTest::addColumn<QString>("command");

        for (const char* command :
             {"Settings", "Help", "About", "Open", "SaveAs", "Print", "Export", "Import"})
            QTest::newRow(command) << QString("Sketcher.") + command;
    }

    void nothingInADialogIsCut()
    {
        QFETCH(QString, command);
        const ScopedVariable attended("VESK_UNATTENDED", {});
        ScriptedUser user;
        Start(user);
        user.DrawLine(0, 0, 50, 20);

        user.Do([command] { ScriptedUser::FindButton(command)->click(); })
            .Until([] { return ScriptedUser::FindDialog() != nullptr; })
            .Do([] { QCOMPARE(CutTexts(), QString()); })
            .Do([] { ScriptedUser::FindDialog()->reject(); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void nothingInTheQuestionToSaveIsCut()
    {
        const ScopedVariable attended("VESK_UNATTENDED", {});
        ScriptedUser user;
        Start(user);
        user.DrawLine(0, 0, 50, 20);
        OpenDialog(user, "Sketcher.New");

        user.Do([] { QCOMPARE(CutTexts(), QString()); }).Do(&Discard);

        QCOMPARE(user.Run(Options()), 0);
    }

private:
    /// The program in the longer texts; a session resets the translator at its end.
    void Start(ScriptedUser& user)
    {
        user.Do([this] {
            m_pTexts.reset();
            m_pTexts = std::make_unique<LongerTexts>(QCoreApplication::applicationDirPath() +
                                                     "/../share/sketcher/translations");
            ChooseLongerTexts();
        });
        user.Until([] {
            return ScriptedUser::FindWindow()->windowTitle() ==
                   LongerTexts::Lengthen("Untitled") + "[*] - Sketcher";
        });
    }

    std::unique_ptr<LongerTexts> m_pTexts;
};

VESK_TESTS(LongerTextsTest);
#include "LongerTextsTest.moc"
