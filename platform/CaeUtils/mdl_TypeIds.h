#pragma once

#include <cstdint>

#include "typ_Entry.h"

// The rows of this floor's type table. They stand apart from the classes so that a type table can
// name its parents without pulling the classes in.
inline constexpr std::uint16_t mdl_component = 10;

inline constexpr std::uint32_t mdl_RepositoryType = typ_MakeTypeId(mdl_component, 1);
inline constexpr std::uint32_t mdl_ExtensionType = typ_MakeTypeId(mdl_component, 13);
inline constexpr std::uint32_t mdl_PropertyTableType = typ_MakeTypeId(mdl_component, 14);
inline constexpr std::uint32_t omu_ValueErrorExceptionType = typ_MakeTypeId(mdl_component, 15);
inline constexpr std::uint32_t omu_AccessErrorExceptionType = typ_MakeTypeId(mdl_component, 16);
