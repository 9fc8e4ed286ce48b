#include "input/import/Namensliste.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Cp1252.h"
#include "model/Trennfeld.h"
#include "model/Werte.h"

namespace zrw {
namespace {

constexpr std::string_view kKopf = "Neu;Alt";
constexpr std::string_view kBytefolge = "\xEF\xBB\xBF";  ///< spreadsheets write it before UTF-8
constexpr std::size_t kSpalten = 2;
/// All points of a network with names of several hundred characters.
constexpr std::size_t kGroessteListe = std::size_t{32} << 20U;

/// The rows of a text, one after the other. Other programs may have ended lines their way.
class Satzleser {
  public:
    explicit Satzleser(std::string_view text) : text_(text) {}

    /// @return false: there is no further row
    bool LiesSatz() {
        if (stelle_ >= text_.size()) return false;
        felder_.assign(1, {});
        ueberzaehlig_ = false;
        anfang_ = zeile_;
        bool innen = false;
        while (stelle_ < text_.size()) {
            const char c = text_[stelle_++];
            if (c == '\n') ++zeile_;
            if (c == '\n' && !innen) break;
            NimmZeichen(c, innen);
        }
        offen_ = innen;
        return true;
    }
    [[nodiscard]] bool Leer() const { return felder_.size() == 1 && felder_[0].empty(); }
    [[nodiscard]] bool Heil() const { return !offen_ && !ueberzaehlig_ && felder_.size() == kSpalten; }
    [[nodiscard]] std::vector<std::string>& Felder() { return felder_; }
    [[nodiscard]] std::int64_t Zeile() const { return anfang_; }

  private:
    void NimmZeichen(char c, bool& innen) {
        std::string& feld = felder_.back();
        if (innen && c == '"' && stelle_ < text_.size() && text_[stelle_] == '"') {
            feld += text_[stelle_++];
        } else if (c == '"' && (innen || feld.empty())) {
            innen = !innen;
        } else if (c == kFeldtrenner && !innen) {
            ueberzaehlig_ = ueberzaehlig_ || felder_.size() == kSpalten;
            if (!ueberzaehlig_) felder_.emplace_back();
        } else if (c != '\r' || innen) {
            feld += c;
        }
    }

    std::string_view text_;
    std::size_t stelle_ = 0;
    std::vector<std::string> felder_;
    bool ueberzaehlig_ = false;
    bool offen_ = false;  ///< quotes are not closed
    std::int64_t zeile_ = 1;
    std::int64_t anfang_ = 1;
};

/// Puts a row into the list. @return whether it is one
bool NimmSatz(Satzleser& leser, Namensliste& namen) {
    if (!leser.Heil()) return false;
    std::string neu = Utf8NachCp1252(leser.Felder()[0]);
    std::string& alt = leser.Felder()[1];
    if (neu.empty() || neu.size() > PunktNummernTyp::kLaenge || alt.empty()) return false;
    return namen.size() < kMaxPunkte && namen.emplace(std::move(neu), std::move(alt)).second;
}

/// @param inhalt UTF-8 or, from old spreadsheets, code page 1252
Namensliste LiesInhalt(std::string inhalt, const std::string& datei, const Meldungsempfaenger& meldung) {
    const bool ascii = std::all_of(inhalt.begin(), inhalt.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
    if (!ascii && !IstUtf8(inhalt)) inhalt = Cp1252NachUtf8(inhalt);
    std::string_view text = inhalt;
    if (text.starts_with(kBytefolge)) text.remove_prefix(kBytefolge.size());
    Satzleser leser(text);
    if (!leser.LiesSatz() || !leser.Heil() || leser.Felder()[0] + ';' + leser.Felder()[1] != kKopf) {
        meldung({"Die langen Punktnamen fehlen", datei, 1, "erwartet ist „" + std::string(kKopf) + "“"});
        return {};
    }
    Namensliste namen;
    std::size_t unlesbare = 0;
    std::int64_t erste = 0;
    while (leser.LiesSatz()) {
        if (leser.Leer() || NimmSatz(leser, namen)) continue;
        if (unlesbare++ == 0) erste = leser.Zeile();
    }
    if (unlesbare > 0) {
        meldung({"Lange Punktnamen: " +
                     (unlesbare == 1 ? "1 Zeile ist" : std::to_string(unlesbare) + " Zeilen sind") +
                     " nicht zu gebrauchen, die übrigen gelten",
                 datei, erste, "erwartet sind eine neue Punktnummer und ein Name"});
    }
    return namen;
}

}  // namespace

std::filesystem::path Namenslistendatei(const std::filesystem::path& steuerdatei) {
    return steuerdatei.parent_path() / TextPfad(PfadText(steuerdatei.stem()) + "_namen.csv");
}

std::string Namenslistentext(std::span<const Namenspaar> paare) {
    std::string text = std::string(kKopf) + '\n';
    for (const Namenspaar& p : paare)
        text += Trennfeld(Cp1252NachUtf8(p.neu)) + kFeldtrenner + Trennfeld(p.alt) + '\n';
    return text;
}

Namensliste LiesNamensliste(const std::filesystem::path& steuerdatei, const Dateien& dateien,
                            const Meldungsempfaenger& meldung) {
    const std::filesystem::path name = Namenslistendatei(steuerdatei);
    const std::string datei = PfadText(name.filename());
    const auto gefunden = dateien.FindeDatei(name.parent_path(), datei);
    if (!gefunden) return {};
    try {
        return LiesInhalt(dateien.LiesDatei(*gefunden, kGroessteListe), datei, meldung);
    } catch (const Fehler& f) {
        meldung({"Die langen Punktnamen fehlen", datei, 0, f.Text()});
    } catch (const std::exception& f) {
        meldung({"Die langen Punktnamen fehlen", datei, 0, Fehlertext(f)});
    }
    return {};
}

}  // namespace zrw
