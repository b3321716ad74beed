#include "HostUi/ElidedLabel.h"

#include "Support/TestValues.h"

#include <QHBoxLayout>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

#include <functional>
#include <memory>

namespace vesk::test
{
namespace
{

const QString s_text = QStringLiteral("Line: click the start or type its coordinates; Esc ends");

QImage PictureOf(QWidget& widget)
{
    return widget.grab().toImage();
}

/// The rightmost column in which there is something of another colour than the corner.
int LastInk(const QImage& picture)
{
    for (int x = picture.width() - 1; x >= 0; --x)
    {
        for (int y = 0; y < picture.height(); ++y)
        {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return x;
        }
    }
    return -1;
}

using Change = std::function<void(QLabel&)>;

}
}

Q_DECLARE_METATYPE(vesk::test::Change)

namespace vesk::test
{

/// A label that shows as much of its text as fits.
class ElidedLabelTest final : public QObject
{
    Q_OBJECT

private slots:
    void textThatFitsIsShownAsItIs()
    {
        ElidedLabel label;
        QLabel plain;
        for (QLabel* pLabel : {static_cast<QLabel*>(&label), &plain})
        {
            pLabel->setText(s_text);
            pLabel->setAlignment(Qt::AlignCenter);
            pLabel->resize(900, 30);
        }

        QCOMPARE(PictureOf(label), PictureOf(plain));
        QCOMPARE(label.sizeHint(), plain.sizeHint());
    }

    void textThatDoesNotFitEndsInAnEllipsis_data()
    {
        QTest::addColumn<Change>("change");

        QTest::newRow("plain") << Change([](QLabel&) {});
        QTest::newRow("disabled") << Change([](QLabel& label) { label.setEnabled(false); });
        QTest::newRow("disabled, etched") << Change([](QLabel& label) {
            static const std::unique_ptr<QStyle> s_pStyle(QStyleFactory::create("windows"));
            label.setStyle(s_pStyle.get());
            label.setEnabled(false);
        });
        QTest::newRow("in another colour")
            << Change([](QLabel& label) { label.setForegroundRole(QPalette::Highlight); });
        QTest::newRow("right to left")
            << Change([](QLabel& label) { label.setLayoutDirection(Qt::RightToLeft); });
    }

    void textThatDoesNotFitEndsInAnEllipsis()
    {
        QFETCH(Change, change);
        ElidedLabel label;
        label.setText(s_text);
        QLabel shorter;
        shorter.setText(label.fontMetrics().elidedText(s_text, Qt::ElideRight, 120));
        for (QLabel* pLabel : {static_cast<QLabel*>(&label), &shorter})
        {
            pLabel->resize(120, 30);
            change(*pLabel);
        }

        const QImage picture = PictureOf(label);

        QVERIFY(shorter.text().endsWith(QStringLiteral("…")));
        QCOMPARE(picture, PictureOf(shorter));
        QVERIFY(LastInk(picture) > 60);
    }

    void textIsTheWhole()
    {
        ElidedLabel label;
        label.setText(s_text);

        label.resize(50, 30);

        QCOMPARE(label.text(), s_text);
    }

    void marginsStayFree()
    {
        ElidedLabel label;
        label.setText(s_text);
        label.setContentsMargins(20, 0, 40, 0);
        label.resize(200, 30);

        QVERIFY(LastInk(PictureOf(label)) < 160);
    }

    void textIsNoMarkup()
    {
        ElidedLabel label;
        label.setText("<b>a</b>");
        label.resize(400, 30);

        QCOMPARE(label.sizeHint().width() > label.fontMetrics().horizontalAdvance("<b>a"), true);
    }

    void longTextNeedsNoRoom()
    {
        QWidget window;
        auto* pLabel = new ElidedLabel;
        (new QHBoxLayout(&window))->addWidget(pLabel);
        const int least = window.minimumSizeHint().width();

        pLabel->setText(QString(1000, 'x'));
        window.layout()->activate();

        QCOMPARE(window.minimumSizeHint().width(), least);
        QCOMPARE(pLabel->minimumSizeHint().height(), QLabel("x").minimumSizeHint().height());
    }
};

}

VESK_TESTS(vesk::test::ElidedLabelTest);
#include "ElidedLabelTest.moc"
