#include "Settings/Appearance.h"

#include "Settings/DarkStyle.h"

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
    return palette;
}

}

Appearance::Appearance()
    : m_desktopStyle(QApplication::style()->objectName()), m_desktopToolTips(QToolTip::palette())
{}

Appearance::~Appearance()
{
    Set(Settings::Colours::Desktop);
}

void Appearance::Set(Settings::Colours colours)
{
    if (colours == m_colours)
        return;
    m_colours = colours;
    if (colours == Settings::Colours::Desktop)
    {
        SetStyle(m_desktopStyle);
        // A palette that sets nothing gives way to the desktop's.
        QApplication::setPalette(QPalette());
        QToolTip::setPalette(m_desktopToolTips);
        return;
    }
    const bool isDark = colours == Settings::Colours::Dark;
    const QPalette palette = ToPalette(isDark ? DarkScheme() : LightScheme());
    // Panes ask the style for their icons only once, when it is set.
    QApplication::setPalette(palette);
    SetStyle(isDark ? QString::fromLatin1(DarkStyle::Name) : QStringLiteral("fusion"));
    QToolTip::setPalette(palette);
}

void Appearance::SetStyle(const QString& name)
{
    if (QApplication::style()->objectName() == name)
        return;
    if (name == QLatin1String(DarkStyle::Name))
        QApplication::setStyle(new DarkStyle);
    else
        QApplication::setStyle(name);
}
