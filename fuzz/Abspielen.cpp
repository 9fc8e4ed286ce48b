// Runs a fuzz target over files instead of random bytes: arguments are files or folders. A broken promise
// ends the process; without any input the run fails, so that a lost corpus is noticed.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> SammleDateien(int anzahl, char** namen) {
    std::vector<fs::path> dateien;
    for (int i = 1; i < anzahl; ++i) {
        if (!fs::is_directory(namen[i])) {
            dateien.emplace_back(namen[i]);
            continue;
        }
        for (const fs::directory_entry& e : fs::recursive_directory_iterator(namen[i])) {
            if (e.is_regular_file()) dateien.push_back(e.path());
        }
    }
    return dateien;
}

}  // namespace

int main(int anzahl, char** namen) {
    const std::vector<fs::path> dateien = SammleDateien(anzahl, namen);
    for (const fs::path& datei : dateien) {
        std::ifstream strom(datei, std::ios::binary);
        if (!strom) {
            std::fprintf(stderr, "nicht lesbar: %s\n", datei.string().c_str());
            return 1;
        }
        const std::string text(std::istreambuf_iterator<char>(strom), {});
        const std::vector<std::uint8_t> bytes(text.begin(), text.end());
        std::fprintf(stderr, "%s\n", datei.string().c_str());  // the last line names the culprit
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::printf("%zu Dateien abgespielt\n", dateien.size());
    return dateien.empty() ? 1 : 0;
}
