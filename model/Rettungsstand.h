// What is kept of an unsaved plot, so that it survives a crash or a power cut: the picture file's bytes and
// what that format leaves out.
//
//   bytes  field
//   8      "ZRWRETT1"
//   4      length of the name [bytes], u32
//   n      name of the plot for the user, UTF-8
//   4      number of points, u32
//   n      kind of each point (PunktArt), in the order of the point records, one byte each
//   rest   picture file (BilddateiFormat.h), followed by the lines that it has no numbers for
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "model/FigListe.h"

namespace zrw {

struct Rettungsstand {
    std::string name;  ///< UTF-8
    std::unique_ptr<Liste> liste;
    Netzangaben netz;
};

[[nodiscard]] std::string SchreibeRettung(Liste& liste, const Netzangaben& netz, const std::string& name);
/// The plot as it was, figures in the same order. @param datei name for messages
/// @throws Fehler where the bytes are no such plot
[[nodiscard]] Rettungsstand LiesRettung(std::string_view bytes, const Einstellungen& einstellungen,
                                        const std::string& datei);

}  // namespace zrw
