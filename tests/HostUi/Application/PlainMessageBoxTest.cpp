#include "HostUi/PlainMessageBox.h"

#include "Support/TestValues.h"

#include <QLabel>

#include <memory>

namespace vesk
{

class PlainMessageBoxTest final : public QObject
{
    Q_OBJECT

private slots:
    void textsAreShownAsTheyAre_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("shown");

        QTest::newRow("text") << "qt_msgbox_label"
                              << "<b>text</b>";
        QTest::newRow("details") << "qt_msgbox_informativelabel"
                                 << "<i>details</i>";
    }

    void textsAreShownAsTheyAre()
    {
        QFETCH(QString, label);
        QFETCH(QString, shown);

        const std::unique_ptr<QMessageBox> pBox(MakePlainMessageBox(
            nullptr, QMessageBox::Warning, "title", "<b>text</b>", "<i>details</i>"));

        const auto* pLabel = pBox->findChild<QLabel*>(label);
        QCOMPARE(pLabel->text(), shown);
        QCOMPARE(pLabel->textFormat(), Qt::PlainText);
    }
};

}

VESK_TESTS(vesk::PlainMessageBoxTest);
#include "PlainMessageBoxTest.moc"
