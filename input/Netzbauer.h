// Builds the network while a control file is read: points with labels, and one line per pair of points that
// gathers all observations between them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "input/Netztafeln.h"
#include "input/Zeilenquelle.h"
#include "model/FigListe.h"

namespace zrw {

class Netzbauer {
  public:
    /// @param liste empty; nobody else adds to it meanwhile
    Netzbauer(Liste& liste, const Einstellungen& einstellungen)
        : liste_(liste), einstellungen_(einstellungen) {}

    /// Announces about so many points and lines to come; saves time, changes nothing else.
    void ErwarteFiguren(std::size_t punkte, std::size_t kanten);

    /// Adds a point with its label, unless its number is in the network already. A positive code makes it a
    /// circle, zero or less a dot, both filled. What waits before it enters first.
    /// @throws Fehler (without place) where the network is full
    void Punkt(Zeilenort woher, PunktArt art, std::string_view nummer, std::int64_t code, Welt ort);

    enum class Art : std::uint8_t { Richtung, Strecke, Hoehenunterschied, GPSVektor };
    /// One observation between the points with these numbers; a direction starts at the last standpoint
    /// instead. Unknown points, later ones among them, and a point with itself are dropped.
    void NimmBeobachtung(Zeilenort woher, Art art, std::string_view von, std::string_view nach,
                         Farbe farbe = {});
    /// Standpoint of the directions that follow.
    void Standpunkt(std::string_view nummer);
    /// The end of the reading: what waits and all the lines enter the list.
    void VollendeNetz();

    /// Records that changed nothing, and where the first of them stands.
    struct Zahl {
        std::size_t anzahl = 0;
        Zeilenort erster;
        void NimmSatz(Zeilenort ort) {
            if (anzahl++ == 0) erster = ort;
        }
    };
    /// Observations dropped for a point that is not there; complete after `VollendeNetz`, as the other is.
    [[nodiscard]] const Zahl& Unbekannte() const { return unbekannte_; }
    /// Points with a number that was there already.
    [[nodiscard]] const Zahl& Wiederholte() const { return wiederholte_; }

  private:
    // Points and observations wait in small queues: looking up many at once lets their memory accesses
    // overlap. One of the two is empty at any time.
    struct Wartender {
        PunktNummernTyp nummer;
        PunktArt art = PunktArt::FP;
        PunktTyp typ = PunktTyp::Pkt;
        Welt ort;
        std::uint64_t streuwert = 0;
        Zeilenort woher;
    };
    struct Wartende {
        Art art = Art::Richtung;
        bool standpunkt = false;  ///< no observation: sets the standpoint
        Farbe farbe;
        PunktNummernTyp von;
        PunktNummernTyp nach;
        std::uint64_t streuwertVon = 0;
        std::uint64_t streuwertNach = 0;
        PunktIndex p1 = kKeinPunkt;
        PunktIndex p2 = kKeinPunkt;
        std::uint64_t streuwertPaar = 0;
        Zeilenort woher;
    };
    Wartende& Reihe();
    /// Enter what waits.
    void TragePunkte();
    void TrageWartendeEin();
    void FuegePunktEin(const Wartender& p);
    void FasseBeobachtung(const Wartende& w);
    void Richtung(const Wartende& w);
    void Strecke(const Wartende& w);
    void Hoehenunterschied(const Wartende& w);
    void GPSVektor(const Wartende& w);
    /// The line of the pair if there is one, else a new one p1 -> p2 with these attributes and nothing.
    Kantenstand* FuehreKantenZusammen(const Wartende& w, Farbe farbe, KanteAttr kAttr, LinieAttr lAttr);
    static void OrientiereKante(Kantenstand& k, PunktIndex anfang);

    std::array<Wartende, 64> wartende_;
    std::size_t anzahl_ = 0;
    std::array<Wartender, 32> punkte_;
    std::size_t punktanzahl_ = 0;
    PunktIndex standpunkt_ = kKeinPunkt;
    Zahl unbekannte_;
    Zahl wiederholte_;
    Nummerntafel nummern_;
    Kantentafel kanten_;
    Liste& liste_;
    const Einstellungen& einstellungen_;
};

}  // namespace zrw
