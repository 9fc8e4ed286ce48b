// Opening what the user names: a picture file or a control file, by its extension. One way in for window and
// batch.
#pragma once

#include <cstdint>
#include <filesystem>

#include "input/Steuerdatei.h"

namespace zrw {

/// Size of a picture [px].
struct Bildgroesse {
    std::int32_t weite = 0;
    std::int32_t hoehe = 0;
};

/// Whether the name ends in ".ZRW", in any case.
[[nodiscard]] bool IstBilddatei(const std::filesystem::path& datei);

/// Shows all of the network. A view of nothing stays as it is: a scale of 0 would help nobody.
void PasseNetzEin(const Netz& netz, Ansicht& ansicht);

/// A network from a control file, fitted into a picture of the given size, or from a picture file with the
/// view that it was saved with; a view that cannot show anything is fitted anew. `bisher` is what the last
/// control file said: a picture file changes only the network type.
/// @throws Fehler, also where no line of a control file has a known key; Leseabbruch; nothing then has
/// changed
[[nodiscard]] Lesung OeffneNetz(const std::filesystem::path& datei, const Dateien& dateien,
                                const Einstellungen& einstellungen, const Netzangaben& bisher,
                                Bildgroesse bild, const Meldungsempfaenger& meldung,
                                const Lesefortschritt& fortschritt = {});

}  // namespace zrw
