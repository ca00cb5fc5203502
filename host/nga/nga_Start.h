#pragma once

namespace nga {

/// Brings the library up and registers what the host adds to it. Every entry into the host does
/// this; only the first call in a process acts. One thread.
void Start();

}  // namespace nga
