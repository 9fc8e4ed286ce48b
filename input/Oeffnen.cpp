#include "input/Oeffnen.h"

#include <algorithm>
#include <string>

#include "model/Bilddatei.h"

namespace zrw {
namespace {

void Melde(const Meldungsempfaenger& meldung, const std::string& text, const std::filesystem::path& datei) {
    if (meldung) meldung({text, PfadText(datei.filename()), 0});
}

Lesung OeffneBilddatei(const std::filesystem::path& datei, const Dateien& dateien,
                       const Einstellungen& einstellungen, const Netzangaben& bisher, Bildgroesse bild,
                       const Meldungsempfaenger& meldung) {
    Lesung lesung;
    lesung.netz = bisher;
    lesung.liste = LiesBilddatei(datei, dateien, einstellungen, lesung.netz);
    Liste& liste = *lesung.liste;
    if (!AnsichtBrauchbar(liste)) {
        Melde(meldung, "Der gespeicherte Ausschnitt ist nicht lesbar; das ganze Netz wird dargestellt.",
              datei);
        liste.Weite = bild.weite;
        liste.Hoehe = bild.hoehe;
        liste.FindWorldMinMax();
        liste.PasseEin();
    }
    return lesung;
}

}  // namespace

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
    Liste& liste = *lesung.liste;
    liste.Weite = bild.weite;
    liste.Hoehe = bild.hoehe;
    if (liste.PunktKnoten == nullptr && lesung.ende == Leseende::Vollstaendig) {
        Melde(meldung, "Die Datei enthält keine lesbaren Punkte (fehlt der Netztyp \"$NT\"?).", datei);
    }
    liste.FindWorldMinMax();
    liste.PasseEin();
    return lesung;
}

}  // namespace zrw
