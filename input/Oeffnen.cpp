#include "input/Oeffnen.h"

#include <algorithm>
#include <string>

#include "model/Bilddatei.h"

namespace zrw {
namespace {

void MeldeText(const Meldungsempfaenger& meldung, const std::string& text,
               const std::filesystem::path& datei) {
    if (meldung) meldung({.text = text, .datei = PfadText(datei.filename())});
}

Lesung OeffneBilddatei(const std::filesystem::path& datei, const Dateien& dateien,
                       const Einstellungen& einstellungen, const Netzangaben& bisher, Bildgroesse bild,
                       const Meldungsempfaenger& meldung) {
    Lesung lesung;
    lesung.netz = bisher;
    lesung.liste = LiesBilddatei(datei, dateien, einstellungen, lesung.netz);
    Liste& liste = *lesung.liste;
    if (!liste.Brauchbar()) {
        MeldeText(meldung, "Der gespeicherte Ausschnitt ist nicht lesbar; das ganze Netz wird dargestellt.",
                  datei);
        liste.Weite = bild.weite;
        liste.Hoehe = bild.hoehe;
        liste.VergissLage();
        PasseNetzEin(liste, liste);
    }
    return lesung;
}

}  // namespace

void PasseNetzEin(const Netz& netz, Ansicht& ansicht) {
    if (netz.PunktKnoten == nullptr) return;
    ansicht.SetzeAusdehnung(netz.Ausdehnung());
    ansicht.PasseEin();
}

bool IstBilddatei(const std::filesystem::path& datei) {
    std::string endung = PfadText(datei.extension());
    std::transform(endung.begin(), endung.end(), endung.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return endung == ".ZRW";
}

Lesung OeffneNetz(const std::filesystem::path& datei, const Dateien& dateien,
                  const Einstellungen& einstellungen, const Netzangaben& bisher, Bildgroesse bild,
                  const Meldungsempfaenger& meldung, const Lesefortschritt& fortschritt) {
    if (IstBilddatei(datei)) return OeffneBilddatei(datei, dateien, einstellungen, bisher, bild, meldung);
    Lesung lesung = LeseSteuerdatei(datei, dateien, einstellungen, meldung, fortschritt);
    if (!lesung.bericht.schluessel) throw Fehler(Leertext(lesung.bericht), PfadText(datei.filename()));
    Liste& liste = *lesung.liste;
    liste.Weite = bild.weite;
    liste.Hoehe = bild.hoehe;
    if (liste.PunktKnoten == nullptr && lesung.ende == Leseende::Vollstaendig) {
        MeldeText(meldung, Leertext(lesung.bericht), datei);
    }
    PasseNetzEin(liste, liste);
    return lesung;
}

}  // namespace zrw
