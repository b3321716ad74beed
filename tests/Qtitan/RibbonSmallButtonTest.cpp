#include "RibbonFixture.h"

#include <QCursor>

#include <functional>

using namespace Qtitan;

using ButtonChange = std::function<void(QToolButton*)>;
Q_DECLARE_METATYPE(ButtonChange)

namespace
{

const QColor s_iconColor(Qt::red);
const QColor s_sharpIconColor(Qt::magenta);

/// An icon whose 32-pixel picture differs in colour from the 16-pixel one.
QIcon createIcon()
{
    QPixmap coarse(16, 16);
    coarse.fill(s_iconColor);
    QPixmap sharp(32, 32);
    sharp.fill(s_sharpIconColor);
    QIcon icon(coarse);
    icon.addPixmap(sharp);
    return icon;
}

bool isOfIcon(const QColor& color)
{
    return color.hsvSaturation() > 200 && color.red() > 200;
}

bool isOfDarkText(const QColor& color)
{
    return color.lightness() < 128 && !isOfIcon(color);
}

/// A ribbon, black on light grey, with one small button.
struct SmallFixture : RibbonFixture
{
    SmallFixture() : pControl(nullptr), pButton(addSmallButton("Arc"))
    {
        pControl = qobject_cast<RibbonButtonControl*>(pButton->parentWidget());
        pButton->setCheckable(true);
        window->setPalette(paletteOf(QColor(240, 240, 240), Qt::black));
    }

    QToolButton* addSmallButton(const QString& caption)
    {
        QToolButton* pSmall = createButton(caption);
        pSmall->defaultAction()->setIcon(createIcon());
        pGroup->addSmallButton(pSmall);
        return pSmall;
    }

    QPoint placeOf(const QWidget* pWidget) const { return pWidget->mapTo(pGroup, QPoint()); }

    QImage drawn(const QToolButton* pShown) const
    {
        return pBar->grab(QRect(pShown->mapTo(pBar, QPoint()), pShown->size())).toImage();
    }

    /// The bounds of pixels of a kind, in the coordinates of the button.
    QRect inkOf(const QToolButton* pShown, const std::function<bool(const QColor&)>& isInk) const
    {
        const QImage image = drawn(pShown);
        const int scale = qRound(image.devicePixelRatio());
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
        {
            for (int x = 0; x < image.width(); ++x)
                ink |= isInk(image.pixelColor(x, y)) ? QRect(x / scale, y / scale, 1, 1) : QRect();
        }
        return ink;
    }

    RibbonButtonControl* pControl;
    QToolButton* pButton;
};

} // namespace

class RibbonSmallButtonTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
#if QT_VERSION_MAJOR == 5
        // Qt 6 always uses such pixmaps.
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    }

    void controlHoldsTheButtonInItsForm()
    {
        const SmallFixture f;

        QVERIFY(f.pControl != nullptr);
        QCOMPARE(f.pControl->widget(), f.pButton);
        QCOMPARE(int(f.pControl->form()), int(RibbonButtonForm::Small));
        QCOMPARE(f.pButton->iconSize(), QSize(16, 16));
    }

    void buttonIsOneRowHigh()
    {
        SmallFixture f;
        const QToolButton* pLarge = f.addButton("Line");
        f.show();

        QVERIFY(f.pButton->height() >= f.pButton->fontMetrics().height());
        QVERIFY(3 * f.pButton->height() <= pLarge->height());
    }

    void captionStandsBesideTheIcon_data()
    {
        QTest::addColumn<Qt::ToolButtonStyle>("style");
        QTest::newRow("icon only") << Qt::ToolButtonIconOnly;
        QTest::newRow("text only") << Qt::ToolButtonTextOnly;
        QTest::newRow("text beside icon") << Qt::ToolButtonTextBesideIcon;
        QTest::newRow("text under icon") << Qt::ToolButtonTextUnderIcon;
        QTest::newRow("as the desktop says") << Qt::ToolButtonFollowStyle;
    }

    void captionStandsBesideTheIcon()
    {
        QFETCH(Qt::ToolButtonStyle, style);
        SmallFixture f;
        f.pButton->setToolButtonStyle(style);
        f.show();

        const QRect icon = f.inkOf(f.pButton, isOfIcon);
        const QRect caption = f.inkOf(f.pButton, isOfDarkText);

        QCOMPARE(icon.size(), QSize(16, 16));
        QVERIFY(icon.left() < 8);
        QVERIFY(caption.left() > icon.right());
        QVERIFY(caption.top() < icon.center().y() && icon.center().y() < caption.bottom());
        QVERIFY(caption.right() < f.pButton->width() - 1);
        QCOMPARE(f.pButton->toolButtonStyle(), style);
    }

    void iconHasThePixelsOfTheScreen()
    {
        SmallFixture f;
        f.show();

        const QImage image = f.drawn(f.pButton);

        const bool isSharp = image.devicePixelRatio() > 1;
        const QPoint icon = f.inkOf(f.pButton, isOfIcon).center();
        QCOMPARE(image.pixelColor(icon * image.devicePixelRatio()),
                 isSharp ? s_sharpIconColor : s_iconColor);
    }

    void captionIsLightOnADarkPage()
    {
        SmallFixture f;
        f.window->setPalette(paletteOf(QColor(40, 40, 40), Qt::white));
        f.show();

        const QRect caption = f.inkOf(f.pButton, [](const QColor& color) {
            return color.lightness() > 180 && !isOfIcon(color);
        });

        QVERIFY(caption.left() > 16);
        QVERIFY(caption.width() > 4);
    }

    void captionsBeginInOneLineWithAndWithoutAnIcon()
    {
        SmallFixture f;
        QToolButton* pPlain = f.addSmallButton("Arc");
        pPlain->defaultAction()->setIcon(QIcon());
        f.show();

        const QRect caption = f.inkOf(pPlain, isOfDarkText);

        QVERIFY(!caption.isEmpty());
        QCOMPARE(caption, f.inkOf(f.pButton, isOfDarkText));
    }

    void buttonsOfAColumnEndInOneLine()
    {
        SmallFixture f;
        const QToolButton* pWide = f.addSmallButton("A much longer caption");
        f.show();

        QCOMPARE(f.pButton->width(), pWide->width());
        QCOMPARE(f.placeOf(f.pButton).x(), f.placeOf(pWide).x());
    }

    void captionThatGrowsFits()
    {
        SmallFixture f;
        f.show();
        const int widthOfTheRest =
            f.pButton->width() - f.pButton->fontMetrics().horizontalAdvance("Arc");

        const QString caption("A caption that is much longer");
        f.pButton->defaultAction()->setText(caption);

        const int width = f.pButton->fontMetrics().horizontalAdvance(caption) + widthOfTheRest;
        QTRY_VERIFY(f.pButton->width() >= width);
    }

    void stateIsSeen_data()
    {
        QTest::addColumn<ButtonChange>("bring");
        const auto row = [](const char* name, const ButtonChange& bring) {
            QTest::newRow(name) << bring;
        };
        row("hovered", [](QToolButton* pButton) {
            QCursor::setPos(pButton->mapToGlobal(pButton->rect().center()));
            QCoreApplication::processEvents();
        });
        row("pressed", [](QToolButton* pButton) { pButton->setDown(true); });
        row("checked", [](QToolButton* pButton) { pButton->setChecked(true); });
        row("focused", [](QToolButton* pButton) { pButton->setFocus(Qt::TabFocusReason); });
    }

    void stateIsSeen()
    {
        QFETCH(ButtonChange, bring);
        // Not where the button will appear.
        QCursor::setPos(QPoint());
        SmallFixture f;
        f.show();
        QCursor::setPos(f.pView->mapToGlobal(f.pView->rect().center()));
        QTRY_VERIFY(!f.pButton->underMouse());
        const QImage before = f.drawn(f.pButton);

        bring(f.pButton);

        const QPoint edge(before.width() / 2, 0);
        QTRY_VERIFY(f.drawn(f.pButton).pixelColor(edge) != before.pixelColor(edge));
    }

    void disabledButtonIsPale()
    {
        SmallFixture f;
        f.show();

        f.pButton->setEnabled(false);

        QVERIFY(f.inkOf(f.pButton, isOfIcon).isEmpty());
    }

    void goneButtonGivesItsPlaceUp_data()
    {
        QTest::addColumn<ButtonChange>("remove");
        const auto row = [](const char* name, const ButtonChange& remove) {
            QTest::newRow(name) << remove;
        };
        row("hidden", [](QToolButton* pButton) { pButton->hide(); });
        row("deleted", [](QToolButton* pButton) { delete pButton; });
        row("taken away", [](QToolButton* pButton) { pButton->setParent(pButton->window()); });
    }

    void goneButtonGivesItsPlaceUp()
    {
        QFETCH(ButtonChange, remove);
        SmallFixture f;
        const QToolButton* pNext = f.addSmallButton("Circle");
        f.show();
        const QPoint place = f.placeOf(f.pButton);

        remove(f.pButton);

        QTRY_COMPARE(f.placeOf(pNext), place);
        QVERIFY(f.pControl->isHidden());
    }

    void buttonShownAgainTakesItsPlaceBack()
    {
        SmallFixture f;
        const QToolButton* pNext = f.addSmallButton("Circle");
        f.show();
        const QPoint place = f.placeOf(f.pButton);
        const QPoint nextPlace = f.placeOf(pNext);
        f.pButton->hide();
        QTRY_COMPARE(f.placeOf(pNext), place);

        f.pButton->show();

        QTRY_COMPARE(f.placeOf(pNext), nextPlace);
        QCOMPARE(f.placeOf(f.pButton), place);
    }

    void rowOfADeletedButtonStaysItsControls()
    {
        SmallFixture f;
        f.addSmallButton("Circle");
        f.show();
        const QPoint place = f.placeOf(f.pButton);
        delete f.pButton;
        f.addSmallButton("Rectangle");

        f.pControl->setWidget(createButton("Ellipse"));

        QTRY_COMPARE(f.placeOf(f.pControl->widget()), place);
        QVERIFY(f.pControl->widget()->isVisible());
    }

    void buttonHandedOverHiddenStaysHidden()
    {
        SmallFixture f;
        QToolButton* pHidden = createButton("Circle");
        pHidden->hide();
        const RibbonButtonControl* pControl = f.pGroup->addSmallButton(pHidden);
        const QToolButton* pNext = f.addSmallButton("Rectangle");
        f.show();

        QVERIFY(!pHidden->isVisible());
        QVERIFY(!pControl->isVisible());
        QVERIFY(f.placeOf(pNext).y() < f.placeOf(f.pButton).y() + 2 * f.pButton->height());
    }

    void groupOfHiddenSmallButtonsHides()
    {
        SmallFixture f;
        f.show();

        f.pButton->hide();
        QVERIFY(!f.pGroup->isVisible());
        f.pButton->show();

        QVERIFY(f.pGroup->isVisible());
        QVERIFY(f.pButton->isVisible());
    }

    void buttonAddedToAShownRibbonIsShown()
    {
        SmallFixture f;
        f.show();

        const QToolButton* pNew = f.addSmallButton("Circle");

        QTRY_VERIFY(pNew->isVisible());
        QTRY_VERIFY(f.placeOf(pNew).y() > f.placeOf(f.pButton).y());
    }
};

VESK_TESTS(RibbonSmallButtonTest);
#include "RibbonSmallButtonTest.moc"
