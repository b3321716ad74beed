#pragma once

#include <QString>
#include <QVector>

/// A language of the program's texts.
struct Language
{
    QString locale;  ///< The name of its locale; empty for the desktop's.
    QString caption; ///< In the language itself.
};

/// The desktop's language, Chinese (the source texts), and those whose catalogues
/// `sketcher_<locale>.qm` are in a folder.
QVector<Language> FindLanguages(const QString& folder);
