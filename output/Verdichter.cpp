#include "output/Verdichter.h"

#define ZLIB_CONST
#include <zlib.h>

#include <array>
#include <limits>
#include <new>
#include <utility>

namespace zrw {

void Verdichter::Ende::operator()(z_stream_s* strom) const {
    deflateEnd(strom);
    delete strom;
}

Verdichter::Verdichter(std::function<void(std::string_view)> nimm)
    : nimm_(std::move(nimm)), strom_(new z_stream_s{}) {
    if (deflateInit(strom_.get(), Z_DEFAULT_COMPRESSION) != Z_OK) throw std::bad_alloc();
}

void Verdichter::VerdichteVorrat(int art) {
    std::array<unsigned char, std::size_t{1} << 14U> stueck{};
    do {
        strom_->next_out = stueck.data();
        strom_->avail_out = static_cast<uInt>(stueck.size());
        deflate(strom_.get(), art);
        // Bytes are bytes, whatever sign a library gives them.
        nimm_({reinterpret_cast<const char*>(stueck.data()), stueck.size() - strom_->avail_out});
    } while (strom_->avail_out == 0);
}

void Verdichter::SchreibeBytes(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::string_view teil = bytes.substr(0, std::numeric_limits<uInt>::max());
        strom_->next_in = reinterpret_cast<const Bytef*>(teil.data());
        strom_->avail_in = static_cast<uInt>(teil.size());
        VerdichteVorrat(Z_NO_FLUSH);
        bytes.remove_prefix(teil.size());
    }
}

void Verdichter::SichereDatei() {
    strom_->avail_in = 0;
    VerdichteVorrat(Z_FINISH);
}

}  // namespace zrw
