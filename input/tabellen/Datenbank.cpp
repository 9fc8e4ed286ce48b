#include "input/tabellen/Datenbank.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <utility>

#include "model/Fehler.h"

namespace zrw {
namespace {

std::string Namen(std::string_view name) {
    std::string text = "\"";
    for (const char c : name) {
        text += c;
        if (c == '"') text += c;
    }
    return text + "\"";
}

bool GleicherName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

/// Undoes what has been done in its scope unless it is told to keep it.
class Vorgang {
  public:
    explicit Vorgang(sqlite3* datenbank) : datenbank_(datenbank) {
        sqlite3_exec(datenbank_, "BEGIN", nullptr, nullptr, nullptr);
    }
    ~Vorgang() {
        if (datenbank_ != nullptr) sqlite3_exec(datenbank_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
    Vorgang(const Vorgang&) = delete;
    Vorgang& operator=(const Vorgang&) = delete;
    void BehalteVorgang() {
        sqlite3_exec(std::exchange(datenbank_, nullptr), "COMMIT", nullptr, nullptr, nullptr);
    }

  private:
    sqlite3* datenbank_;
};

}  // namespace

class Datenbank::Anweisung {
  public:
    Anweisung(const Datenbank& d, std::string_view text) : datenbank_(d) {
        if (sqlite3_prepare_v2(d.datenbank_.get(), text.data(), static_cast<int>(text.size()), &anweisung_,
                               nullptr) != SQLITE_OK) {
            d.WirfFehler();
        }
    }
    ~Anweisung() { sqlite3_finalize(anweisung_); }
    Anweisung(const Anweisung&) = delete;
    Anweisung& operator=(const Anweisung&) = delete;

    [[nodiscard]] sqlite3_stmt* operator*() const { return anweisung_; }
    /// @return whether there is a row
    bool Schritt() {
        const int ergebnis = sqlite3_step(anweisung_);
        if (ergebnis != SQLITE_ROW && ergebnis != SQLITE_DONE) datenbank_.WirfFehler();
        return ergebnis == SQLITE_ROW;
    }
    void BindeWert(int stelle, const paradox::Wert& wert) {
        if (const auto* ganz = std::get_if<std::int64_t>(&wert)) {
            sqlite3_bind_int64(anweisung_, stelle, *ganz);
        } else if (const auto* real = std::get_if<double>(&wert)) {
            sqlite3_bind_double(anweisung_, stelle, *real);
        } else if (const auto* flag = std::get_if<bool>(&wert)) {
            sqlite3_bind_int(anweisung_, stelle, *flag ? 1 : 0);
        } else if (const auto* text = std::get_if<std::string_view>(&wert)) {
            // The text lives as long as the row is being inserted.
            sqlite3_bind_text64(anweisung_, stelle, text->data(), text->size(), SQLITE_STATIC, SQLITE_UTF8);
        } else {
            sqlite3_bind_null(anweisung_, stelle);
        }
    }
    [[nodiscard]] Zelle Wert(int spalte) const {
        switch (sqlite3_column_type(anweisung_, spalte)) {
            case SQLITE_INTEGER:
                return std::int64_t{sqlite3_column_int64(anweisung_, spalte)};
            case SQLITE_FLOAT:
                return sqlite3_column_double(anweisung_, spalte);
            case SQLITE_TEXT: {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(anweisung_, spalte));
                return std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(anweisung_, spalte)));
            }
            default:
                return {};
        }
    }

  private:
    const Datenbank& datenbank_;
    sqlite3_stmt* anweisung_ = nullptr;
};

void Datenbank::Schliesser::operator()(sqlite3* datenbank) const {
    sqlite3_close(datenbank);
}

Datenbank::Datenbank() {
    sqlite3* neu = nullptr;
    const int ergebnis = sqlite3_open(":memory:", &neu);
    datenbank_.reset(neu);
    if (ergebnis != SQLITE_OK) WirfFehler();
}

Datenbank::~Datenbank() = default;

