#include "output/Pdfflaeche.h"

#include <algorithm>

#include "model/Cp1252.h"
#include "output/Helvetica.h"

namespace zrw {
namespace {

constexpr double kPunkteJeMillimeter = kPunkteJeZoll / kMillimeterJeZoll;

// Objects that every document has.
constexpr std::size_t kKatalog = 1;
constexpr std::size_t kSeitenbaum = 2;
constexpr std::size_t kBetriebsmittel = 3;
constexpr std::size_t kSchriftobjekt = 4;
constexpr std::size_t kAngaben = 5;

std::string Aufgefuellt(std::uint64_t zahl, std::size_t stellen) {
    const std::string text = std::to_string(zahl);
    return std::string(stellen - std::min(stellen, text.size()), '0') + text;
}

/// A text in code page 1252 as one of UTF-16, which viewers take for every character: "<FEFF004E>".
std::string Unicodetext(std::string_view text) {
    constexpr std::string_view kZiffern = "0123456789ABCDEF";
    std::string hex = "<FEFF";
    for (const char z : text) {
        if (IstSteuerzeichen(z)) continue;
        const std::uint32_t zeichen = Cp1252Zeichen(z);
        for (const unsigned schub : {12U, 8U, 4U, 0U})
            hex += kZiffern[zeichen >> schub & 15U];
    }
    return hex + ">";
}

/// "21.11.2026 09:05:00" as "(D:20261121090500)"; empty for anything else.
std::string Datumtext(const std::string& text) {
    constexpr std::string_view kMuster = "00.00.0000 00:00:00";
    if (text.size() != kMuster.size()) return {};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (kMuster[i] == '0' ? c < '0' || c > '9' : c != kMuster[i]) return {};
    }
    std::string datum = "(D:" + text.substr(6, 4) + text.substr(3, 2) + text.substr(0, 2);
    for (const std::size_t stelle : {std::size_t{11}, std::size_t{14}, std::size_t{17}})
        datum += text.substr(stelle, 2);
    return datum + ")";
}

}  // namespace

Pdfflaeche::Pdfflaeche(std::unique_ptr<Dateischreiber> datei, const Papier& papier, double aufloesung,
                       const Pdfangaben& angaben)
    : Vektorflaeche(std::move(datei), Bedruckbar(papier, aufloesung),
                    kStrichbreite / kMillimeterJeZoll * aufloesung,
                    angaben.schrift != nullptr ? angaben.schrift->Masse() : kHelvetica),
      papier_(papier),
      schrift_(angaben.schrift) {
    // The second line tells programs that move files that this one is not plain text.
    SchreibeText("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");
    orte_.resize(kAngaben);
    SchreibeAngaben(angaben);
    BeginneSeite();
}

// --- Objects ----------------------------------------------------------------------------------------------

Pdfflaeche::Objekt Pdfflaeche::NeuesObjekt() {
    orte_.push_back(0);
    return orte_.size();
}

void Pdfflaeche::BeginneObjekt(Objekt objekt) {
    orte_[objekt - 1] = Geschrieben();
    SchreibeZahl(static_cast<std::int64_t>(objekt));
    SchreibeText(" 0 obj\n");
}

void Pdfflaeche::Verweis(std::string_view vor, Objekt objekt) {
    SchreibeText(vor);
    SchreibeText(" ");
    SchreibeZahl(static_cast<std::int64_t>(objekt));
    SchreibeText(" 0 R");
}

void Pdfflaeche::SchreibeAngaben(const Pdfangaben& angaben) {
    BeginneObjekt(kAngaben);
    SchreibeText("<</Title");
    SchreibeText(Unicodetext(angaben.titel));
    SchreibeText("/Creator(Zarwik)");
    if (angaben.uhr != nullptr) {
        const std::string datum = Datumtext(angaben.uhr->DatumZeit());
        if (!datum.empty()) SchreibeText("/CreationDate" + datum);
    }
    SchreibeText(">>\n");
    BeendeObjekt();
}

void Pdfflaeche::SchreibeEbenen() {
    for (std::size_t i = 0; i < ebenen_.size(); ++i) {
        if (ebenen_[i] == 0) continue;
        BeginneObjekt(ebenen_[i]);
        SchreibeText("<</Type/OCG/Name(");
        SchreibeText(kEbenennamen[i]);
        SchreibeText(")>>\n");
        BeendeObjekt();
    }
}

