// An invented network of any size as a control file: points jittered on a grid, lines to near neighbours, all
// kinds of observations. The same bytes with every compiler and library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "input/Oeffnen.h"

namespace zrw::bench {

struct Netzmass {
    std::size_t punkte = 65535;  ///< at most 65535
    std::size_t paare =
        198000;  ///< pairs of points with at least one observation; about three a point at most
    std::size_t beobachtungen = 290000;  ///< at least `paare`
    std::uint32_t saat = 1;
};

/// Grid over 60 x 40 km, network type 3. Points and observations are in random order, as no file is sorted by
/// place.
[[nodiscard]] std::string ErzeugeSteuerdatei(const Netzmass& mass);

/// The same as a network, opened as the program does it, with every kind of point shown.
/// @param einstellungen must outlive it
[[nodiscard]] Lesung BaueNetz(const Netzmass& mass, const Einstellungen& einstellungen, Bildgroesse bild);

}  // namespace zrw::bench
