#include "typ_ArchCompTable.h"

namespace {

// Indexed by component. A megabyte of address space of which only the few pages with components on
// them are ever touched; in return a look-up is two loads.
typ_ArchCompEntry typTables[0x10000];

}  // namespace

void typ_ArchCompTable::InsertEntry(std::uint16_t component, typ_ArchCompEntry entry) {
    typTables[component] = entry;
}

typ_Entry const* typ_ArchCompTable::Find(unsigned typeId) {
    return typTables[typeId >> 16].Row(typeId & 0xffff);
}

char const* typ_ArchCompTable::GetName(unsigned typeId) {
    typ_Entry const* const row = Find(typeId);
    return row && row->name ? row->name : "";
}

unsigned typ_ArchCompTable::GetParent(unsigned typeId) {
    typ_Entry const* const row = Find(typeId);
    return row ? row->parent : typ_noParent;
}

bool typ_ArchCompTable::IsParent(unsigned typeId, unsigned candidate) {
    if (typeId == candidate) return true;
    // The second walker goes half as fast; in a cycle the first one comes upon it from behind.
    unsigned slow = typeId;
    bool slowSteps = false;
    for (unsigned type = GetParent(typeId); type != typ_noParent; type = GetParent(type)) {
        if (type == candidate) return true;
        if (type == slow) return false;
        if (slowSteps) slow = GetParent(slow);
        slowSteps = !slowSteps;
    }
    return false;
}
