#pragma once

#include "HostUi/TypedText.h"

#include <QString>
#include <QVector>

/// A text that users may type for a value, as an example.
struct TypedExample
{
    QString text;
    QString meaning; ///< Or why it is rejected.
    vesk::Quantity quantity = vesk::Quantity::Length;
};

/// Texts that are accepted, and texts that are rejected because people read them differently.
QVector<TypedExample> AcceptedExamples();
QVector<TypedExample> RejectedExamples();
