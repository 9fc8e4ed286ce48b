#include "input/import/Xmldatei.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "input/import/Zeichensatz.h"
#include "model/Fehler.h"

namespace zrw::fremd {
namespace {

/// Text right inside an element stays with the element: half the nodes of a covariance matrix. White space in
/// attributes and ends of lines stay as they are, nobody asks.
constexpr unsigned kLesart = pugi::parse_cdata | pugi::parse_escapes | pugi::parse_embed_pcdata;

/// Memory of the tree: a node and an attribute of the library at most [bytes].
constexpr std::size_t kJeKnoten = 80, kJeMerkmal = 48;
constexpr std::size_t kGroessterBaum = std::size_t{1} << 30U;
/// Nobody nests deeper, and programs that walk down trees have a bounded stack.
constexpr std::size_t kTiefste = 256;

constexpr bool IstWeiss(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

std::string_view OhneWeiss(std::string_view t) {
    while (!t.empty() && IstWeiss(t.front()))
        t.remove_prefix(1);
    while (!t.empty() && IstWeiss(t.back()))
        t.remove_suffix(1);
    return t;
}

struct Lesegrund {
    pugi::xml_parse_status status;
    const char* text;
};

constexpr auto kLesegruende = std::to_array<Lesegrund>({
    {pugi::status_out_of_memory, "Der Speicher reicht nicht für die Datei."},
    {pugi::status_bad_pi, "Eine Anweisung „<? ... ?>“ ist nicht abgeschlossen."},
    {pugi::status_bad_comment, "Ein Kommentar ist nicht abgeschlossen."},
    {pugi::status_bad_cdata, "Ein CDATA-Abschnitt ist nicht abgeschlossen."},
    {pugi::status_bad_doctype, "Die DOCTYPE-Angabe ist nicht abgeschlossen."},
    {pugi::status_bad_start_element, "Ein Element beginnt nicht so, wie es XML verlangt."},
    {pugi::status_bad_attribute, "Ein Attribut ist nicht so geschrieben, wie es XML verlangt."},
    {pugi::status_bad_end_element, "Ein Element endet nicht so, wie es XML verlangt."},
    {pugi::status_end_element_mismatch, "Ein Element ist nicht oder falsch geschlossen."},
    {pugi::status_no_document_element, "Die Datei enthält kein XML-Element."},
});

const char* Grundtext(pugi::xml_parse_status status) {
    const auto* grund = std::find_if(kLesegruende.begin(), kLesegruende.end(),
                                     [&](const Lesegrund& g) { return g.status == status; });
    return grund == kLesegruende.end() ? "Die Datei ist kein lesbares XML." : grund->text;
}

/// How much memory a text and its tree take at most [bytes]; 0 where that is no question.
std::size_t Baumgroesse(std::string_view text) {
    const auto zahl = [&](char c) {
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
    };
    // An element and its end have two brackets; what counts twice stands for texts between them.
    // Counting takes its time, and the shortest element has four bytes.
    if (text.size() * (1 + kJeKnoten / 4) < kGroessterBaum) return 0;
    return text.size() + zahl('<') * kJeKnoten + zahl('=') * kJeMerkmal;
}

/// The first element that stands too deep, or none.
pugi::xml_node ZuTief(pugi::xml_node wurzel) {
    std::size_t tiefe = 1;
    for (pugi::xml_node k = wurzel; k;) {
        if (tiefe > kTiefste) return k;
        if (k.first_child()) {
            k = k.first_child();
            ++tiefe;
            continue;
        }
        while (k && k != wurzel && !k.next_sibling()) {
            k = k.parent();
            --tiefe;
        }
        if (k == wurzel) break;
        k = k.next_sibling();
    }
    return {};
}

}  // namespace

std::string Wurzelname(std::string anfang) {
    try {
        anfang.resize(std::min(anfang.size(), kAnfang));
        (void)WandleInUtf8(anfang);  // an unknown set has the names all the same
        if (anfang.find('<') == std::string::npos) return {};
        // The text ends somewhere inside: what was read before that is there all the same.
        pugi::xml_document baum;
        (void)baum.load_buffer_inplace(anfang.data(), anfang.size(), pugi::parse_minimal,
                                       pugi::encoding_utf8);
        return std::string(Elementname(baum.document_element()));
    } catch (const std::exception&) {
        return {};
    }
}

std::string_view Elementname(pugi::xml_node knoten) {
    std::string_view name = knoten.name();
    if (const std::size_t doppelpunkt = name.rfind(':'); doppelpunkt != std::string_view::npos)
        name.remove_prefix(doppelpunkt + 1);
    return name;
}

std::string_view Inhalt(pugi::xml_node knoten) {
    return OhneWeiss(knoten.child_value());
}

std::string_view Inhalt(pugi::xml_attribute merkmal) {
    return OhneWeiss(merkmal.value());
}

pugi::xml_node Kind(pugi::xml_node knoten, std::string_view name) {
    for (const pugi::xml_node kind : knoten.children()) {
        if (Elementname(kind) == name) return kind;
    }
    return {};
}

Xmldatei::Xmldatei(const std::filesystem::path& datei, const Dateien& dateien)
    : dateien_(dateien),
      pfad_(datei),
      name_(PfadText(datei.filename())),
      text_(dateien.LiesDatei(datei, kGroessteXmlDatei)) {
    if (const std::string grund = WandleInUtf8(text_); !grund.empty()) throw Fehler(grund, name_);
    if (Baumgroesse(text_) > kGroessterBaum)
        throw Fehler("Die Datei hat mehr Elemente, als Zarwik lesen kann.", name_);
    const pugi::xml_parse_result gelesen =
        baum_.load_buffer_inplace(text_.data(), text_.size(), kLesart, pugi::encoding_utf8);
    if (!gelesen) {
        const auto stelle = static_cast<std::size_t>(std::max<std::ptrdiff_t>(gelesen.offset, 0));
        throw Fehler(Grundtext(gelesen.status), name_, Zeile(stelle));
    }
    // Only what stands before the root can define entities.
    const std::size_t eigene = std::string_view(text_).substr(0, Stelle(Wurzel())).find("<!ENTITY");
    if (eigene != std::string_view::npos)
        throw Fehler("Die Datei legt eigene XML-Entitäten fest; solche Dateien werden nicht gelesen.", name_,
                     Zeile(eigene));
}

void Xmldatei::PruefeTiefe(pugi::xml_node knoten) const {
    if (const pugi::xml_node tief = ZuTief(knoten))
        WirfFehler("Die Elemente sind tiefer ineinander geschachtelt, als Zarwik liest.", tief);
}

std::uint32_t Xmldatei::Stelle(pugi::xml_node knoten) {
    return static_cast<std::uint32_t>(std::max<std::ptrdiff_t>(knoten.offset_debug(), 0));
}

std::int64_t Xmldatei::Zeile(std::size_t stelle) const {
    if (original_.empty()) {
        original_ = dateien_.LiesDatei(pfad_, kGroessteXmlDatei);
        (void)WandleInUtf8(original_);
    }
    const auto ende = original_.begin() + static_cast<std::ptrdiff_t>(std::min(stelle, original_.size()));
    return 1 + static_cast<std::int64_t>(std::count(original_.begin(), ende, '\n'));
}

void Xmldatei::WirfFehler(const std::string& text, pugi::xml_node knoten) const {
    throw Fehler(text, name_, Zeile(Stelle(knoten)));
}

}  // namespace zrw::fremd
