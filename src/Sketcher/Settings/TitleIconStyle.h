#pragma once

#include <QProxyStyle>

/// A style of the toolkit with buttons in the titles of panes that have the text colour of the
/// program's palette.
class TitleIconStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// `name` is its own, `base` that of the toolkit's style.
    TitleIconStyle(const QString& name, const QString& base);

    /// Uses the program's palette, since a pane gets its own only after its style with Qt 6.
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* pOption,
                       const QWidget* pWidget) const override;
};
