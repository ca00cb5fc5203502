#pragma once

// The TypeIds of component 10, the model utilities. Rows 1 and 13 are the parents that attribute
// classes refer to; the others are this floor's own.
inline constexpr unsigned mdl_RepositoryTypeId = 0xA0001;
inline constexpr unsigned mdl_ExtensionTypeId = 0xA000D;
inline constexpr unsigned mdl_PropertyTableTypeId = 0xA000E;
inline constexpr unsigned omu_ValueErrorExceptionTypeId = 0xA000F;
inline constexpr unsigned omu_AccessErrorExceptionTypeId = 0xA0010;
inline constexpr unsigned omu_PrimitiveTypeId = 0xA0011;
inline constexpr unsigned omu_PrimSequenceTypeId = 0xA0012;
inline constexpr unsigned omu_PrimEnumBaseTypeId = 0xA0013;
inline constexpr unsigned omu_PrimStringTypeId = 0xA0014;
inline constexpr unsigned omu_PrimIntTypeId = 0xA0015;
inline constexpr unsigned omu_PrimDoubleTypeId = 0xA0016;
inline constexpr unsigned omu_PrimTupleTypeId = 0xA0017;
