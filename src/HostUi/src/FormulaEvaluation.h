#pragma once

#include "FormulaReader.h"

namespace vesk
{

/// The value of a formula in millimetres or degrees; not finite where it has none, and for every
/// formula where the program was built without an evaluator.
double Evaluate(const CheckedFormula& formula);

}
