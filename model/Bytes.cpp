#include "model/Bytes.h"

namespace zrw {

void ByteSchreiber::VergroesserePuffer(std::size_t bytes) {
    puffer_.resize(2 * puffer_.size() + bytes + 256);
}

}  // namespace zrw
