#pragma once

#include <limits>

/// What a real field holds that was not given, where its class has no other default for it, and the
/// same for an integer field. There is no separate flag: rules compare with exactly these, and
/// databases hold them.
inline constexpr double kbeC_NotSet = std::numeric_limits<double>::max();
inline constexpr int kbeC_NotSetInt = std::numeric_limits<int>::max();
