#pragma once

#include <QString>
#include <QVector>

/// A unit that can be chosen for a DXF file that names none.
struct NamedDxfUnit
{
    QString name;        ///< On the command lines of this program and of vesk-dxf.
    const char* caption; ///< On screen; a source text.
};

const QVector<NamedDxfUnit>& NamedDxfUnits();

/// Whether there is a unit of that name.
bool IsDxfUnit(const QString& name);
