#pragma once

/// The TypeIds of component 35 that belong to failures; its rows 1 and 2 are the collections.
inline constexpr unsigned nex_ExceptionTypeId = 0x230003;
inline constexpr unsigned nex_TextExceptionTypeId = 0x230004;
inline constexpr unsigned nex_CommandExceptionTypeId = 0x230005;
