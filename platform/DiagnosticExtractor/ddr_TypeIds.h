#pragma once

// The TypeIds of component 20, the model.
inline constexpr unsigned ddr_ModelTypeId = 0x140001;
inline constexpr unsigned ddr_ModelShortcutTypeId = 0x140002;
inline constexpr unsigned ddr_ModelImplTypeId = 0x140003;
inline constexpr unsigned ddr_ModelInSessionShortcutTypeId = 0x140004;
