// Fetching memory ahead (prefetch).
#pragma once

namespace zrw {

/// Begins to fetch memory that will be read soon. Any address will do.
inline void HoleVor([[maybe_unused]] const void* platz) {
#ifdef __GNUC__
    __builtin_prefetch(platz);
#endif
}

}  // namespace zrw
