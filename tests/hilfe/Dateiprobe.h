// Files of a test in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "input/Systemdateien.h"
#include "model/Fehler.h"

namespace zrw {

class Systemdatei : public testing::Test {
  protected:
    Systemdatei() {
        ordner = std::filesystem::temp_directory_path() / ("zrw-" + std::to_string(std::random_device()()));
        std::filesystem::remove_all(ordner);
        std::filesystem::create_directories(ordner / TextPfad("UnterÄ") / "Tief");
    }
    ~Systemdatei() override { std::filesystem::remove_all(ordner); }

    void LegeDateiAn(std::string_view name, const std::string& inhalt) const {
        std::ofstream(ordner / TextPfad(name), std::ios::binary) << inhalt;
    }
    [[nodiscard]] std::string Inhalt(const std::filesystem::path& name) const {
        std::ifstream s(ordner / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(s), {}};
    }
    [[nodiscard]] std::string FehlerBei(const std::filesystem::path& name, std::size_t grenze = 1000) const {
        try {
            (void)dateien.LiesDatei(ordner / name, grenze);
        } catch (const Fehler& f) {
            return f.Text();
        }
        return "kein Fehler";
    }

    std::filesystem::path ordner;
    Systemdateien dateien;
};

}  // namespace zrw
