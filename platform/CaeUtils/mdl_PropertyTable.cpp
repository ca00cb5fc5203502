#include "mdl_PropertyTable.h"

#include "mdl_TableRows.h"
#include "nex_TextException.h"
#include "nex_TextTable.h"

namespace {

constexpr char const* mdlTexts[] = {
    /* 0 */ "Tabular data has either blank or zero valued row(s).",
};

constexpr mdl_Module mdlModule = {"mdl", [](int code) { return nex_TextOfCode(mdlTexts, code); },
                                  [](int code) {
                                      nex_TextException(nex_TextOfCode(mdlTexts, code))
                                          .Throw("platform/CaeUtils/mdl_PropertyTable", 22);
                                  }};

}  // namespace

DD_DEFINE_ROOT_UNSCRIPTED(mdl_PropertyTable, mdlModule)

mdl_PropertyTable* mdl_PropertyTable::Copy() const { return new mdl_PropertyTable(*this); }

mdl_PropertyTable::mdl_PropertyTable(cow_2DArray<double> const& array) : table(array) {}
mdl_PropertyTable::mdl_PropertyTable(int rows, int columns) : table(rows, columns) {}

void mdl_PropertyTable::Rules(mdl_RuleVisitor& v) const {
    for (int row = 0; row < Rows(); ++row)
        if (!v.Rule(!mdl_IsBlankRow(table, row), 0)) return;
}

void mdl_PropertyTable::Sort(int n) {
    if (n != 0) table = mdl_SortedRows(table, n);
}

bool mdl_PropertyTable::operator==(mdl_PropertyTable const& other) const {
    return mdl_EqualCells(table, other.table);
}
