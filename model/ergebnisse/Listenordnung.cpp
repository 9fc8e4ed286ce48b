#include "model/ergebnisse/Listenordnung.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zrw {
namespace {

/// What a row is compared by: numbers and texts in one.
struct Ordnungswert {
    double zahl = 0.0;
    std::uint64_t anfang = 0;  ///< of the text: most differ there, and the row need not be fetched
    std::string_view text{};
    bool fehlt = false;
};

/// The first eight bytes as a number of the same order, short texts filled up with zeros.
std::uint64_t Textanfang(std::string_view text) {
    std::uint64_t anfang = 0;
    for (std::size_t i = 0; i < sizeof anfang; ++i)
        anfang = anfang << 8U | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    return anfang;
}

Ordnungswert TextwertVon(const PunktNummernTyp& nummer) {
    return {.anfang = Textanfang(nummer.Text()), .text = nummer.Text(), .fehlt = nummer.Leer()};
}

Ordnungswert OrdnungswertVon(const Beobachtung& b, const Listenordnung& o) {
    if (const auto& wert = kListenspalten[static_cast<std::size_t>(o.spalte)].wert) {
        const double zahl = b.Wert(*wert);
        return {.zahl = o.betrag ? std::fabs(zahl) : zahl, .fehlt = std::isnan(zahl)};
    }
    if (o.spalte == Listenspalte::Von) return TextwertVon(b.von);
    if (o.spalte == Listenspalte::Nach) return TextwertVon(b.nach);
    if (o.spalte == Listenspalte::ID) return {.zahl = static_cast<double>(b.id), .fehlt = !b.idBekannt};
    if (o.spalte == Listenspalte::FF) return {.zahl = b.ff ? 1.0 : 0.0};
    if (o.spalte == Listenspalte::NK) return {.zahl = b.nk ? 1.0 : 0.0};
    return {.zahl = static_cast<double>(b.tabelle)};
}

/// By table, then ID; rows without one behind the others.
bool StehtVor(const Beobachtung& a, const Beobachtung& b) {
    if (a.tabelle != b.tabelle) return a.tabelle < b.tabelle;
    if (a.idBekannt != b.idBekannt) return a.idBekannt;
    return a.idBekannt && a.id < b.id;
}

bool ImBereich(const Beobachtung& b, const Listenfilter::Bereich& bereich) {
    const double wert = bereich.betrag ? std::fabs(b.Wert(bereich.wert)) : b.Wert(bereich.wert);
    return wert >= bereich.von && (wert < bereich.bis || (bereich.mitEnde && wert == bereich.bis));
}

}  // namespace

bool Passt(const Beobachtung& b, const Listenfilter& f) {
    return f.gattungen[static_cast<std::size_t>(b.tabelle)] && (!f.nurMarkierte || b.ff) &&
           (!f.nurUnkontrollierte || b.nk) && (!f.ueberTG || std::fabs(b.Wert(Messwert::TG)) > *f.ueberTG) &&
           (f.punkt.Leer() || b.von == f.punkt || b.nach == f.punkt) &&
           (!f.bereich || ImBereich(b, *f.bereich)) && (!f.suche || f.suche(b));
}

std::vector<std::uint32_t> OrdneZeilen(const Beobachtungsliste& liste, const Listenfilter& f,
                                       const Listenordnung& o) {
    // The values once and beside each other: sorting looks at each of them twenty times.
    struct Platz {
        Ordnungswert wert;
        std::uint32_t zeile;
    };
    std::vector<Platz> plaetze;
    plaetze.reserve(liste.zeilen.size());
    for (std::size_t i = 0; i < liste.zeilen.size(); ++i) {
        if (Passt(liste.zeilen[i], f))
            plaetze.push_back({OrdnungswertVon(liste.zeilen[i], o), static_cast<std::uint32_t>(i)});
    }
    std::sort(plaetze.begin(), plaetze.end(), [&](const Platz& a, const Platz& b) {
        if (a.wert.fehlt != b.wert.fehlt) return b.wert.fehlt;
        if (!a.wert.fehlt) {
            if (a.wert.zahl != b.wert.zahl) return (a.wert.zahl < b.wert.zahl) != o.fallend;
            if (a.wert.anfang != b.wert.anfang) return (a.wert.anfang < b.wert.anfang) != o.fallend;
            if (a.wert.text != b.wert.text) return (a.wert.text < b.wert.text) != o.fallend;
        }
        const Beobachtung& x = liste.zeilen[a.zeile];
        const Beobachtung& y = liste.zeilen[b.zeile];
        if (StehtVor(x, y)) return true;
        return !StehtVor(y, x) && a.zeile < b.zeile;
    });
    std::vector<std::uint32_t> zeilen;
    zeilen.reserve(plaetze.size());
    for (const Platz& p : plaetze)
        zeilen.push_back(p.zeile);
    return zeilen;
}

}  // namespace zrw
