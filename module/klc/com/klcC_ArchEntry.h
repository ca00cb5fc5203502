#pragma once

#include <cstdint>

#include "typ_ArchCompEntry.h"

/// The high half of the TypeId of every class of this module; written into databases.
inline constexpr std::uint16_t klcC_component = 732;

/// The rows are constant data; the entry may be copied and kept.
typ_ArchCompEntry klcC_ArchEntry();
