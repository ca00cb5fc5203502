#pragma once

class dbc_Row;
class dbc_Table;

/// Rewrites one row; called after what the layouts have in common was carried. Returns null; the
/// number is the step's affair.
using dbc_ConversionFunction = void* (*)(dbc_Row const& in, dbc_Row& out, int);
/// Called once, after the last row of the step.
using dbc_FinalizeFunction = void* (*)(dbc_Table const& in, dbc_Table& out);

/// What a step does to the rows of one class.
class dbc_ClassConverter {
public:
    void BindConversionFunction(dbc_ConversionFunction function) { m_convert = function; }
    void BindFinalizeFunction(dbc_FinalizeFunction function) { m_finalize = function; }

    dbc_ConversionFunction Conversion() const { return m_convert; }
    dbc_FinalizeFunction Finalize() const { return m_finalize; }

private:
    dbc_ConversionFunction m_convert = nullptr;
    dbc_FinalizeFunction m_finalize = nullptr;
};
