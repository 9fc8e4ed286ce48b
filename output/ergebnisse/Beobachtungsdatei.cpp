#include "output/ergebnisse/Beobachtungsdatei.h"

#include <string_view>
#include <utility>

#include "model/Cp1252.h"
#include "model/Trennfeld.h"
#include "model/Zahlentext.h"
#include "model/ergebnisse/Statistik.h"
#include "output/Textausgabe.h"

namespace zrw {
namespace {

std::string Feldtext(const Beobachtung& b, const Spaltenbeschreibung& s) {
    if (s.wert) {
        const double wert = b.Wert(*s.wert);
        return std::isnan(wert) ? std::string() : SchreibeReal(wert);
    }
    if (s.spalte == Listenspalte::Tabelle) return std::string(ZurGattung(b.tabelle).name);
    if (s.spalte == Listenspalte::ID) return b.idBekannt ? std::to_string(b.id) : std::string();
    if (s.spalte == Listenspalte::Von) return Trennfeld(Cp1252NachUtf8(b.von.Text()));
    if (s.spalte == Listenspalte::Nach) return Trennfeld(Cp1252NachUtf8(b.nach.Text()));
    return (s.spalte == Listenspalte::FF ? b.ff : b.nk) ? "1" : "0";
}

/// Members of a JSON object, one after the other.
class Glieder {
  public:
    void NimmGlied(std::string_view name, const std::string& wert) {
        text_ += text_.empty() ? "{\"" : ",\"";
        text_ += std::string(name) + "\":" + wert;
    }
    void NimmAnzahl(std::string_view name, std::size_t anzahl) { NimmGlied(name, std::to_string(anzahl)); }
    [[nodiscard]] std::string Objekt() const { return text_.empty() ? "{}" : text_ + '}'; }

  private:
    std::string text_;
};

std::string Objekt(const Tabellenlage& lage, const Gattungsstatistik& s) {
    Glieder glieder;
    glieder.NimmAnzahl("n", s.anzahl);
    if (lage.hatFF) glieder.NimmAnzahl("ff", s.markiert);
    if (lage.hatNK) glieder.NimmAnzahl("nk", s.unkontrolliert);
    if (lage.HatWert(Messwert::TG)) {
        glieder.NimmAnzahl("tg_unter_1", s.tgUnter1);
        glieder.NimmAnzahl("tg_unter_2", s.tgUnter2);
        if (s.groessteTG) glieder.NimmGlied("tg_max", SchreibeReal(*s.groessteTG));
    }
    return glieder.Objekt();
}

void Schliesse(Textausgabe& aus) {
    aus.SichereDatei();
    aus.ErsetzeZiel();
}

}  // namespace

std::string Spaltenzeile(Spalten spalten) {
    std::string zeile;
    for (const Spaltenbeschreibung& s : spalten)
        zeile += (zeile.empty() ? std::string() : std::string(1, kFeldtrenner)) + std::string(s.name);
    return zeile;
}

std::string Beobachtungszeile(const Beobachtung& b, Spalten spalten) {
    std::string zeile;
    for (const Spaltenbeschreibung& s : spalten) {
        if (s.spalte != Listenspalte::Tabelle) zeile += kFeldtrenner;
        zeile += Feldtext(b, s);
    }
    return zeile;
}

void SchreibeBeobachtungen(const Beobachtungsliste& liste, std::unique_ptr<Dateischreiber> datei) {
    Textausgabe aus(std::move(datei));
    const Spalten spalten = SpaltenVon(liste);
    aus.NimmText(Spaltenzeile(spalten) + '\n');
    for (const std::uint32_t i : OrdneZeilen(liste, {}, {}))
        aus.NimmText(Beobachtungszeile(liste.zeilen[i], spalten) + '\n');
    Schliesse(aus);
}

void SchreibeStatistik(const Beobachtungsliste& liste, std::unique_ptr<Dateischreiber> datei) {
    Glieder tabellen;
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen) {
        const Tabellenlage& lage = liste.Lage(g.tabelle);
        if (lage.zustand == Lesezustand::Gelesen)
            tabellen.NimmGlied(g.name, Objekt(lage, Zaehle(liste, g.tabelle, kUeblicheTestgrenze)));
    }
    Textausgabe aus(std::move(datei));
    aus.NimmText("{\"tabellen\":" + tabellen.Objekt() + "}\n");
    Schliesse(aus);
}

}  // namespace zrw
