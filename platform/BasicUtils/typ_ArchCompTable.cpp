#include "typ_ArchCompTable.h"

namespace {

// Indexed by component. A megabyte of address space of which only the few pages with components on
// them are ever touched; in return a look-up is two loads.
typ_ArchCompEntry typTables[0x10000];

}  // namespace

void typ_ArchCompTable::InsertEntry(std::uint16_t component, typ_ArchCompEntry entry) {
    typTables[component] = entry;
}

typ_Entry const* typ_ArchCompTable::Find(std::uint32_t typeId) {
    return typTables[typeId >> 16].Row(typeId & 0xffff);
}

char const* typ_ArchCompTable::GetName(std::uint32_t typeId) {
    typ_Entry const* const row = Find(typeId);
    return row && row->name ? row->name : "";
}

std::uint32_t typ_ArchCompTable::GetParent(std::uint32_t typeId) {
    typ_Entry const* const row = Find(typeId);
    return row ? row->parent : typ_noParent;
}

bool typ_ArchCompTable::IsParent(std::uint32_t typeId, std::uint32_t candidate) {
    if (typeId == candidate) return true;
    // The second walker goes half as fast; in a cycle the first one comes upon it from behind.
    std::uint32_t slow = typeId;
    bool slowSteps = false;
    for (std::uint32_t type = GetParent(typeId); type != typ_noParent; type = GetParent(type)) {
        if (type == candidate) return true;
        if (type == slow) return false;
        if (slowSteps) slow = GetParent(slow);
        slowSteps = !slowSteps;
    }
    return false;
}
