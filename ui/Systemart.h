// The one question about the system that this room may ask when it is compiled.
#pragma once

namespace zrw {

#ifdef _WIN32
inline constexpr bool kWindows = true;
#else
inline constexpr bool kWindows = false;
#endif

}  // namespace zrw
