#pragma once

/// The persistent facts of a repository or wrapper instantiation: the module that owns the class
/// specialises it with `static constexpr unsigned typeId; static constexpr char const* name;
/// static constexpr int version;`.
template <class Instantiation>
struct mdl_RepositoryTraits;
