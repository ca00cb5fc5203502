#pragma once

#include "mdl_ExtensionWrapper.h"
#include "mdl_MapOfCowsRepository.h"
#include "mdl_MapString2ObjCow.h"
#include "support/Specimen.h"

// Repositories of specimens, and the wrapper of one.

using specimen_PartCont = mdl_MapString2ObjCow<specimen_Part>;
using specimen_Wrapper = mdl_ExtensionWrapper<specimen_PartCont>;
using specimen_NumberCont = mdl_MapOfCowsRepository<int, specimen_Part>;

template <>
struct mdl_RepositoryTraits<specimen_PartCont> {
    static constexpr unsigned typeId = 0x7770011;
    static constexpr char const* name = "specimen_PartCont";
    static constexpr int version = 800;
};
template <>
struct mdl_RepositoryTraits<specimen_Wrapper> {
    static constexpr unsigned typeId = 0x7770012;
    static constexpr char const* name = "specimen_Wrapper";
    static constexpr int version = 401;
};
template <>
struct mdl_RepositoryTraits<specimen_NumberCont> {
    static constexpr unsigned typeId = 0x7770013;
    static constexpr char const* name = "specimen_NumberCont";
    static constexpr int version = 800;
};
