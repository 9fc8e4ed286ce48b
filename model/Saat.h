#pragma once

#include <cstdint>
#include <random>

namespace zrw {

/// A secret of its own for every table: a file cannot be made so that all its keys meet in one place.
[[nodiscard]] inline std::uint64_t NeueSaat() {
    std::random_device zufall;
    return std::uint64_t{zufall()} << 32U | zufall();
}

}  // namespace zrw
