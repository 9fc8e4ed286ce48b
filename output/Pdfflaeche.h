// Writes what is drawn as a document (PDF 1.7, ISO 32000-1), piece by piece: sheets of paper at scale, the
// layers as optional content that viewers list and switch, texts as searchable text in the font that the
// document carries, or in Helvetica, which every viewer has. Streams are compressed. Positions within the
// printable area are dots; a matrix takes them to points.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "output/Einbettschrift.h"
#include "output/Papier.h"
#include "output/Uhr.h"
#include "output/Vektorflaeche.h"

namespace zrw {

/// What viewers tell about a document.
struct Pdfangaben {
    std::string titel;                        ///< code page 1252
    const Uhr* uhr = nullptr;                 ///< null: no date, and the same drawing gives the same bytes
    const Einbettschrift* schrift = nullptr;  ///< outlives the document; null: Helvetica, not embedded
};

inline constexpr int kMatrixstellen = 10;  ///< a hundred thousandth of a point across the largest paper
inline constexpr int kDotstellen = 3;      ///< of lengths in dots and of parts of a colour

class Pdfflaeche final : public Vektorflaeche {
  public:
    /// Begins the first page. @param aufloesung [dots per inch], 1 to 100000
    /// @throws Fehler where the file cannot be written, as all operations do
    Pdfflaeche(std::unique_ptr<Dateischreiber> datei, const Papier& papier, double aufloesung,
               const Pdfangaben& angaben);

    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override;
    void ZeichneRechteck(const Rechteck& r) override;
    void Ellipse(const Rechteck& umschrieben) override;
    void Vieleck(std::span<const Flaechenpunkt> ecken) override;
    void FuelleRechteck(const Rechteck& r, Farbe farbe) override;
    void FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) override;
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override;
    void TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                     std::int32_t rand) override;
    void BeginneFenster(const Rechteck& r) override;
    void BeendeFenster() override;
    void SetzeStrichmass(double mm) override;

    /// Ends the page; what is drawn from now on stands on the next one, of the same paper.
    void NeueSeite();
    /// Ends the document and puts it in its place. Nothing is drawn afterwards.
    void BeendeDatei();

  protected:
    void EbeneGewechselt(Ebene ebene) override;

  private:
    /// Number of an indirect object, from 1.
    using Objekt = std::size_t;

    [[nodiscard]] Objekt NeuesObjekt();
    void BeginneObjekt(Objekt objekt);
    void BeendeObjekt() { SchreibeText("endobj\n"); }
    void Verweis(std::string_view vor, Objekt objekt);
    void SchreibeAngaben(const Pdfangaben& angaben);
    void SchreibeEbenen();
    void SchreibeBetriebsmittel();
    void SchreibeVerzeichnis();
    void SchreibeSchrift();
    void BeginneStromobjekt(Objekt objekt, std::string_view eintraege = {});
    void BeendeStromobjekt();

    void BeginneSeite();
    void BeendeSeite();
    void BeginneForm();
    void SchliesseEbene();
    void SchliessePfad();
    void WendeStiftAn();
    void WendeFuellungAn(Farbe farbe);
    void Eckenzug(std::span<const Flaechenpunkt> ecken);
    void BeginneUmriss();
    void BeendeUmriss();
    void Farbbefehl(Farbe farbe, std::string_view befehl);
    void SchreibeTextobjekt(Flaechenpunkt ort, std::string_view text);
    void Paar(double x, double y);

    Papier papier_;
    std::vector<std::uint64_t> orte_;  ///< of the objects in the file; 0 until written
    std::vector<Objekt> seiten_;
    std::array<Objekt, kEbenennamen.size()> ebenen_{};  ///< 0 for layers on which nothing was drawn
    Objekt laengenobjekt_ = 0;                          ///< of the page's stream
    std::uint64_t stromanfang_ = 0;
    const Einbettschrift* schrift_;  ///< may be null
    Zeichenmenge zeichen_;           ///< that were written
    std::set<int> durchscheinend_;   ///< how much of what lies below is covered [%]
    // What the page's stream has set up.
    bool offeneEbene_ = false;
    std::optional<Stift> stift_;
    std::optional<Farbe> fuellung_;
    bool pfad_ = false;
    Flaechenpunkt pfadende_;
    int pfadlinien_ = 0;
};

}  // namespace zrw
