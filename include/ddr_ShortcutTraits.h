#pragma once

/// The facts of the shortcuts to a T, stated by the module that owns T:
/// `static constexpr unsigned typeId;` of ddr_Shortcut<T> and
/// `static constexpr unsigned implTypeId;` of ddr_ShortcutImpl<T>.
template <class T>
struct ddr_ShortcutTraits;

/// The facts of one step from a P to an M, stated by the module that owns the M:
/// `static constexpr unsigned typeId;`, and, each for reading and for writing,
///
///     member      static constexpr omn_FixedString Name();
///                 static M const& ConstGet(P const&);                   static M& Get(P&);
///     dictionary  static cow_String PathStep(cow_String const& key);
///                 static M const& ConstGet(P const&, cow_String const&); static M& Get(P&, ...);
///     sequence    static M const& ConstGet(P const&, int);              static M& Get(P&, int);
///
/// ddr_StepAccess.h has the accesses that occur often, as bases for these.
template <class Step>
struct ddr_StepTraits;
