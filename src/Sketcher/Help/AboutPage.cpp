#include "Help/AboutPage.h"

#include "Model/UiText.h"

#include <QCoreApplication>

namespace
{

struct UsedLibrary
{
    const char* name;
    const char* licence;
    const char* address;
};

constexpr UsedLibrary UsedLibraries[] = {
    {"Qt 5", "LGPL-3.0", "https://www.qt.io"},
    {"Eigen 3", "MPL-2.0", "https://eigen.tuxfamily.org"},
    {"JSON for Modern C++", "MIT", "https://github.com/nlohmann/json"},
    {"UTF8-CPP", "BSL-1.0", "https://github.com/nemtrif/utfcpp"},
    {"Boost.Multiprecision", "BSL-1.0", "https://www.boost.org"},
    {"XCB", "MIT", "https://xcb.freedesktop.org"},
};

QString Paragraph(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text);
}

}

QString MakeAboutPage()
{
    QString page =
        QStringLiteral("<h2>Sketcher %1</h2>").arg(QCoreApplication::applicationVersion()) +
        Paragraph("绘制精确图形；每次绘图都可以重放。"_tr) +
        Paragraph("许可证：%1"_tr.arg(QStringLiteral("Apache-2.0"))) + Paragraph("使用的库："_tr) +
        QStringLiteral("<table cellspacing='0' cellpadding='3'>");
    for (const UsedLibrary& library : UsedLibraries)
        page += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td><td><a href='%3'>%3</a></td></tr>")
                    .arg(QString::fromLatin1(library.name), QString::fromLatin1(library.licence),
                         QString::fromLatin1(library.address));
    return page + QStringLiteral("</table>") +
           Paragraph("Qt 版本：%1"_tr.arg(QString::fromLatin1(qVersion()))) +
           Paragraph("DXF 文件由单独的程序 vesk-dxf 读写，它使用 dxflib，许可证：%1"_tr.arg(
               QStringLiteral("GPL-3.0-or-later")));
}
