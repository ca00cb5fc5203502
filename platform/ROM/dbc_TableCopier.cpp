#include "dbc_TableCopier.h"

#include <algorithm>

void dbc_TableCopier::CopyRows(dbc_Table const& in, rfm_TableMetadata const& inLayout,
                               dbc_Table& out, rfm_TableMetadata const& outLayout,
                               cow_List<unsigned> const& deleted,
                               cow_Map<cow_String, cow_String> const&, int first, int count, int) {
    static rfm_FieldHandle const base("##BaseClassOID");
    auto& from = const_cast<dbc_Table&>(in);
    bool baseGoes = inLayout.ParentTypeId() != outLayout.ParentTypeId();
    for (int i = 0; i < deleted.Size() && !baseGoes; ++i)
        baseGoes = deleted.ConstGet(i) == inLayout.ParentTypeId();
    int const end = std::min(first + count, in.RowCount());
    for (int oid = first; oid < end; ++oid) {
        dbc_HeldRow<dbc_Row const> const source(from.ConstRow(oid));
        dbc_HeldRow<dbc_Row> const target(out.NewRow());
        dynamic_cast<dbc_RowRfm&>(*target).Carry(dynamic_cast<dbc_RowRfm const&>(*source));
        if (baseGoes) target->SetInt(base, -1);
    }
}

void dbc_TableCopier::Store(dbc_TableMem& table, cow_String const&, int, int, int) {
    table.Close();
}