void Pdfflaeche::SchreibeBetriebsmittel() {
    BeginneObjekt(kBetriebsmittel);
    Verweis("<</ProcSet[/PDF/Text]/Font<</F", kSchriftobjekt);
    if (!durchscheinend_.empty()) {
        SchreibeText(">>/ExtGState<<");
        for (const int prozent : durchscheinend_) {
            SchreibeText("/D" + std::to_string(prozent) + "<</ca ");
            SchreibeZahl(prozent / 100.0, kDotstellen);
            SchreibeText(">>");
        }
    }
    SchreibeText(">>/Properties<<");
    for (std::size_t i = 0; i < ebenen_.size(); ++i) {
        if (ebenen_[i] == 0) continue;
        SchreibeText("/");
        Verweis(kEbenennamen[i], ebenen_[i]);
    }
    SchreibeText(">>>>\n");
    BeendeObjekt();
}

/// Begins an object with a compressed stream; its length follows when it is known.
/// @param eintraege further ones of its dictionary
void Pdfflaeche::BeginneStromobjekt(Objekt objekt, std::string_view eintraege) {
    laengenobjekt_ = NeuesObjekt();
    BeginneObjekt(objekt);
    Verweis("<</Filter/FlateDecode/Length", laengenobjekt_);
    SchreibeText(eintraege);
    SchreibeText(">>\nstream\n");
    stromanfang_ = Geschrieben();
    BeginneStrom();
}

void Pdfflaeche::BeendeStromobjekt() {
    BeendeStrom();
    const std::uint64_t laenge = Geschrieben() - stromanfang_;
    SchreibeText("\nendstream\n");
    BeendeObjekt();
    BeginneObjekt(laengenobjekt_);
    SchreibeZahl(static_cast<std::int64_t>(laenge));
    SchreibeText("\n");
    BeendeObjekt();
}

/// At the end, when it is known which characters are needed.
void Pdfflaeche::SchreibeSchrift() {
    if (schrift_ == nullptr) {
        BeginneObjekt(kSchriftobjekt);
        SchreibeText("<</Type/Font/Subtype/Type1/BaseFont/Helvetica/Encoding/WinAnsiEncoding>>\n");
        return BeendeObjekt();
    }
    const std::string name = schrift_->Name(zeichen_);
    const Schriftmasse& masse = schrift_->Masse();
    const Objekt beschreibung = NeuesObjekt();
    const Objekt datei = NeuesObjekt();
    BeginneObjekt(kSchriftobjekt);
    SchreibeText("<</Type/Font/Subtype/TrueType/BaseFont/" + name + "/Encoding/WinAnsiEncoding");
    Verweis("/FontDescriptor", beschreibung);
    SchreibeText("/FirstChar 0/LastChar 255/Widths[");
    for (const double breite : masse.breiten) {
        SchreibeText(" ");
        SchreibeZahl(breite, kDotstellen);
    }
    SchreibeText("]>>\n");
    BeendeObjekt();
    BeginneObjekt(beschreibung);
    SchreibeText("<</Type/FontDescriptor/FontName/" + name + "/Flags 32/ItalicAngle 0/StemV 80/FontBBox[");
    for (const double kante : schrift_->Kasten()) {
        SchreibeText(" ");
        SchreibeZahl(kante, kDotstellen);
    }
    const auto hoehe = [this](std::string_view eintrag, double em) {
        SchreibeText(eintrag);
        SchreibeText(" ");
        SchreibeZahl(1000 * em, kDotstellen);
    };
    SchreibeText("]");
    hoehe("/Ascent", masse.anstieg);
    hoehe("/Descent", -masse.abstieg);
    hoehe("/CapHeight", masse.anstieg);  // Latin capitals reach nearly as high as a line
    Verweis("/FontFile2", datei);
    SchreibeText(">>\n");
    BeendeObjekt();
    const std::string inhalt = schrift_->Datei(zeichen_);
    BeginneStromobjekt(datei, "/Length1 " + std::to_string(inhalt.size()));
    SchreibeText(inhalt);
    BeendeStromobjekt();
}

void Pdfflaeche::SchreibeVerzeichnis() {
    BeginneObjekt(kSeitenbaum);
    SchreibeText("<</Type/Pages/Count ");
    SchreibeZahl(static_cast<std::int64_t>(seiten_.size()));
    SchreibeText("/Kids[");
    for (const Objekt s : seiten_)
        Verweis("", s);
    SchreibeText("]>>\n");
    BeendeObjekt();
    const auto alleEbenen = [this] {
        SchreibeText("[");
        for (const Objekt e : ebenen_) {
            if (e != 0) Verweis("", e);
        }
        SchreibeText("]");
    };
    BeginneObjekt(kKatalog);
    Verweis("<</Type/Catalog/Pages", kSeitenbaum);
    SchreibeText("/OCProperties<</OCGs");
    alleEbenen();
    SchreibeText("/D<</Order");
    alleEbenen();
    SchreibeText(">>>>/ViewerPreferences<</DisplayDocTitle true/PrintScaling/None>>>>\n");
    BeendeObjekt();
}

