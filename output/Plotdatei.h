// Writes the plotter file: one line of HPGL/2 text for every drawn element, each ending with the pen lifted.
// No prologue, no scaling: all numbers are dots of the print, the plotter's own set-up decides what they
// mean.
//
// A picture position (x, y) is written as the pair x,-y, so that y points upwards in the plot; relative moves
// and radii are plain lengths. Blanks and semicolons differ from line to line, and plots that are in use were
// written so: the templates in Plotdatei.cpp are kept to the character. Lines end with CR LF, texts are code
// page 1252. Commands as in Hewlett-Packard, The HP-GL/2 and HP RTL Reference Guide.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

#include "model/Dateien.h"
#include "model/Werte.h"
#include "output/Kantenbild.h"
#include "output/Textausgabe.h"

namespace zrw {

class Plotdatei {
  public:
    /// @throws Fehler where the file cannot be written, as every operation does
    Plotdatei(Dateien& dateien, const std::filesystem::path& name) : datei_(dateien.BeginneDatei(name)) {}

    /// A stroke or outline of an observation line, by the template of its form.
    void Linienzug(const Zug& zug);
    /// Dot.
    void Punkt(Bildpunkt ort);
    void Kreis(Bildpunkt mitte, std::int64_t radius);
    /// Two strokes: from the first to the second and from the third to the fourth.
    void Kreuz(const std::array<Bildpunkt, 4>& enden);
    void Dreieck(const std::array<Bildpunkt, 3>& ecken);
    /// Four-sided outline. Its template never lowers the pen, so a plotter leaves it out.
    void Viereck(const std::array<Bildpunkt, 4>& ecken);
    /// Point-number label. @param abstand horizontal offset of the label; it counts for both directions
    void Text(Bildpunkt ort, std::int64_t abstand, std::string_view text);

    /// Brings the file onto the disk, beside the one of its name.
    void SichereDatei() { datei_.SichereDatei(); }
    /// Puts it in the place of its name.
    void ErsetzeZiel() { datei_.ErsetzeZiel(); }

  private:
    void Zeile(std::string_view vorlage, std::span<const std::int64_t> zahlen, std::string_view text = {});

    Textausgabe datei_;
};

}  // namespace zrw
