#pragma once

#include "cow_2DArray.h"
#include "mdl_RuleVisitor.h"

// What several amplitudes ask alike.

/// Whether a smoothing parameter is the one that leaves it to the solver, or lies in its range.
bool kamC_IsSmoothing(double smooth);

/// The rules of a table of time and value.
void kamC_TimeTableRules(mdl_RuleVisitor& v, cow_2DArray<double> const& data);
