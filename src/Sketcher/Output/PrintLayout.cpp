#include "Output/PrintLayout.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{

constexpr double GreatestScale = 1e6;

/// A number from 1 on, with four digits or all of those before the point, and without an exponent.
QString NumberText(double value)
{
    constexpr int Digits = 4;
    int decimals = Digits - 1;
    for (double power = 10.0; decimals > 0 && value >= power; power *= 10.0)
        --decimals;
    QString text = QString::number(value, 'f', decimals);
    while (text.contains(QLatin1Char('.')) &&
           (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.'))))
        text.chop(1);
    return text;
}

}

std::optional<double> ReadScale(const QString& text)
{
    static const QRegularExpression s_ratio(
        QStringLiteral(R"(^\s*(\d+(?:\.\d+)?)\s*(?:[:：/]\s*(\d+(?:\.\d+)?)\s*)?$)"));
    const QRegularExpressionMatch match = s_ratio.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const double divisor = match.captured(2).isEmpty() ? 1.0 : match.captured(2).toDouble();
    const double scale = match.captured(1).toDouble() / divisor;
    const bool isInRange = scale >= 1.0 / GreatestScale && scale <= GreatestScale;
    return isInRange ? std::make_optional(scale) : std::nullopt;
}

double FitScale(const ShapeBounds& bounds, const QSizeF& paper)
{
    const vesk::Vector3d size = bounds.high - bounds.low;
    const auto fit = [](double available, double length) {
        return std::max(available - 2.0 * FitMargin, 1.0) / std::max(length, 1e-9);
    };
    return std::min({fit(paper.width(), size.x()), fit(paper.height(), size.y()), GreatestScale});
}

bool FitsPaper(const ShapeBounds& bounds, double scale, const QSizeF& paper)
{
    const vesk::Vector3d size = (bounds.high - bounds.low) * scale;
    return size.x() <= paper.width() && size.y() <= paper.height();
}

QString ScaleText(double scale)
{
    return scale >= 1.0 ? NumberText(scale) + QStringLiteral(":1")
                        : QStringLiteral("1:") + NumberText(1.0 / scale);
}