void Pdfflaeche::BeendeDatei() {
    BeendeSeite();
    SchreibeEbenen();
    SchreibeBetriebsmittel();
    SchreibeSchrift();
    SchreibeVerzeichnis();
    const std::uint64_t tafel = Geschrieben();
    SchreibeText("xref\n0 ");
    SchreibeZahl(static_cast<std::int64_t>(orte_.size() + 1));
    SchreibeText("\n0000000000 65535 f \n");
    for (const std::uint64_t ort : orte_) {
        SchreibeText(Aufgefuellt(ort, 10));
        SchreibeText(" 00000 n \n");
    }
    SchreibeText("trailer\n<</Size ");
    SchreibeZahl(static_cast<std::int64_t>(orte_.size() + 1));
    Verweis("/Root", kKatalog);
    Verweis("/Info", kAngaben);
    SchreibeText(">>\nstartxref\n");
    SchreibeZahl(static_cast<std::int64_t>(tafel));
    SchreibeText("\n%%EOF\n");
    UebernimmDatei();
}

// --- Pages ------------------------------------------------------------------------------------------------

void Pdfflaeche::BeginneSeite() {
    const Objekt seite = NeuesObjekt();
    const Objekt strom = NeuesObjekt();
    seiten_.push_back(seite);
    BeginneObjekt(seite);
    Verweis("<</Type/Page/Parent", kSeitenbaum);
    SchreibeText("/MediaBox[0 0 ");
    Paar(papier_.weite * kPunkteJeMillimeter, papier_.hoehe * kPunkteJeMillimeter);
    Verweis("]/Resources", kBetriebsmittel);
    Verweis("/Contents", strom);
    SchreibeText(">>\n");
    BeendeObjekt();
    BeginneStromobjekt(strom);
    const double punkte = kPunkteJeZoll / Seite().aufloesung;
    SchreibeZahl(punkte, kMatrixstellen);
    SchreibeText(" 0 0 ");
    SchreibeZahl(-punkte, kMatrixstellen);
    SchreibeText(" ");
    Paar(kPapierrand * kPunkteJeMillimeter, (papier_.hoehe - kPapierrand) * kPunkteJeMillimeter);
    SchreibeText("cm\n");
    // A line along the edge keeps its width.
    Paar(-Strich(), -Strich());
    Paar(Seite().weite + 2 * Strich(), Seite().hoehe + 2 * Strich());
    SchreibeText("re W n\n1 j\n");
    stift_.reset();
    fuellung_.reset();
}

void Pdfflaeche::BeendeSeite() {
    SchliesseEbene();
    BeendeStromobjekt();
}

void Pdfflaeche::NeueSeite() {
    BeendeSeite();
    BeginneSeite();
}

void Pdfflaeche::EbeneGewechselt(Ebene /*ebene*/) {
    SchliesseEbene();
}

void Pdfflaeche::SchliesseEbene() {
    SchliessePfad();
    if (offeneEbene_) SchreibeText("EMC\n");
    offeneEbene_ = false;
}

/// Layers begin with their first figure: those on which nothing is drawn are no layers of the document.
void Pdfflaeche::BeginneForm() {
    SchliessePfad();
    const Ebene ebene = AktuelleEbene();
    if (offeneEbene_ || ebene == Ebene::Grund) return;
    offeneEbene_ = true;
    Objekt& objekt = ebenen_[static_cast<std::size_t>(ebene)];
    if (objekt == 0) objekt = NeuesObjekt();
    SchreibeText("/OC/");
    SchreibeText(Ebenenname(ebene));
    SchreibeText(" BDC\n");
}

/// Layers begin anew on both sides of its ends, as the graphics state does.
void Pdfflaeche::BeginneFenster(const Rechteck& r) {
    SchliesseEbene();
    SchreibeText("q ");
    Paar(r.links, r.oben);
    Paar(r.rechts - r.links, r.unten - r.oben);
    SchreibeText("re W n\n");
    stift_.reset();
    fuellung_.reset();
}

void Pdfflaeche::BeendeFenster() {
    SchliesseEbene();
    SchreibeText("Q\n");
    stift_.reset();
    fuellung_.reset();
}

void Pdfflaeche::SetzeStrichmass(double mm) {
    SchliessePfad();
    Vektorflaeche::SetzeStrichmass(mm);
    stift_.reset();
}

}  // namespace zrw
