#include "kbpC_oldClasses.h"

#include "dbc_DatabaseConverter.h"
#include "dbc_Failure.h"
#include "dbc_Moves.h"
#include "dbc_OldClass.h"
#include "kbpC_ArchEntry.h"
#include "typ_Entry.h"

using namespace dbc_Moves;

namespace {

constexpr unsigned kbp(std::uint16_t row) { return typ_MakeTypeId(kbpC_component, row); }
constexpr unsigned profile = kbp(1), generalized = kbp(2), pipe = kbp(5), ibeam = kbp(6);
constexpr unsigned box = kbp(7), arbitrary = kbp(9);

using Field = rfm_FieldHandle;

void MoveUnlessThere(dbc_Row const& in, dbc_Row& out, Field const& from, Field const& to) {
    if (!HasAndIsSet(in, to)) MoveDouble(in, out, from, to);
}

void* PipeTo406(dbc_Row const& in, dbc_Row& out, int) {
    static Field const radius("radius"), r("r"), thickness("thickness"), t("t");
    MoveUnlessThere(in, out, radius, r);
    MoveUnlessThere(in, out, thickness, t);
    return nullptr;
}

void* GeneralizedTo406(dbc_Row const& in, dbc_Row& out, int) {
    static Field const jTorsion("jTorsion"), j("j");
    MoveUnlessThere(in, out, jTorsion, j);
    return nullptr;
}

void* BoxTo406(dbc_Row const& in, dbc_Row& out, int) {
    static Field const width("width"), a("a"), height("height"), b("b");
    static Field const uniform("uniform"), uniformThickness("uniformThickness");
    MoveUnlessThere(in, out, width, a);
    MoveUnlessThere(in, out, height, b);
    if (!HasAndIsSet(in, uniformThickness)) MoveInt(in, out, uniform, uniformThickness);
    return nullptr;
}

/// The values of a list, to which a field of a row refers.
std::vector<double> ListOf(dbc_Row const& in, dbc_ObjectField const& field, dbc_Table& lists) {
    static Field const handle("Target#Handle");
    dbc_HeldRow<dbc_Row const> const row(Follow(in, field.oid, lists));
    auto const array =
        Run().Input().Transporter().Database().ArrayDouble(row->GetHandle(handle), -1, 0);
    std::vector<double> values(static_cast<std::size_t>(array->Length()));
    array->Read(values.data(), array->Length());
    return values;
}

std::unique_ptr<dbc_TableRfm> Lists(dbc_Row const& in) {
    std::unique_ptr<dbc_TableRfm> lists = Run().Input().GetInputTable(cls_ListTypeId);
    if (!lists) dbc_Fail(in.Where() + " needs its lists, of which the database has none.");
    return lists;
}

void* BoxTo430(dbc_Row const& in, dbc_Row& out, int) {
    static dbc_ObjectField const tempThick("tempThick");
    static Field const thickness[] = {Field("t1"), Field("t2"), Field("t3"), Field("t4")};
    if (HasAndIsSet(in, thickness[0])) return nullptr;
    Reference(in, tempThick.oid);
    std::vector<double> const values = ListOf(in, tempThick, *Lists(in));
    for (std::size_t i = 0; i < 4 && i < values.size(); ++i) {
        out.SetDouble(thickness[i], values[i]);
        out.NoteMove(in, tempThick.oid, thickness[i]);
    }
    if (values.size() < 4) out.Note("its list of thicknesses has fewer than four values");
    if (values.size() > 4) out.Note("its list of thicknesses has more than four values");
    return nullptr;
}

// A thickness belongs to the segment that ends at its point, so that the first point has none.
void* ArbitraryTo505(dbc_Row const& in, dbc_Row& out, int) {
    static dbc_ObjectField const xField("x"), yField("y"), tField("t"), table("table");
    for (dbc_ObjectField const* field : {&tField, &xField, &yField}) Reference(in, field->oid);
    std::unique_ptr<dbc_TableRfm> const lists = Lists(in);
    std::vector<double> const t = ListOf(in, tField, *lists);
    std::vector<double> const x = ListOf(in, xField, *lists);
    std::vector<double> const y = ListOf(in, yField, *lists);
    if (y.size() < x.size() || t.size() + 1 < x.size())
        dbc_Fail(in.Where() + " has " + std::to_string(x.size()) + " points, " +
                 std::to_string(y.size()) + " second coordinates and " + std::to_string(t.size()) +
                 " thicknesses, which do not fit.");
    if (y.size() > x.size() || t.size() > x.size())
        out.Note("its lists are longer than its points are many");
    Array rows{3, static_cast<int>(x.size()), {}};
    rows.values.reserve(3 * x.size());
    for (std::size_t i = 0; i < x.size(); ++i)
        rows.values.insert(rows.values.end(), {x[i], y[i], i > 0 ? t[i - 1] : 0.0});
    out.SetInt(table.oid, AppendArray(out, "table", rows));
    out.SetInt(table.classId, static_cast<int>(cls_ListTypeId));
    for (dbc_ObjectField const* field : {&xField, &yField, &tField})
        out.NoteMove(in, field->oid, table.oid);
    return nullptr;
}

// clang-format off
constexpr dbc_OldField arbitrary203[] = {
    dbc_RealList("x"), dbc_RealList("y"), dbc_RealList("t"), dbc_Int("numSegments"),
};
constexpr dbc_OldField box203[] = {
    dbc_Real("height"), dbc_Real("width"), dbc_RealList("tempThick"), dbc_Flag("uniform"),
};
constexpr dbc_OldField box406[] = {
    dbc_Real("b"), dbc_Real("a"), dbc_RealList("tempThick"), dbc_Flag("uniformThickness"),
};
constexpr dbc_OldField generalized203[] = {
    dbc_Flag("linearBehavior"), dbc_Real("area"), dbc_Real("i11"), dbc_Real("i12"),
    dbc_Real("i22"), dbc_Real("jTorsion"), dbc_Real("gammaO"), dbc_Real("gammaW"),
};
constexpr dbc_OldField generalized406[] = {
    dbc_Flag("linearBehavior"), dbc_Real("area"), dbc_Real("i11"), dbc_Real("i12"),
    dbc_Real("i22"), dbc_Real("j"), dbc_Real("gammaO"), dbc_Real("gammaW"),
};
constexpr dbc_OldField ibeam203[] = {
    dbc_Real("l"), dbc_Real("h"), dbc_Real("b1"), dbc_Real("b2"), dbc_Real("t1"), dbc_Real("t2"),
    dbc_Real("t3"), dbc_Int("integration"),
};
constexpr dbc_OldField pipe203[] = {
    dbc_Real("radius"), dbc_Real("thickness"),
};

constexpr dbc_OldClass oldClasses[] = {
    {"kbpC_BoxProfile_203", "kbpC_BoxProfile", box, 203, profile, 4,
     box203, dbc_Step(406, BoxTo406)},
    {"kbpC_BoxProfile_406", "kbpC_BoxProfile", box, 406, profile, 4,
     box406, dbc_Step(430, BoxTo430)},
    {"kbpC_GeneralizedProfile_203", "kbpC_GeneralizedProfile", generalized, 203, profile, 4,
     generalized203, dbc_Step(406, GeneralizedTo406)},
    {"kbpC_GeneralizedProfile_406", "kbpC_GeneralizedProfile", generalized, 406, profile, 4,
     generalized406, dbc_Step(430)},
    {"kbpC_IbeamProfile_203", "kbpC_IbeamProfile", ibeam, 203, profile, 4,
     ibeam203, dbc_Step(430)},
    {"kbpC_PipeProfile_203", "kbpC_PipeProfile", pipe, 203, profile, 4,
     pipe203, dbc_Step(406, PipeTo406)},
    {"kbpC_ArbitraryProfile_203", "kbpC_ArbitraryProfile", arbitrary, 203, profile, 4,
     arbitrary203, dbc_Step(505, ArbitraryTo505)},
};
// clang-format on

}  // namespace

void kbpC_RegisterOldClasses() { dbc_RegisterOldClasses(oldClasses); }