void Datenbank::WirfFehler() const {
    const std::string grund =
        datenbank_ != nullptr ? sqlite3_errmsg(datenbank_.get()) : "Der Speicher reicht nicht.";
    // What users meet: the other program wrote a table without a field that is asked for.
    constexpr std::string_view kKeinFeld = "no such column: ";
    if (grund.starts_with(kKeinFeld))
        throw Fehler("In der Tabelle fehlt das Feld " + grund.substr(kKeinFeld.size()) +
                     ". Bitte die Ausgleichung noch einmal rechnen.");
    throw Fehler("Die Ergebnisse lassen sich nicht abfragen: " + grund);
}

void Datenbank::FuehreAnweisungAus(const std::string& anweisung) const {
    if (sqlite3_exec(datenbank_.get(), anweisung.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        WirfFehler();
}

void Datenbank::EntferneTabelle(std::string_view name) {
    FuehreAnweisungAus("DROP TABLE IF EXISTS " + Namen(name));
}

void Datenbank::ErsetzeTabelle(std::string_view name, std::span<const std::string> spalten,
                               std::span<const std::string_view> verzeichnisse,
                               const std::function<void(const Zeilenziel&)>& fuelle) {
    std::vector<std::size_t> behalten;
    std::string felder;
    std::string platzhalter;
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        const auto gleich = [&](std::size_t j) { return GleicherName(spalten[j], spalten[i]); };
        if (spalten[i].empty() || std::any_of(behalten.begin(), behalten.end(), gleich)) continue;
        behalten.push_back(i);
        felder += (felder.empty() ? "" : ",") + Namen(spalten[i]);
        platzhalter += platzhalter.empty() ? "?" : ",?";
    }
    if (behalten.empty()) throw Fehler("Die Tabelle hat kein Feld mit einem Namen.");
    Vorgang vorgang(datenbank_.get());
    EntferneTabelle(name);
    FuehreAnweisungAus("CREATE TABLE " + Namen(name) + "(" + felder + ")");
    {
        Anweisung einfuegen(*this, "INSERT INTO " + Namen(name) + " VALUES(" + platzhalter + ")");
        fuelle([&](std::span<const paradox::Wert> zeile) {
            for (std::size_t i = 0; i < behalten.size(); ++i)
                einfuegen.BindeWert(static_cast<int>(i) + 1, zeile[behalten[i]]);
            einfuegen.Schritt();
            sqlite3_reset(*einfuegen);
        });
    }
    for (const std::string_view spalte : verzeichnisse) {
        if (std::any_of(spalten.begin(), spalten.end(),
                        [&](const std::string& s) { return GleicherName(s, spalte); })) {
            FuehreAnweisungAus("CREATE INDEX " + Namen(std::string(name) + "_" + std::string(spalte)) +
                               " ON " + Namen(name) + "(" + Namen(spalte) + ")");
        }
    }
    vorgang.BehalteVorgang();
}

void Datenbank::FuerJedeZeile(std::string_view abfrage,
                              const std::function<void(std::span<const Zelle>)>& tun) const {
    Anweisung anweisung(*this, abfrage);
    std::vector<Zelle> zeile(static_cast<std::size_t>(sqlite3_column_count(*anweisung)));
    while (anweisung.Schritt()) {
        for (std::size_t i = 0; i < zeile.size(); ++i)
            zeile[i] = anweisung.Wert(static_cast<int>(i));
        tun(zeile);
    }
}

Antwort Datenbank::StelleAbfrage(std::string_view abfrage) const {
    Antwort antwort;
    {
        const Anweisung anweisung(*this, abfrage);
        const int spalten = sqlite3_column_count(*anweisung);
        for (int i = 0; i < spalten; ++i)
            antwort.spalten.emplace_back(sqlite3_column_name(*anweisung, i));
    }
    FuerJedeZeile(abfrage, [&](std::span<const Zelle> zeile) {
        antwort.zeilen.emplace_back(zeile.begin(), zeile.end());
    });
    return antwort;
}

}  // namespace zrw
