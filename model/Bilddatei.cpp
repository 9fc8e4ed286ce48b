#include "model/Bilddatei.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "model/BilddateiFormat.h"
#include "model/Bildorte.h"
#include "model/Bytes.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

using namespace bilddatei;

/// Largest file that the counts of the format allow, with room for anything appended to it.
constexpr std::size_t kGrenze = std::size_t{16} << 20U;

struct Kopf {
    std::size_t punkte = 0;
    std::size_t kanten = 0;
    std::int32_t netztyp = 0;
};

Kopf LiesKopf(ByteLeser& f, Liste& l) {
    for (double* feld : {&l.Faktor, &l.MaxXW, &l.MinXW, &l.MaxYW, &l.MinYW, &l.XOffset, &l.YOffset}) {
        *feld = f.F64();
    }
    Kopf kopf;
    kopf.punkte = static_cast<std::uint32_t>(f.I32()) & 0xFFFFU;
    kopf.kanten = static_cast<std::uint32_t>(f.I32()) & 0xFFFFU;
    l.Weite = f.I32();
    l.Hoehe = f.I32();
    (void)f.U32();
    (void)f.U32();
    kopf.netztyp = f.I32();
    // The list's counts are what it holds, whatever stood above the low 16 bits.
    l.MaxPkte = static_cast<std::int32_t>(kopf.punkte);
    l.MaxKant = static_cast<std::int32_t>(kopf.kanten);
    return kopf;
}

template <class Knoten>
std::size_t Anzahl(const Knoten* kopf) {
    std::size_t n = 0;
    for (; kopf != nullptr; kopf = kopf->Next)
        ++n;
    return n;
}

/// The figures with the positions that they have in a view, whatever they hold.
class Bildsaetze {
  public:
    Bildsaetze(const Netz& netz, const Ansicht& ansicht) : ansicht_(ansicht), orte_(netz, ansicht) {}
    [[nodiscard]] Punkt operator()(const PunktKnoten& p) {
        return VersetzeFigur(*p.Item, BildortVon(p, ansicht_));
    }
    [[nodiscard]] PktText operator()(const PunktString& t) { return VersetzeFigur(*t.Item, orte_.Text(t)); }
    [[nodiscard]] Kante operator()(const PunktKante& k) {
        Kante kante = VersetzeFigur(*k.Item, orte_.Anfang(k));
        const Bildpunkt ende = orte_.Ende(k);
        kante.XBiE = ende.x;
        kante.YBiE = ende.y;
        return kante;
    }

  private:
    template <class Figur>
    [[nodiscard]] static Figur VersetzeFigur(Figur figur, Bildpunkt ort) {
        figur.XO = ort.x;
        figur.YO = ort.y;
        return figur;
    }

    const Ansicht& ansicht_;
    Bildorte orte_;
};

/// @param satz the figure of a node as the file is to hold it
template <class Satz>
void SchreibeSaetze(const Netz& netz, const Ansicht& a, const Netzangaben& angaben, const Textmenge& ohne,
                    ByteSchreiber& f, Satz satz) {
    for (const double feld : {a.Faktor, a.MaxXW, a.MinXW, a.MaxYW, a.MinYW, a.XOffset, a.YOffset})
        f.F64(feld);
    for (const std::int32_t feld : {netz.MaxPkte, netz.MaxKant, a.Weite, a.Hoehe})
        f.I32(feld);
    f.U32(0);
    f.U32(0);
    f.I32(angaben.Netztyp);
    for (const PunktKnoten* p = netz.PunktKnoten; p != nullptr; p = p->Next) {
        f.F64(p->XWPu);
        f.F64(p->YWPu);
        f.U16(p->PNr);
        satz(*p).Store(f);
    }
    for (const PunktString* t = netz.PktTextKnoten; t != nullptr; t = t->Next) {
        if (ohne.count(t) != 0) continue;
        f.U16(t->TNr);
        satz(*t).Store(f);
    }
    for (const PunktKante* k = netz.KanteKnoten; k != nullptr; k = k->Next) {
        f.U16(k->ANr);
        f.U16(k->ENr);
        satz(*k).Store(f);
    }
}

[[noreturn]] void ZuKurz(const std::string& datei, const std::string& was) {
    throw Fehler("Die Datei ist keine vollständige Zarwikdatei (" + was + "). Es wurde nichts geladen.",
                 datei);
}

}  // namespace

void Liste::Store(ByteSchreiber& f, const Netzangaben& netz) const {
    StoreOhne({}, f, netz);
}

void Liste::StoreOhne(const Textmenge& texte, ByteSchreiber& f, const Netzangaben& netz) const {
    SchreibeSaetze(
        *this, *this, netz, texte, f, [](const auto& k) -> const auto& { return *k.Item; });
}

