#include "ui/ausgabe/Planausgabe.h"

#include <algorithm>

#include "input/Systemdateien.h"
#include "output/beschriftung/Blattordnung.h"
#include "ui/Umwandlung.h"
#include "ui/ausgabe/Befehl.h"
#include "ui/ausgabe/Nummernlauf.h"
#include "ui/dialoge/Ordnungsfortschritt.h"
#include "ui/fenster/Schalter.h"

namespace zrw {
namespace {

bool GleicheLegende(const std::optional<Legende>& a, const std::optional<Legende>& b) {
    if (!a || !b) return a.has_value() == b.has_value();
    return a->Bez1 == b->Bez1 && a->Bez2 == b->Bez2 && a->XO == b->XO && a->YO == b->YO;
}

}  // namespace

/// View, switches, state and order of one output.
class Planausgabe::Kopie {
  public:
    Kopie(Planausgabe& p, const Ausgabeauftrag& gewuenscht, TDM& daten)
        : ansicht_(p.plan_.Abgelegt().ansicht),
          darstellung_(*p.plan_.Daten()),
          netz_(*p.plan_.Daten()),
          beweglich_(p.beweglich_),
          auftrag(gewuenscht),
          quelle{.vorlage = {*p.plan_.Daten(), ansicht_, darstellung_,
                             darstellung_.Legend ? &*darstellung_.Legend : nullptr},
                 .netz = p.programm_.netz,
                 .einstellungen = p.programm_.einstellungen,
                 .zustand = zustand_,
                 .dateien = p.programm_.dateien,
                 .eingabe = p.plan_.Abgelegt().datei,
                 .ausBild = p.AusBild()} {
        if (!IstBilddatei(quelle.eingabe)) ansicht_ = {};  // every reading of a control file fits it anew
        SetzeGroesse(auftrag, ansicht_);
        if (!IstBilddatei(quelle.eingabe)) PasseNetzEin(*p.plan_.Daten(), ansicht_);
        SetzeSchalter(auftrag, darstellung_, p.programm_.netz, zustand_);
        if (darstellung_.Legend) darstellung_.Legend->Masstab = auftrag.massstab;
        daten.SetzeOrdner(p.Tabellenordner());
        zustand_.Ergebnisse = &daten;
    }
    Kopie(const Kopie&) = delete;
    Kopie& operator=(const Kopie&) = delete;

    /// Numbers stand where the order wants them, as long as the copy lives. @return false: it was stopped
    [[nodiscard]] bool OrdneNummern(const Sprecher& sage, const Fortschritt& fortschritt) {
        LegeMassstabFest(quelle, auftrag);
        auto lagen = SucheNummernlagen(quelle, auftrag, netz_, beweglich_, sage, fortschritt);
        if (!lagen) return false;
        nummern_.emplace(netz_, std::move(*lagen));
        return true;
    }

  private:
    Ansicht ansicht_;
    Darstellung darstellung_;
    Zeichenzustand zustand_;
    Netz& netz_;
    const Planbeschriftung::Beweglich& beweglich_;
    std::optional<Probelage> nummern_;

