#include "kamC_oldClasses.h"

#include "dbc_Moves.h"
#include "dbc_OldClass.h"
#include "kamC_ArchEntry.h"
#include "typ_Entry.h"

using namespace dbc_Moves;

namespace {

constexpr unsigned kam(std::uint16_t row) { return typ_MakeTypeId(kamC_component, row); }
constexpr unsigned baselineCorrection = kam(1), amplitude = kam(2), equallySpaced = kam(4);
constexpr unsigned periodic = kam(6), tabular = kam(8), smoothStep = kam(11);

// The literals of the old field are those of the new one.
void* AmplitudeTo424(dbc_Row const& in, dbc_Row& out, int) {
    static rfm_FieldHandle const time("time"), timeSpan("timeSpan");
    if (!IsSetAndHas(in, timeSpan)) MoveString(in, out, time, timeSpan);
    return nullptr;
}

// The array stays where it is, under another name.
void* DataTo424(dbc_Row const& in, dbc_Row& out, int) {
    static dbc_ObjectField const table("table"), data("data");
    if (IsSetAndHas(in, data.name)) return nullptr;
    out.SetInt(data.classId, static_cast<int>(cls_ListTypeId));
    out.SetInt(data.oid, Reference(in, table.oid));
    out.NoteMove(in, table.oid, data.oid);
    return nullptr;
}

// clang-format off
constexpr dbc_OldField amplitude203[] = {
    dbc_Literal("definition"), dbc_Literal("time"), dbc_Literal("value"),
};
constexpr dbc_OldField amplitude208[] = {
    dbc_Literal("definition"), dbc_Literal("time"),
};
constexpr dbc_OldField amplitude424[] = {
    dbc_Literal("definition"), dbc_Literal("timeSpan"),
};
constexpr dbc_OldField equallySpaced203[] = {
    dbc_Real("smooth"), dbc_Real("fixedInterval"), dbc_Real("begin"), dbc_RealList("table"),
    dbc_Object("baselineCorrection", baselineCorrection),
};
constexpr dbc_OldField periodic203[] = {
    dbc_Real("frequency"), dbc_Real("start"), dbc_Real("a_0"), dbc_Reals("table"),
};
constexpr dbc_OldField smoothStep203[] = {
    dbc_Reals("table"),
};
constexpr dbc_OldField tabular203[] = {
    dbc_Real("smooth"), dbc_Reals("table"), dbc_Object("baselineCorrection", baselineCorrection),
};

constexpr dbc_OldClass oldClasses[] = {
    {"kamC_Amplitude_203", "kamC_Amplitude", amplitude, 203, cls_RootTypeId, 4,
     amplitude203, dbc_Step(208)},
    {"kamC_Amplitude_208", "kamC_Amplitude", amplitude, 208, cls_RootTypeId, 4,
     amplitude208, dbc_Step(424, AmplitudeTo424)},
    {"kamC_Amplitude_424", "kamC_Amplitude", amplitude, 424, cls_RootTypeId, 4,
     amplitude424, dbc_Step(430)},
    {"kamC_EquallySpaced_203", "kamC_EquallySpaced", equallySpaced, 203, amplitude, 4,
     equallySpaced203, dbc_Step(424, DataTo424)},
    {"kamC_Periodic_203", "kamC_Periodic", periodic, 203, amplitude, 4,
     periodic203, dbc_Step(424, DataTo424)},
    {"kamC_Tabular_203", "kamC_Tabular", tabular, 203, amplitude, 4,
     tabular203, dbc_Step(424, DataTo424)},
    {"kamC_SmoothStep_203", "kamC_SmoothStep", smoothStep, 203, amplitude, 4,
     smoothStep203, dbc_Step(424, DataTo424)},
};
// clang-format on

}  // namespace

void kamC_RegisterOldClasses() { dbc_RegisterOldClasses(oldClasses); }
