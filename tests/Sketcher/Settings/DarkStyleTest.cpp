#include "Settings/DarkStyle.h"

#include "Settings/Appearance.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QIcon>
#include <QImage>
#include <QRadioButton>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace
{

/// The greatest difference in lightness between a picture's pixels and a colour.
int GreatestContrast(const QImage& picture, const QColor& ground)
{
    int greatest = 0;
    for (int y = 0; y < picture.height(); ++y)
    {
        for (int x = 0; x < picture.width(); ++x)
        {
            const QColor colour = picture.pixelColor(x, y);
            if (colour.alpha() > 128)
                greatest = std::max(greatest, std::abs(colour.lightness() - ground.lightness()));
        }
    }
    return greatest;
}

}

Q_DECLARE_METATYPE(QStyle::StandardPixmap)

/// What must be seen on dark colours.
class DarkStyleTest final : public QObject
{
    Q_OBJECT

private slots:
    void boxWithoutACheckMarkIsSeen_data()
    {
        QTest::addColumn<bool>("isRound");

        QTest::newRow("check box") << false;
        QTest::newRow("radio button") << true;
    }

    void boxWithoutACheckMarkIsSeen()
    {
        QFETCH(bool, isRound);
        Appearance appearance;
        appearance.Set(Settings::Colours::Dark);
        const std::unique_ptr<QAbstractButton> pButton(
            isRound ? static_cast<QAbstractButton*>(new QRadioButton) : new QCheckBox);
        const QPalette palette = QApplication::palette();

        const QImage picture = pButton->grab().toImage();

        QVERIFY(GreatestContrast(picture, palette.color(QPalette::Window)) > 50);
    }

    void buttonsInTheTitleOfAPaneAreSeen_data()
    {
        QTest::addColumn<QStyle::StandardPixmap>("standard");

        QTest::newRow("float") << QStyle::SP_TitleBarNormalButton;
        QTest::newRow("close") << QStyle::SP_TitleBarCloseButton;
    }

    void buttonsInTheTitleOfAPaneAreSeen()
    {
        QFETCH(QStyle::StandardPixmap, standard);
        Appearance appearance;
        appearance.Set(Settings::Colours::Dark);
        const QPalette palette = QApplication::palette();

        const QIcon icon = QApplication::style()->standardIcon(standard);

        const QImage picture = icon.pixmap(10, 10).toImage();
        QVERIFY(GreatestContrast(picture, palette.color(QPalette::Window)) > 100);
    }

    void paneThatIsOpenWhenDarkIsChosenGetsThem()
    {
        Appearance appearance;
        const QDockWidget pane;
        const auto* pClose = pane.findChild<QAbstractButton*>("qt_dockwidget_closebutton");

        appearance.Set(Settings::Colours::Dark);

        const QImage picture = pClose->icon().pixmap(10, 10).toImage();
        const QPalette palette = QApplication::palette();
        QVERIFY(GreatestContrast(picture, palette.color(QPalette::Window)) > 100);
    }

    void otherIconsAreThoseOfTheToolkit()
    {
        const DarkStyle style;

        QVERIFY(!style.standardIcon(QStyle::SP_DirIcon, nullptr, nullptr).isNull());
    }
};

VESK_TESTS(DarkStyleTest);
#include "DarkStyleTest.moc"
