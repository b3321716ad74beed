#pragma once

#include <QFile>
#include <QProcess>
#include <QSysInfo>
#include <QTemporaryDir>

#include <clocale>

namespace vesk
{

/// The C locale's decimal point, as set by a locale that is made for the test. Back to "C"
/// afterwards.
///
/// Windows does not let locales be made: there one of its own is taken, and the symbol is a comma.
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

    /// True where a decimal point can be another than that of a locale of the system.
    static bool IsAnySymbolPossible() { return QSysInfo::productType() != "windows"; }

private:
    void SetOwnLocale(const QByteArray& symbol)
    {
        QFile source(m_folder.filePath("source"));
        source.open(QIODevice::WriteOnly);
        source.write("LC_NUMERIC\ndecimal_point \"" + symbol +
                     "\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
        source.close();
        // It complains of all the other categories, which nobody needs here.
        QProcess::execute("localedef", {"-c", "--quiet", "-f", "UTF-8", "-i", source.fileName(),
                                        m_folder.filePath("points")});
        qputenv("LOCPATH", m_folder.path().toLocal8Bit());
        setlocale(LC_NUMERIC, "points");
    }

    QTemporaryDir m_folder;
};

}
