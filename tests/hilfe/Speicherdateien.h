// The outside world in memory: files and stored settings as maps that a test fills and looks into.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Dateien.h"
#include "model/Einstellungen.h"
#include "model/Fehler.h"

namespace zrw {

/// Behaves as the files of the system do, without folders and with case folded for ASCII letters only.
class Speicherdateien final : public Dateien {
  public:
    std::map<std::string, std::string> dateien;  ///< normal UTF-8 path -> bytes
    std::size_t platz = SIZE_MAX;                ///< bytes that can be written before the disk is full
    mutable int gelesen = 0;                     ///< how often a file was read
    bool eng = false;                            ///< no memory to read a file into

    [[nodiscard]] std::string LiesDatei(const std::filesystem::path& datei,
                                        std::size_t grenze) const override {
        ++gelesen;
        if (eng) throw std::bad_alloc();
        const auto stelle = dateien.find(Schluessel(datei));
        if (stelle == dateien.end()) throw Oeffnungsfehler("nicht vorhanden", PfadText(datei));
        if (stelle->second.size() > grenze) {
            throw Fehler("Die Datei ist mit " + std::to_string(stelle->second.size()) +
                             " Bytes zu groß (höchstens " + std::to_string(grenze) + ").",
                         PfadText(datei));
        }
        return stelle->second;
    }
    [[nodiscard]] std::optional<Dateistand> Stand(const std::filesystem::path& datei) const override {
        const auto stelle = dateien.find(Schluessel(datei));
        if (stelle == dateien.end()) return std::nullopt;
        // The content itself tells one state from another.
        return Dateistand{stelle->second.size(),
                          static_cast<std::int64_t>(std::hash<std::string>()(stelle->second))};
    }
    [[nodiscard]] std::unique_ptr<Dateischreiber> BeginneDatei(const std::filesystem::path& datei) override {
        return std::make_unique<Schreiber>(*this, Schluessel(datei));
    }
    void EntferneDatei(const std::filesystem::path& datei) override { dateien.erase(Schluessel(datei)); }
    [[nodiscard]] std::optional<std::filesystem::path> FindeDatei(const std::filesystem::path& ordner,
                                                                  const std::string& name) const override {
        const std::string genau = Schluessel(ordner / TextPfad(name));
        if (dateien.contains(genau)) return TextPfad(genau);
        // The folder is a real path already; only the name in it may be written in another case.
        const std::string fest = TextPfad(name).is_absolute() ? std::string() : Schluessel(ordner / "");
        for (const auto& [pfad, inhalt] : dateien) {
            if (pfad.starts_with(fest) && Klein(pfad) == Klein(genau)) return TextPfad(pfad);
        }
        return std::nullopt;
    }

  private:
    class Schreiber final : public Dateischreiber {
      public:
        Schreiber(Speicherdateien& dateien, std::string name) : dateien_(dateien), name_(std::move(name)) {}
        void SchreibeBytes(std::string_view bytes) override {
            if (bytes.size() > dateien_.platz)
                throw Fehler("Kann Datei nicht schreiben (Datenträger voll).", name_);
            dateien_.platz -= bytes.size();
            inhalt_ += bytes;
        }
        void SichereDatei() override {}
        void ErsetzeZiel() override { dateien_.dateien[name_] = std::move(inhalt_); }

      private:
        Speicherdateien& dateien_;
        std::string name_;
        std::string inhalt_;
    };

    static std::string Schluessel(const std::filesystem::path& p) {
        const std::u8string name = p.lexically_normal().generic_u8string();
        return {name.begin(), name.end()};
    }
    static std::string Klein(std::string text) {
        for (char& c : text) {
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 0x20);
        }
        return text;
    }
};

class Speichereinstellungen final : public EinstellungsSpeicher {
  public:
    std::map<std::string, std::string, std::less<>> werte;
    std::vector<std::string> geschrieben;  ///< keys in the order of writing

    [[nodiscard]] std::optional<std::string> LiesWert(std::string_view schluessel) const override {
        const auto stelle = werte.find(schluessel);
        return stelle != werte.end() ? std::optional(stelle->second) : std::nullopt;
    }
    void SchreibeWert(std::string_view schluessel, const std::string& text) override {
        werte[std::string(schluessel)] = text;
        geschrieben.emplace_back(schluessel);
    }
};

}  // namespace zrw
