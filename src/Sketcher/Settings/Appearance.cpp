#include "Settings/Appearance.h"

#include "Settings/DarkStyle.h"
#include "Settings/HighContrastStyle.h"

#include "HostUi/Contrast.h"
#include "Platform/DesktopWish.h"

#include <QApplication>
#include <QStyle>
#include <QToolTip>

namespace
{

/// The colours of which a palette is made.
struct ColourScheme
{
    QColor window;
    QColor base; ///< Of the drawing, too.
    QColor alternateBase;
    QColor text;
    QColor faintText; ///< Of what is disabled.
    QColor button;
    QColor highlight;
    QColor highlightedText;
    QColor link;
    QColor toolTip;
    QColor light;
    QColor dark;
};

const ColourScheme& LightScheme()
{
    static const ColourScheme s_scheme = {
        QColor(0xf3, 0xf4, 0xf5), QColor(0xff, 0xff, 0xff), QColor(0xf4, 0xf6, 0xf8),
        QColor(0x1f, 0x23, 0x28), QColor(0x9a, 0xa0, 0xa6), QColor(0xf0, 0xf1, 0xf2),
        QColor(0x2f, 0x7d, 0xe1), QColor(0xff, 0xff, 0xff), QColor(0x1a, 0x5f, 0xb4),
        QColor(0xff, 0xff, 0xe6), QColor(0xff, 0xff, 0xff), QColor(0xa8, 0xac, 0xb0),
    };
    return s_scheme;
}

const ColourScheme& DarkScheme()
{
    static const ColourScheme s_scheme = {
        QColor(0x35, 0x37, 0x3b), QColor(0x1b, 0x1c, 0x1f), QColor(0x24, 0x26, 0x29),
        QColor(0xe3, 0xe5, 0xe8), QColor(0x7d, 0x82, 0x88), QColor(0x42, 0x45, 0x4a),
        QColor(0x3d, 0x84, 0xdb), QColor(0xff, 0xff, 0xff), QColor(0x7a, 0xb3, 0xf5),
        QColor(0x3a, 0x3d, 0x41), QColor(0x55, 0x59, 0x5f), QColor(0x16, 0x17, 0x19),
    };
    return s_scheme;
}

/// With a style that draws its edges in the colours light and dark.
const ColourScheme& HighContrastScheme()
{
    static const ColourScheme s_scheme = {
        QColor(0x00, 0x00, 0x00), QColor(0x00, 0x00, 0x00), QColor(0x00, 0x00, 0x00),
        QColor(0xff, 0xff, 0xff), QColor(0xa8, 0xe0, 0xa8), QColor(0x00, 0x00, 0x00),
        QColor(0x1a, 0xeb, 0xff), QColor(0x00, 0x00, 0x00), QColor(0xff, 0xff, 0x00),
        QColor(0x00, 0x00, 0x00), QColor(0xff, 0xff, 0xff), QColor(0xff, 0xff, 0xff),
    };
    return s_scheme;
}

/// The colours of a look, and the style that draws in them.
struct Look
{
    const ColourScheme& scheme;
    QString style;
};

Look LookOf(Settings::Colours colours)
{
    switch (colours)
    {
    case Settings::Colours::Dark:
        return {DarkScheme(), QString::fromLatin1(DarkStyle::Name)};
    case Settings::Colours::HighContrast:
        return {HighContrastScheme(), QString::fromLatin1(HighContrastStyle::Name)};
    default:
        return {LightScheme(), QStringLiteral("fusion")};
    }
}

QPalette ToPalette(const ColourScheme& scheme)
{
    QPalette palette(scheme.button, scheme.window);
    palette.setColor(QPalette::Base, scheme.base);
    palette.setColor(QPalette::AlternateBase, scheme.alternateBase);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText})
        palette.setColor(role, scheme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, scheme.faintText);
    palette.setColor(QPalette::PlaceholderText, scheme.faintText);
    palette.setColor(QPalette::Highlight, scheme.highlight);
    palette.setColor(QPalette::HighlightedText, scheme.highlightedText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, scheme.faintText);
    palette.setColor(QPalette::Link, scheme.link);
    palette.setColor(QPalette::LinkVisited, scheme.link);
    palette.setColor(QPalette::ToolTipBase, scheme.toolTip);
    palette.setColor(QPalette::Light, scheme.light);
    palette.setColor(QPalette::Dark, scheme.dark);
    if (vesk::IsHighContrast(palette))
    {
        for (const auto role : {QPalette::Midlight, QPalette::Mid, QPalette::Shadow})
            palette.setColor(role, scheme.dark);
    }
    return palette;
}

}

Appearance::Appearance()
    : m_desktopStyle(QApplication::style()->objectName()),
      m_desktopPalette(QApplication::palette()), m_desktopToolTips(QToolTip::palette())
{}

Appearance::~Appearance()
{
    m_pWish.reset();
    Set(Settings::Colours::Desktop);
}

void Appearance::Set(Settings::Colours colours)
{
    m_colours = colours;
    Apply();
}

void Appearance::FollowDesktop()
{
    m_pWish = std::make_unique<DesktopWish>();
    QObject::connect(m_pWish.get(), &DesktopWish::changed, m_pWish.get(), [this] { Apply(); });
    Apply();
}

void Appearance::Apply()
{
    const Settings::Colours colours = FindColours();
    if (colours == m_shown)
        return;
    m_shown = colours;
    Show(colours);
}

/// The colours that are to be shown. The palette of a desktop that the toolkit knows is dark, or of
/// high contrast, already.
Settings::Colours Appearance::FindColours() const
{
    if (m_colours != Settings::Colours::Desktop || m_pWish == nullptr)
        return m_colours;
    if (m_pWish->IsHighContrast() && !vesk::IsHighContrast(m_desktopPalette))
        return Settings::Colours::HighContrast;
    const bool isLight = m_desktopPalette.color(QPalette::Base).lightness() >= 128;
    return m_pWish->IsDark() && isLight ? Settings::Colours::Dark : m_colours;
}

void Appearance::Show(Settings::Colours colours)
{
    if (colours == Settings::Colours::Desktop)
    {
        SetStyle(m_desktopStyle);
        // A palette that sets nothing gives way to the desktop's.
        QApplication::setPalette(QPalette());
        QToolTip::setPalette(m_desktopToolTips);
        return;
    }
    const Look look = LookOf(colours);
    const QPalette palette = ToPalette(look.scheme);
    // Panes ask the style for their icons only once, when it is set.
    QApplication::setPalette(palette);
    SetStyle(look.style);
    QToolTip::setPalette(palette);
}

void Appearance::SetStyle(const QString& name)
{
    if (QApplication::style()->objectName() == name)
        return;
    if (name == QLatin1String(DarkStyle::Name))
        QApplication::setStyle(new DarkStyle);
    else if (name == QLatin1String(HighContrastStyle::Name))
        QApplication::setStyle(new HighContrastStyle);
    else
        QApplication::setStyle(name);
}
