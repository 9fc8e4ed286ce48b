// What an import could not keep or had to change, counted by kind. Each kind is one row with its German
// words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "input/import/Xmldatei.h"
#include "model/Aufzaehltafel.h"

namespace zrw::fremd {

enum class Befundart : std::uint8_t {
    Gebunden,
    PunktUnlesbar,
    OhneLage,
    Umbenannt,
    OhneOrt,
    Selbst,
    Unlesbar,
    Winkel,
    Koordinaten,
    Kovarianzen,
    Hoehenbezug,
    Kennung,
    Beschreibung,
    Fremdelement,
    ErgebnisUnlesbar,
    ErgebnisOhneTabelle,
    ErgebnispunktFremd,
    OhneEllipse,
    OhneRelative,
    Anzahl
};

struct Befundzeile {
    Befundart art;
    const char* eines;    ///< with its number: "1 Punkt ..."
    const char* mehrere;  ///< what follows the number
};

inline constexpr auto kBefunde = std::to_array<Befundzeile>({
    {Befundart::Gebunden, "1 Punkt des freien Datums ist ein Neupunkt",
     "Punkte des freien Datums sind Neupunkte"},
    {Befundart::PunktUnlesbar, "1 Punkt ohne Namen oder mit unlesbaren Koordinaten",
     "Punkte ohne Namen oder mit unlesbaren Koordinaten"},
    {Befundart::OhneLage, "1 Punkt hat keine Koordinaten x und y und wird nicht gezeichnet",
     "Punkte haben keine Koordinaten x und y und werden nicht gezeichnet"},
    {Befundart::Umbenannt, "1 Punkt hat einen kürzeren Namen bekommen",
     "Punkte haben kürzere Namen bekommen"},
    {Befundart::OhneOrt, "1 Beobachtung an einem Punkt ohne Koordinaten x und y fehlt im Plan",
     "Beobachtungen an Punkten ohne Koordinaten x und y fehlen im Plan"},
    {Befundart::Selbst, "1 Beobachtung eines Punktes zu sich selbst ist weggelassen",
     "Beobachtungen eines Punktes zu sich selbst sind weggelassen"},
    {Befundart::Unlesbar, "1 Beobachtung ohne lesbare Punkte oder Werte ist weggelassen",
     "Beobachtungen ohne lesbare Punkte oder Werte sind weggelassen"},
    {Befundart::Winkel, "1 Winkel steht als zwei Richtungen in der Steuerdatei",
     "Winkel stehen als je zwei Richtungen in der Steuerdatei"},
    {Befundart::Koordinaten, "1 beobachteter Punkt (Koordinaten) hat in der Steuerdatei keinen Platz",
     "beobachtete Punkte (Koordinaten) haben in der Steuerdatei keinen Platz"},
    {Befundart::Kovarianzen, "1 Kovarianzmatrix von Beobachtungen ist bis auf ihre Diagonale weggelassen",
     "Kovarianzmatrizen von Beobachtungen sind bis auf ihre Diagonale weggelassen"},
    {Befundart::Hoehenbezug, "1 Beobachtung mit Instrumenten- oder Zielhöhe hat diese verloren",
     "Beobachtungen mit Instrumenten- oder Zielhöhen haben diese verloren"},
    {Befundart::Kennung, "1 Beobachtung mit eigener Kennung (extern) hat diese verloren",
     "Beobachtungen mit eigener Kennung (extern) haben diese verloren"},
    {Befundart::Beschreibung, "1 Zeile der Beschreibung ist weggelassen",
     "Zeilen der Beschreibung sind weggelassen"},
    {Befundart::Fremdelement, "1 unbekanntes Element ist übergangen", "unbekannte Elemente sind übergangen"},
    {Befundart::ErgebnisUnlesbar, "1 Ergebnis ohne lesbare Punkte oder Werte ist weggelassen",
     "Ergebnisse ohne lesbare Punkte oder Werte sind weggelassen"},
    {Befundart::ErgebnisOhneTabelle,
     "1 Ergebnis (Winkel, Zenitwinkel, beobachtete Höhe) hat in den Tabellen keinen Platz",
     "Ergebnisse (Winkel, Zenitwinkel, beobachtete Koordinaten) haben in den Tabellen keinen Platz"},
    {Befundart::ErgebnispunktFremd,
     "1 Punkt der Ergebnisse kommt im Netz nicht vor und wird nicht gezeichnet",
     "Punkte der Ergebnisse kommen im Netz nicht vor und werden nicht gezeichnet"},
    {Befundart::OhneEllipse, "1 Punkt hat eine unbrauchbare Kovarianz und keine Fehlerellipse",
     "Punkte haben unbrauchbare Kovarianzen und keine Fehlerellipse"},
    {Befundart::OhneRelative, "1 Linie hat keine relative Ellipse, weil die Kovarianzmatrix nicht voll ist",
     "Linien haben keine relative Ellipse, weil die Kovarianzmatrix nicht voll ist"},
});
static_assert(InReihe(kBefunde, &Befundzeile::art), "a row for each Befundart, in its order");

class Importbericht {
  public:
    void NimmAuf(Befundart art) { ++zahlen_[static_cast<std::size_t>(art)].anzahl; }
    /// One with a place in a file; the first of each kind is named.
    void NimmAuf(Befundart art, const Xmldatei& datei, std::size_t stelle);
    /// A line for each kind that occurred: "3 Punkte haben kürzere Namen bekommen (zuerst NETZ.gkf, Zeile
    /// 7)".
    [[nodiscard]] std::vector<std::string> Zeilen() const;

  private:
    struct Zahl {
        std::size_t anzahl = 0;
        std::string datei;
        std::int64_t zeile = 0;
    };
    std::array<Zahl, kBefunde.size()> zahlen_;
};

}  // namespace zrw::fremd
