#pragma once

#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>

#include <clocale>

namespace vesk
{

/// Sets the C library's decimal point through a locale built for the test; restores "C" afterwards.
///
/// Windows does not allow locales to be built: there one of its own is used, whose symbol is a
/// comma.
class DecimalPointScope
{
public:
    explicit DecimalPointScope(const QByteArray& symbol)
    {
        if (IsAnySymbolPossible())
            SetOwnLocale(symbol);
        else
            setlocale(LC_NUMERIC, "German_Germany.1252");
    }

    ~DecimalPointScope()
    {
        setlocale(LC_NUMERIC, "C");
        qunsetenv("LOCPATH");
    }

    DecimalPointScope(const DecimalPointScope&) = delete;
    DecimalPointScope& operator=(const DecimalPointScope&) = delete;

    /// True if the decimal point can be a symbol that no locale of the system has.
    static bool IsAnySymbolPossible() { return QSysInfo::productType() != "windows"; }

private:
    void SetOwnLocale(const QByteArray& symbol)
    {
        QFile source(m_folder.filePath("source"));
        source.open(QIODevice::WriteOnly);
        source.write("LC_NUMERIC\ndecimal_point \"" + symbol +
                     "\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
        source.close();
        // It complains about all the other categories, which are not needed here.
        QProcess::execute("localedef", {"-c", "--quiet", "-f", "UTF-8", "-i", source.fileName(),
                                        m_folder.filePath("points")});
        qputenv("LOCPATH", m_folder.path().toLocal8Bit());
        setlocale(LC_NUMERIC, "points");
    }

    QTemporaryDir m_folder;
};

}
