#include "Settings/Appearance.h"

#include "Settings/DarkStyle.h"

#include "Support/TestValues.h"

#include <QApplication>
#include <QPalette>
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
        QVERIFY(contrast(QPalette::Link, QPalette::Base) >= 4.5);
        QVERIFY(contrast(QPalette::HighlightedText, QPalette::Highlight) >= 3.0);
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
