// The state of one reading of a control file and a member per kind of record. Which key leads to which
// member: Steuersaetze.h.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "geo/Zrwgeo.h"
#include "input/Feldleser.h"
#include "input/Netzbauer.h"
#include "input/Steuerdatei.h"
#include "input/Zeilenquelle.h"
#include "model/Netzarten.h"

namespace zrw {

struct Satz;

class Steuerleser {
  public:
    Steuerleser(const std::filesystem::path& datei, const Dateien& dateien,
                const Einstellungen& einstellungen, const Meldungsempfaenger& meldung,
                const Lesefortschritt& fortschritt);

    /// Reads until "$$$" or the end of the file. @throws Fehler with file and line
    [[nodiscard]] Lesung LiesDatei();

    // One record each. `rest` is the line behind its first three characters.
    void UebergeheSatz(std::string_view rest);
    void Ende(std::string_view rest);
    void LiesXVersatz(std::string_view rest);
    void LiesYVersatz(std::string_view rest);
    void LiesStandpunkt(std::string_view rest);
    void LiesRichtung(std::string_view rest);
    void LiesAzimut(std::string_view rest);
    void LiesStrecke(std::string_view rest);
    void LiesHoehenunterschied(std::string_view rest);
    void LeseGPSVektoren(std::string_view rest);
    void LiesEllipsoid(std::string_view rest);
    void LiesTitel(std::string_view rest);
    void LiesNetztyp(std::string_view rest);
    void LiesPunktformat(std::string_view rest);
    void LiesKoordinatensystem(std::string_view rest);
    void FuegeEin(std::string_view rest);
    void FuegeKoordinatenEin(std::string_view rest);
    template <PunktArt art>
    void LesePunkt(std::string_view rest) {
        LesePunkt(art, rest);
    }

  private:
    void LesePunkt(PunktArt punktart, std::string_view rest);
    [[nodiscard]] bool LiesOrt(Koordinaten art, Feldleser& felder, Welt& ort) const;
    [[nodiscard]] static bool LiesWinkel(Feldleser& felder, Welt& ort);
    [[nodiscard]] bool LiesGitter(Feldleser& felder, Welt& ort) const;
    [[nodiscard]] bool LiesKartesisch(Feldleser& felder, Welt& ort) const;
    void MeldePunkt(std::string_view nummer, std::string_view felder);
    void BeginneText();
    void LiesVektor(std::string_view rest);
    void LiesBeobachtung(std::string_view rest, Netzbauer::Art art);
    void Ziele(std::string_view rest, Farbe farbe);
    /// The next number of a record. @param name what it is, for messages. @throws Fehler
    [[nodiscard]] std::int32_t Ganzzahl(Feldleser& felder, const char* name) const;
    [[nodiscard]] double Realzahl(Feldleser& felder, const char* name) const;
    template <class T>
    void SetzeAngabe(T& ziel, const T& wert, const char* name) const;
    /// What the line continues though it does not look like it; empty for every other line.
    [[nodiscard]] std::string Fortsetzung() const;
    void MeldeZeile(std::string text, std::string grund = {}, bool hinweis = false) const;
    void MeldeBericht() const;
    void SchliesseLesung();
    [[nodiscard]] Lesebericht::Befund Befund(const Netzbauer::Zahl& zahl) const;
    [[noreturn]] void FalscheZahl(const char* name) const;

    const Einstellungen& einstellungen_;
    const Meldungsempfaenger& meldung_;
    const Lesefortschritt& fortschritt_;
    Zeilenquelle quelle_;
    Lesung lesung_;
    Netzbauer bauer_;
    Ellipsoid ellipsoid_;
    const Satz* letzter_ = nullptr;  ///< most recent known key: what a continuation line continues
    std::string_view zeile_;
    std::int32_t punktformat_ = 0;
    bool fertig_ = false;
    bool schluesselSeitEinfuegung_ = true;  ///< a line with a key came since the last include file began
    bool schluessellosGemeldet_ = false;    ///< the lines before that key have been told
    std::uint64_t vektorenOffen_ = 0;       ///< GPS vectors still to come in the current block
    std::uint64_t vektoren_ = 0;            ///< announced by it
    Zeilenort blockanfang_;
};

}  // namespace zrw
