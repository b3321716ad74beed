#include "DialogSizes.h"

#include "Support/TestValues.h"

#include <QDialog>
#include <QFileDialog>
#include <QScreen>

/// The sizes of dialogs.
class DialogSizesTest final : public QObject
{
    Q_OBJECT

private slots:
    void dialogIsNotLargerThanTheScreen()
    {
        const DialogSizes sizes;
        QDialog dialog;
        dialog.resize(20000, 20000);

        dialog.show();

        const QSize screen = dialog.screen()->availableSize();
        QVERIFY(dialog.width() < screen.width());
        QVERIFY(dialog.height() < screen.height());
    }

    void dialogThatFitsKeepsItsSize()
    {
        const DialogSizes sizes;
        QDialog dialog;
        dialog.resize(321, 234);

        dialog.show();

        QCOMPARE(dialog.size(), QSize(321, 234));
    }

    void fileDialogHasRoomForItsColumns()
    {
        const DialogSizes sizes;
        QFileDialog dialog;
        dialog.setOption(QFileDialog::DontUseNativeDialog);

        dialog.show();

        QCOMPARE(dialog.size(),
                 QSize(760, 460).boundedTo(dialog.screen()->availableSize() * 9 / 10));
    }

    void anotherDialogOfThatNameHasTheSizeOfTheFormer()
    {
        const DialogSizes sizes;
        Show(QStringLiteral("Print"), QSize(345, 256));
        QDialog dialog;
        dialog.setObjectName(QStringLiteral("Print"));

        dialog.show();

        QCOMPARE(dialog.size(), QSize(345, 256));
    }

    void dialogsOfOtherNamesAndWithoutANameAreAsTheyAre_data()
    {
        QTest::addColumn<QString>("former");
        QTest::addColumn<QString>("name");

        QTest::newRow("another name") << "Print"
                                      << "Help";
        QTest::newRow("no name") << ""
                                 << "";
    }

    void dialogsOfOtherNamesAndWithoutANameAreAsTheyAre()
    {
        QFETCH(QString, former);
        QFETCH(QString, name);
        const DialogSizes sizes;
        Show(former, QSize(345, 256));
        QDialog dialog;
        dialog.setObjectName(name);
        dialog.resize(200, 100);

        dialog.show();

        QCOMPARE(dialog.size(), QSize(200, 100));
    }

private:
    static void Show(const QString& name, const QSize& size)
    {
        QDialog dialog;
        dialog.setObjectName(name);
        dialog.show();
        dialog.resize(size);
        dialog.close();
    }
};

VESK_TESTS(DialogSizesTest);
#include "DialogSizesTest.moc"
