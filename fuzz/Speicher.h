// The files of one fuzz input: a control file and the two files that it can include, in one run of bytes.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "model/Dateien.h"
#include "model/Fehler.h"

namespace zrw::fuzz {

inline constexpr const char* kSteuerdatei = "NETZ.EIN";

/// Stands between the control file, "A.SF" and "B.KF"; files that are not there are empty.
inline constexpr std::string_view kTrennzeile = "\n%%%%\n";

class Speicher final : public Dateien {
  public:
    explicit Speicher(std::string_view eingabe) {
        for (std::string_view& inhalt : inhalte_) {
            const std::size_t ende = eingabe.find(kTrennzeile);
            inhalt = eingabe.substr(0, ende);
            if (ende == std::string_view::npos) break;
            eingabe.remove_prefix(ende + kTrennzeile.size());
        }
    }

    [[nodiscard]] std::string LiesDatei(const std::filesystem::path& datei,
                                        std::size_t grenze) const override {
        const std::size_t i = Nummer(PfadText(datei));
        if (i == kNamen.size() || inhalte_[i].size() > grenze) throw Fehler("nicht lesbar", PfadText(datei));
        return std::string(inhalte_[i]);
    }
    [[nodiscard]] std::optional<Dateistand> Stand(const std::filesystem::path& /*datei*/) const override {
        return std::nullopt;
    }
    [[nodiscard]] std::unique_ptr<Dateischreiber> BeginneDatei(const std::filesystem::path& datei) override {
        throw Fehler("nur zum Lesen", PfadText(datei));
    }
    void EntferneDatei(const std::filesystem::path& datei) override {
        throw Fehler("nur zum Lesen", PfadText(datei));
    }
    /// Ends the supply after some megabytes: one input may include a file again and again, which is no hang
    /// but would outlast the fuzzer's patience.
    [[nodiscard]] std::optional<std::filesystem::path> FindeDatei(const std::filesystem::path& ordner,
                                                                  const std::string& name) const override {
        std::string gross = name;
        std::transform(gross.begin(), gross.end(), gross.begin(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
        const std::size_t i = Nummer(gross);
        if (i == kNamen.size() || geliefert_ > kVorrat) return std::nullopt;
        geliefert_ += inhalte_[i].size() + 64;
        return ordner / kNamen[i];
    }

  private:
    static constexpr std::array<const char*, 3> kNamen{kSteuerdatei, "A.SF", "B.KF"};
    static constexpr std::size_t kVorrat = std::size_t{2} << 20U;

    [[nodiscard]] static std::size_t Nummer(std::string_view name) {
        return static_cast<std::size_t>(std::find(kNamen.begin(), kNamen.end(), name) - kNamen.begin());
    }

    std::array<std::string_view, 3> inhalte_;
    mutable std::size_t geliefert_ = 0;
};

}  // namespace zrw::fuzz
