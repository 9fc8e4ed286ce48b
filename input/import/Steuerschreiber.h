// Writes a foreign network as a control file that this program and others read: code page 1252, lines that
// end in CR LF.
#pragma once

#include <span>
#include <string>

#include "input/import/Fremdnetz.h"
#include "input/import/Importbericht.h"

namespace zrw::fremd {

/// @param nummern point number of each point, code page 1252
/// @param herkunft where it comes from, for a comment, UTF-8
/// @throws Fehler where no point has a place in the plane, or too many have
[[nodiscard]] std::string Steuerdateitext(const Fremdnetz& netz, std::span<const std::string> nummern,
                                          const std::string& herkunft, const Xmldatei& datei,
                                          Importbericht& bericht);

}  // namespace zrw::fremd
