#include "ToolkitTexts.h"

#include "Support/TestValues.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeView>

#include <memory>

/// The toolkit's texts in the language of the program's.
class ToolkitTextsTest final : public QObject
{
    Q_OBJECT

private slots:
    void standardButtonsSpeakTheProgramsLanguage()
    {
        const ToolkitTexts texts;

        const QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);

        QCOMPARE(box.button(QDialogButtonBox::Ok)->text(), QStringLiteral("确定"));
        QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("取消"));
    }

    void nothingInAFileDialogIsLeftInEnglish_data()
    {
        QTest::addColumn<QFileDialog::AcceptMode>("mode");

        QTest::newRow("open") << QFileDialog::AcceptOpen;
        QTest::newRow("save") << QFileDialog::AcceptSave;
    }

    void nothingInAFileDialogIsLeftInEnglish()
    {
        QFETCH(QFileDialog::AcceptMode, mode);
        const ToolkitTexts texts;
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setNameFilter(QStringLiteral("图纸 (*.vsk)"));
        dialog.setAcceptMode(mode);

        dialog.show();

        const QRegularExpression english(QStringLiteral("[A-Za-z]{3}"));
        for (const auto* pButton : dialog.findChildren<QAbstractButton*>())
            QVERIFY2(!pButton->toolTip().contains(english) && !pButton->text().contains(english),
                     qPrintable(pButton->text() + pButton->toolTip()));
        for (const auto* pLabel : dialog.findChildren<QLabel*>())
            QVERIFY2(!pLabel->text().contains(english), qPrintable(pLabel->text()));
        const QAbstractItemModel& files = *dialog.findChild<QTreeView*>()->model();
        for (int column = 0; column < files.columnCount(); ++column)
        {
            const QString title = files.headerData(column, Qt::Horizontal).toString();
            QVERIFY2(!title.contains(english), qPrintable(title));
        }
    }

    void theMenuOfATextFieldIsTranslated()
    {
        const ToolkitTexts texts;
        QLineEdit field;

        const std::unique_ptr<QMenu> pMenu(field.createStandardContextMenu());

        QVERIFY(pMenu->actions().front()->text().startsWith(QStringLiteral("撤销(&U)")));
        QCOMPARE(pMenu->actions().last()->text().section('\t', 0, 0), QStringLiteral("全选"));
    }

    void keysKeepTheirNames()
    {
        const ToolkitTexts texts;

        QCOMPARE(QKeySequence(Qt::CTRL | Qt::Key_Delete).toString(QKeySequence::NativeText),
                 QStringLiteral("Ctrl+Del"));
        QCOMPARE(QKeySequence(Qt::Key_Open).toString(QKeySequence::NativeText),
                 QStringLiteral("Open"));
    }

    void withoutThemTheToolkitsOwnTextsStand()
    {
        {
            const ToolkitTexts texts;
        }

        const QDialogButtonBox box(QDialogButtonBox::Cancel);

        QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
    }
};

VESK_TESTS(ToolkitTextsTest);
#include "ToolkitTextsTest.moc"
