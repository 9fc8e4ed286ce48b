// Where the settings of one user are kept: the registry on Windows, the file ZRWINI.ini elsewhere.
#pragma once

#include <QSettings>
#include <filesystem>
#include <memory>
#include <optional>

#include "model/Einstellungen.h"
#include "ui/ablage/Inidatei.h"

namespace zrw {

class Einstellungsablage final : public EinstellungsSpeicher {
  public:
    /// The user's own store.
    Einstellungsablage();
    /// Another INI file of the same layout.
    explicit Einstellungsablage(const QString& inidatei);

    [[nodiscard]] std::optional<std::string> LiesWert(std::string_view schluessel) const override;
    void SchreibeWert(std::string_view schluessel, const std::string& text) override;
    void SichereWerte() override;

    /// Why the stored settings could not be read; there are none then.
    [[nodiscard]] std::optional<Fehler> Lesefehler() const;

  private:
    std::unique_ptr<QSettings> registry_;  ///< one of the two
    std::optional<Inidatei> datei_;
};

/// Folder of the result tables as the user set it under the name "TAVELIN", in the environment or among the
/// settings; none where it is not set.
[[nodiscard]] std::optional<std::filesystem::path> TavelinOrdner(const EinstellungsSpeicher& ablage);

}  // namespace zrw
