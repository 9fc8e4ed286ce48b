// Compresses what is written to it (deflate with the frame of zlib, RFC 1950), piece by piece.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "model/Dateien.h"

struct z_stream_s;

namespace zrw {

/// A file within another one: `SichereDatei` ends it, and it has no place of its own to take.
class Verdichter final : public Dateischreiber {
  public:
    /// @param nimm gets the compressed pieces
    explicit Verdichter(std::function<void(std::string_view)> nimm);
    void SchreibeBytes(std::string_view bytes) override;
    void SichereDatei() override;
    void ErsetzeZiel() override {}

  private:
    struct Ende {
        void operator()(z_stream_s* strom) const;
    };
    void VerdichteVorrat(int art);

    std::function<void(std::string_view)> nimm_;
    std::unique_ptr<z_stream_s, Ende> strom_;
};

}  // namespace zrw
