// Prefetching memory.
#pragma once

namespace zrw {

/// Prefetches memory that will be read soon. Any address will do.
inline void HoleVor([[maybe_unused]] const void* platz) {
#ifdef __GNUC__
    __builtin_prefetch(platz);
#endif
}

}  // namespace zrw
