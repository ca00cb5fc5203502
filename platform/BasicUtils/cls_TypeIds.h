#pragma once

#include <cstdint>

#include "typ_Entry.h"

// The rows of this floor's type table.
inline constexpr std::uint16_t cls_component = 35;

inline constexpr std::uint32_t cls_ListType = typ_MakeTypeId(cls_component, 1);
inline constexpr std::uint32_t cls_MapType = typ_MakeTypeId(cls_component, 2);
inline constexpr std::uint32_t nex_ExceptionType = typ_MakeTypeId(cls_component, 3);
inline constexpr std::uint32_t nex_TextExceptionType = typ_MakeTypeId(cls_component, 4);
inline constexpr std::uint32_t nex_CommandExceptionType = typ_MakeTypeId(cls_component, 5);