// Each record goes to the head of its list, so that loading reverses the order in which overlapping figures
// are drawn and hit. Users know their plots that way: saving and loading twice gives the first order back.
std::unique_ptr<Liste> Liste::Load(ByteLeser& f, const Einstellungen& einstellungen, Netzangaben& netz,
                                   const std::string& datei) {
    if (f.Rest() < kKopf) ZuKurz(datei, "der Kopf fehlt");
    auto liste = std::make_unique<Liste>(einstellungen);
    const Kopf kopf = LiesKopf(f, *liste);
    const std::size_t bedarf = kopf.punkte * (kPunktsatz + kTextsatz) + kopf.kanten * kKantensatz;
    if (f.Rest() < bedarf) {
        ZuKurz(datei, std::to_string(kopf.punkte) + " Punkte und " + std::to_string(kopf.kanten) +
                          " Linien angekündigt, " + std::to_string(bedarf - f.Rest()) + " Bytes fehlen");
    }
    liste->ErwarteFiguren(kopf.punkte, kopf.kanten);
    for (std::size_t i = 0; i < kopf.punkte; ++i) {
        const Welt ort{f.F64(), f.F64()};
        const PunktIndex nr = f.U16();
        liste->AddPunkt(Punkt::Load(f), ort, nr);
    }
    for (std::size_t i = 0; i < kopf.punkte; ++i) {
        const PunktIndex nr = f.U16();
        liste->AddPktText(PktText::Load(f), nr);
    }
    for (std::size_t i = 0; i < kopf.kanten; ++i) {
        const PunktIndex a = f.U16();
        const PunktIndex e = f.U16();
        liste->AddKante(Kante::Load(f), a, e);
    }
    netz.Netztyp = kopf.netztyp;
    liste->WeltinBild();
    return liste;
}

// Files of unknown origin hold labels of no point, or several of one. When a point then goes, the one count
// for points and labels would be wrong.
Textmenge UeberzaehligeTexte(const Netz& netz) {
    Textmenge herrenlose;
    std::size_t zuviel = Anzahl(netz.PktTextKnoten);
    zuviel -= std::min(zuviel, Anzahl(netz.PunktKnoten));
    for (const PunktString* t = netz.PktTextKnoten; t != nullptr && zuviel > 0; t = t->Next) {
        if (netz.SuchPkt(t->TNr) != nullptr && netz.FindText(t->TNr) == t) continue;
        herrenlose.insert(t);
        --zuviel;
    }
    return herrenlose;
}

/// Checks what the format can hold, and writes it. @param schreibe puts the records without these labels
template <class Schreibe>
static std::size_t SchreibeGeprueft(const Netz& netz, const std::filesystem::path& datei, Dateien& dateien,
                                    Schreibe schreibe) {
    if (netz.MaxPkte > kMaxAnzahl || netz.MaxKant > kMaxAnzahl) {
        throw Fehler("Eine Zarwikdatei fasst höchstens 65535 Punkte und 65535 Linien; dieses Netz hat " +
                         std::to_string(netz.MaxPkte) + " Punkte und " + std::to_string(netz.MaxKant) +
                         " Linien. Es wurde nichts gespeichert.",
                     PfadText(datei));
    }
    // The file has one count for both. Lists of unknown origin may have come apart; such a file would read
    // wrongly.
    const std::size_t punkte = Anzahl(netz.PunktKnoten);
    const Textmenge herrenlose = UeberzaehligeTexte(netz);
    const std::size_t texte = Anzahl(netz.PktTextKnoten) - herrenlose.size();
    if (punkte != texte || punkte != static_cast<std::size_t>(netz.MaxPkte) ||
        Anzahl(netz.KanteKnoten) != static_cast<std::size_t>(netz.MaxKant)) {
        throw Fehler("Das Netz hat " + std::to_string(punkte) + " Punkte und " + std::to_string(texte) +
                         " Punktnummern; eine Zarwikdatei braucht gleich viele. Es wurde nichts gespeichert.",
                     PfadText(datei));
    }
    ByteSchreiber f;
    f.ReserviereBytes(kKopf + static_cast<std::size_t>(netz.MaxPkte) * (kPunktsatz + kTextsatz) +
                      static_cast<std::size_t>(netz.MaxKant) * kKantensatz);
    schreibe(herrenlose, f);
    dateien.ErsetzeDatei(datei, f.Inhalt());
    return herrenlose.size();
}

std::size_t SchreibeBilddatei(Liste& liste, const Netzangaben& netz, const std::filesystem::path& datei,
                              Dateien& dateien) {
    return SchreibeGeprueft(liste, datei, dateien, [&](const Textmenge& ohne, ByteSchreiber& f) {
        liste.WeltinBild();  // the file holds positions, too
        liste.StoreOhne(ohne, f, netz);
    });
}

std::size_t SchreibeBilddatei(const Netz& netz, const Ansicht& ansicht, const Netzangaben& angaben,
                              const std::filesystem::path& datei, Dateien& dateien) {
    return SchreibeGeprueft(netz, datei, dateien, [&](const Textmenge& ohne, ByteSchreiber& f) {
        SchreibeSaetze(netz, ansicht, angaben, ohne, f, Bildsaetze(netz, ansicht));
    });
}

std::string WeggelasseneNummern(std::size_t anzahl) {
    if (anzahl == 0) return {};
    return (anzahl == 1 ? std::string("Eine Punktnummer, die zu keinem Punkt gehört, wurde")
                        : std::to_string(anzahl) + " Punktnummern, die zu keinem Punkt gehören, wurden") +
           " nicht mitgespeichert.";
}

std::unique_ptr<Liste> LiesBilddatei(const std::filesystem::path& datei, const Dateien& dateien,
                                     const Einstellungen& einstellungen, Netzangaben& netz) {
    const std::string inhalt = dateien.LiesDatei(datei, kGrenze);
    ByteLeser f(inhalt);
    return Liste::Load(f, einstellungen, netz, PfadText(datei));
}

}  // namespace zrw
