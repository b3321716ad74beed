#include "Settings/Appearance.h"

#include "Settings/DarkStyle.h"
#include "Settings/HighContrastStyle.h"

#include "HostUi/Contrast.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{

/// The contrast of two colours as WCAG defines it, from 1 to 21.
double Contrast(const QColor& a, const QColor& b)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&part](const QColor& colour) {
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
               0.0722 * part(colour.blueF());
    };
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

}

Q_DECLARE_METATYPE(Settings::Colours)

/// The colours of all windows.
class AppearanceTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::setPalette(QPalette()); }

    void lightIsLightAndDarkIsDark()
    {
        Appearance appearance;

        appearance.Set(Settings::Colours::Dark);
        QVERIFY(QApplication::palette().color(QPalette::Base).lightness() < 64);
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 64);

        appearance.Set(Settings::Colours::Light);
        QVERIFY(QApplication::palette().color(QPalette::Base).lightness() > 192);
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 192);
    }

    void textCanBeRead_data()
    {
        QTest::addColumn<Settings::Colours>("colours");

        QTest::newRow("light") << Settings::Colours::Light;
        QTest::newRow("dark") << Settings::Colours::Dark;
        QTest::newRow("high contrast") << Settings::Colours::HighContrast;
    }

    void textCanBeRead()
    {
        QFETCH(Settings::Colours, colours);
        Appearance appearance;
        appearance.Set(colours);
        const QPalette palette = QApplication::palette();
        const auto contrast = [&palette](QPalette::ColorRole ink, QPalette::ColorRole paper) {
            return Contrast(palette.color(ink), palette.color(paper));
        };

        QVERIFY(contrast(QPalette::Text, QPalette::Base) >= 7.0);
        QVERIFY(contrast(QPalette::WindowText, QPalette::Window) >= 7.0);
        QVERIFY(contrast(QPalette::ButtonText, QPalette::Button) >= 7.0);
        QVERIFY(contrast(QPalette::ToolTipText, QPalette::ToolTipBase) >= 7.0);
        QVERIFY(contrast(QPalette::Text, QPalette::AlternateBase) >= 7.0);
        QVERIFY(contrast(QPalette::Link, QPalette::Base) >= 4.5);
        QVERIFY(contrast(QPalette::LinkVisited, QPalette::Base) >= 4.5);
        QVERIFY(contrast(QPalette::HighlightedText, QPalette::Highlight) >= 3.0);
    }

    void whatIsDisabledIsFaint_data() { textCanBeRead_data(); }

    void whatIsDisabledIsFaint()
    {
        QFETCH(Settings::Colours, colours);
        Appearance appearance;
        appearance.Set(colours);
        const QPalette palette = QApplication::palette();
        const QColor paper = palette.color(QPalette::Base);
        const QColor text = palette.color(QPalette::Text);

        for (const QColor& faint : {palette.color(QPalette::Disabled, QPalette::Text),
                                    palette.color(QPalette::Disabled, QPalette::WindowText),
                                    palette.color(QPalette::Disabled, QPalette::ButtonText),
                                    palette.color(QPalette::Disabled, QPalette::Highlight),
                                    palette.color(QPalette::PlaceholderText)})
        {
            QCOMPARE(faint.alpha(), 255);
            QVERIFY(Contrast(faint, paper) >= 2.0);
            QVERIFY(Contrast(faint, paper) < Contrast(text, paper) - 1.0);
        }
        QVERIFY(palette.color(QPalette::Disabled, QPalette::Highlight) !=
                palette.color(QPalette::Highlight));
    }

    void allEdgesAreSeenInHighContrast()
    {
        Appearance appearance;
        appearance.Set(Settings::Colours::HighContrast);
        const QPalette palette = QApplication::palette();

        QVERIFY(vesk::IsHighContrast(palette));
        for (const auto role :
             {QPalette::Light, QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow})
            QVERIFY(Contrast(palette.color(role), palette.color(QPalette::Window)) >= 7.0);
    }

    void eachLookHasItsStyle_data()
    {
        QTest::addColumn<Settings::Colours>("colours");
        QTest::addColumn<QString>("style");

        QTest::newRow("light") << Settings::Colours::Light << "fusion";
        QTest::newRow("dark") << Settings::Colours::Dark << QString(DarkStyle::Name);
        QTest::newRow("high contrast")
            << Settings::Colours::HighContrast << QString(HighContrastStyle::Name);
    }

    void eachLookHasItsStyle()
    {
        QFETCH(Settings::Colours, colours);
        QApplication::setStyle(QStringLiteral("windows"));
        Appearance appearance;

        appearance.Set(colours);

        QTEST(QApplication::style()->objectName(), "style");
    }

    void coloursThatAreShownAreNotSetAgain()
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        const QPointer<QStyle> pStyle = QApplication::style();
        Appearance appearance;

        appearance.Set(Settings::Colours::Light);
        QVERIFY(pStyle != nullptr);
        QApplication::setPalette(QPalette(Qt::red));
        appearance.Set(Settings::Colours::Light);

        QCOMPARE(QApplication::palette().color(QPalette::Button), QColor(Qt::red));
    }

    void toolTipsHaveTheColoursOfAll()
    {
        const QPalette before = QToolTip::palette();
        Appearance appearance;

        appearance.Set(Settings::Colours::Dark);
        QVERIFY(QToolTip::palette().color(QPalette::ToolTipBase).lightness() < 96);
        QVERIFY(QToolTip::palette().color(QPalette::ToolTipText).lightness() > 192);

        appearance.Set(Settings::Colours::Desktop);
        QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase),
                 before.color(QPalette::ToolTipBase));
    }

    void theDesktopsColoursComeBack_data()
    {
        QTest::addColumn<bool>("isByDestruction");

        QTest::newRow("chosen") << false;
        QTest::newRow("at the end") << true;
    }

    void theDesktopsColoursComeBack()
    {
        QFETCH(bool, isByDestruction);
        QApplication::setStyle(QStringLiteral("windows"));
        const QPalette before = QApplication::palette();
        auto pAppearance = std::make_unique<Appearance>();
        pAppearance->Set(Settings::Colours::Dark);
        QCOMPARE(QApplication::style()->objectName(), QString(DarkStyle::Name));

        if (isByDestruction)
            pAppearance.reset();
        else
            pAppearance->Set(Settings::Colours::Desktop);

        QCOMPARE(QApplication::style()->objectName(), QString("windows"));
        for (const auto role : {QPalette::Base, QPalette::Text, QPalette::Window,
                                QPalette::Highlight, QPalette::Button})
            QCOMPARE(QApplication::palette().color(role), before.color(role));
    }
};

VESK_TESTS(AppearanceTest);
#include "AppearanceTest.moc"