  public:
    Ausgabeauftrag auftrag;  ///< with the scale that was found for it
    const Ausgabequelle quelle;
};

Planausgabe::Planausgabe(const Programm& programm, Plan& plan, Planbeschriftung::Beweglich beweglich)
    : programm_(programm), plan_(plan), beweglich_(std::move(beweglich)), daten_(programm.dateien) {}

std::size_t Planausgabe::Nummernzahl() const {
    std::size_t n = 0;
    for (const PunktString* t = plan_.Daten()->PktTextKnoten; t != nullptr; t = t->Next)
        ++n;
    return n;
}

/// What was read says that, whatever it was saved as since.
bool Planausgabe::AusBild() const {
    return IstBilddatei(plan_.Datei());
}

std::filesystem::path Planausgabe::Tabellenordner() const {
    const std::filesystem::path& datei = plan_.Abgelegt().datei;
    return datei.empty() ? programm_.daten.Ordner() : VollerName(datei).parent_path();
}

Bildgroesse Planausgabe::UeblicheGroesse() const {
    Ansicht ansicht;
    if (IstBilddatei(plan_.Abgelegt().datei)) ansicht = plan_.Abgelegt().ansicht;
    SetzeGroesse({}, ansicht);
    return {ansicht.Weite, ansicht.Hoehe};
}

bool Planausgabe::IstAn(const Schalter& schalter) const {
    if (schalter.inDarstellung != nullptr) return plan_.Daten()->*schalter.inDarstellung;
    return schalter.imZustand != nullptr && programm_.zustand.*schalter.imZustand;
}

Ausgabevorschau Planausgabe::ZeichneVorschau(const Format& format, const Ausgabeauftrag& auftrag,
                                             QSize platz) {
    Kopie kopie(*this, auftrag, daten_);
    const auto stumm = [](const std::string& /*text*/) {};
    const bool viele = auftrag.ordnen && Nummernzahl() >= kVieleNummern;
    try {
        if (!viele && !kopie.OrdneNummern(stumm, {})) return {};
    } catch (const std::exception& f) {
        return {{}, AusUtf8(Fehlertext(f))};
    }
    Ausgabevorschau v = ZeichneAusgabe(format, AusgabeVon(kopie.quelle, kopie.auftrag, stumm), platz);
    if (viele) v.text += QStringLiteral("; die Nummern werden erst beim Schreiben geordnet");
    return v;
}

Planausgabe::Ergebnis Planausgabe::SchreibeDatei(const Format& format, const Ausgabeauftrag& auftrag,
                                                 const std::filesystem::path& ziel, QWidget* fenster) {
    TDM daten(programm_.dateien);  // tells what the preview has found, too
    Kopie kopie(*this, auftrag, daten);
    Ergebnis ergebnis;
    const auto sage = [&](const std::string& text) { ergebnis.meldungen << AusUtf8(text); };
    MeldeDarstellung(kopie.quelle, sage);
    const auto ordne = [&](const Fortschritt& f) { return kopie.OrdneNummern(sage, f); };
    if (auftrag.ordnen && !SucheMitFortschritt(Nummernzahl(), fenster, ordne))
        return {.abgebrochen = true, .meldungen = {}};
    ergebnis.ganz = SchreibeAusgaben(kopie.quelle, kopie.auftrag, ziel.parent_path(),
                                     {{format, ziel.filename()}}, daten, sage);
    return ergebnis;
}

std::filesystem::path Planausgabe::Zielname(const Format& format) const {
    const std::filesystem::path& datei = plan_.Abgelegt().datei;
    return zrw::Zielname(format, datei.empty() ? std::filesystem::path("NETZ") : datei);
}

QString Planausgabe::Befehl(const Format& format, const Ausgabeauftrag& auftrag,
                            const std::filesystem::path& ordner) const {
    const std::filesystem::path& datei = plan_.Abgelegt().datei;
    return AusUtf8(
        Befehlszeile(Befehlsworte(format, auftrag, ordner, datei.empty() ? "DATEI" : VollerName(datei))));
}

/// In a picture file it takes numbers that the window has put in order for placed by somebody.
bool Planausgabe::BefehlLaesstNummernStehen() const {
    if (!IstBilddatei(plan_.Abgelegt().datei)) return false;
    const Bildpunkt anfang{programm_.einstellungen.PXOff, programm_.einstellungen.PYOff};
    for (const PunktString* t = plan_.Daten()->PktTextKnoten; t != nullptr; t = t->Next)
        if (Bildpunkt{t->Item->XBiO, t->Item->YBiO} != anfang && beweglich_(*t)) return true;
    return false;
}

/// What the command reads instead of what is open.
QString Planausgabe::Lesestand() const {
    const std::filesystem::path& datei = plan_.Abgelegt().datei;
    const QString name = AusUtf8(PfadText(datei.filename()));
    if (datei.empty() || !programm_.dateien.Stand(datei))
        return QStringLiteral("Der Plan hat keine Datei, die der Befehl lesen könnte; erst speichern.");
    if (plan_.Ungesichert())
        return QStringLiteral("Der Plan ist nicht gespeichert: Der Befehl liest %1 ohne die Änderungen.")
            .arg(name);
    if (datei != plan_.Datei())
        return QStringLiteral("Der Befehl liest die gespeicherte Zarwikdatei %1.").arg(name);
    return {};
}

QStringList Planausgabe::Abweichungen(const Format& format, const Ausgabeauftrag& auftrag,
                                      const std::filesystem::path& name) const {
    QStringList texte(Lesestand());
    const bool mitLegende = format.HatMerkmal(kMitSchaltern) && !format.HatMerkmal(kOhneLegende);
    if (mitLegende && !GleicheLegende(plan_.Daten()->Legend, plan_.Abgelegt().legende))
        texte << QStringLiteral(
            "Text und Ort der Legende sind geändert; der Befehl kennt nur die der Datei.");
    const bool erklaert = std::count(auftrag.ein.begin(), auftrag.ein.end(), "zeichenerklaerung") > 0;
    if (erklaert && plan_.Daten()->Erklaerungsort)
        texte << QStringLiteral(
            "Die Zeichenerklärung ist verschoben; der Befehl kennt nur ihren üblichen Ort.");
    const Planfaerbung& f = auftrag.faerbung;
    const bool gefaerbt = f.Wirkt() && mitLegende;
    if (gefaerbt &&
        (f.filter.station != kKeinPunkt || f.filter.klasse ||
         (f.einfaerbung && (f.einfaerbung->gattung || f.einfaerbung->farben != Klassenfarben::Magma))))
        texte << QStringLiteral(
            "Der Befehl färbt in den üblichen Farben und kennt die Wahl nach Art der Beobachtung, Punkt und "
            "Klasse nicht.");
    if (auftrag.ordnen && BefehlLaesstNummernStehen())
        texte << QStringLiteral("Der Befehl lässt Nummern stehen, die im Fenster schon geordnet wurden.");
    const Netzangaben uebliche;
    const Netzangaben& netz = programm_.netz;
    const bool gitter = std::any_of(auftrag.ein.begin(), auftrag.ein.end(), [](const std::string& n) {
        return std::any_of(kSchalter.begin(), kSchalter.end(),
                           [&](const Schalter& s) { return s.name == n && s.HatMerkmal(kImKartengitter); });
    });
    if (gitter && AusBild() &&
        (netz.Ellipsoid != uebliche.Ellipsoid || netz.Hauptmeridian != uebliche.Hauptmeridian ||
         netz.Abbildungsmodus != uebliche.Abbildungsmodus))
        texte << QStringLiteral("Das Kartengitter folgt der Steuerdatei davor; der Befehl kennt sie nicht.");
    if (const auto sein = Zielname(format); name != sein)
        texte << QStringLiteral("Der Befehl nennt die Datei %1.").arg(AusUtf8(PfadText(sein)));
    texte.removeAll(QString());
    return texte;
}

}  // namespace zrw
