// Saves settings as the dialog of the program does, so that a test can disturb it.
// usage: einstellungen_sichern 1|2 [TIMES]     two sets that differ in every value, in turn where more than
// once
#include <QCoreApplication>
#include <cstdio>
#include <exception>
#include <string>
#include <utility>

#include "model/Einstellungen.h"
#include "ui/ablage/Einstellungsablage.h"

namespace {

/// Hands out one number for every key.
class Gleichwert final : public zrw::EinstellungsSpeicher {
  public:
    explicit Gleichwert(std::string wert) : wert_(std::move(wert)) {}
    [[nodiscard]] std::optional<std::string> LiesWert(std::string_view /*schluessel*/) const override {
        return wert_;
    }
    void SchreibeWert(std::string_view /*schluessel*/, const std::string& /*text*/) override {}

  private:
    std::string wert_;
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication anwendung(argc, argv);
    try {
        bool erster = argc < 2 || std::string(argv[1]) == "1";
        for (int mal = argc > 2 ? std::stoi(argv[2]) : 1; mal > 0; --mal, erster = !erster) {
            zrw::Einstellungen einstellungen;
            zrw::LoadSettings(einstellungen, Gleichwert(erster ? "1" : "2"));
            zrw::Einstellungsablage ablage;
            zrw::SaveSettings(einstellungen, ablage);
            ablage.SichereWerte();
        }
        return 0;
    } catch (const std::exception& f) {
        std::fprintf(stderr, "%s\n", f.what());
        return 1;
    }
}
