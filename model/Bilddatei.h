// Saving and opening picture files (".ZRW"). The bytes: BilddateiFormat.h, `Liste::Store` and `Liste::Load`.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "model/Dateien.h"
#include "model/FigListe.h"

namespace zrw {

/// Writes the plot and its view, replacing the file as a whole.
/// @return how many labels were left out, see `UeberzaehligeTexte`
/// @throws Fehler where it cannot be written, holds more points or lines than the format can count, or its
/// labels do not go with its points
std::size_t SchreibeBilddatei(Liste& liste, const Netzangaben& netz, const std::filesystem::path& datei,
                              Dateien& dateien);
/// The same of a network in another view, and neither changes.
std::size_t SchreibeBilddatei(const Netz& netz, const Ansicht& ansicht, const Netzangaben& angaben,
                              const std::filesystem::path& datei, Dateien& dateien);
/// The labels that must stay out of a file: as many of those that no point owns as there are more labels than
/// points. A point owns the newest label of its number.
[[nodiscard]] Textmenge UeberzaehligeTexte(const Netz& netz);
/// What that number means, for the user; empty for 0. UTF-8.
[[nodiscard]] std::string WeggelasseneNummern(std::size_t anzahl);

/// Opens a picture file. On a `Fehler` the given `netz` is as it was.
[[nodiscard]] std::unique_ptr<Liste> LiesBilddatei(const std::filesystem::path& datei, const Dateien& dateien,
                                                   const Einstellungen& einstellungen, Netzangaben& netz);

}  // namespace zrw
