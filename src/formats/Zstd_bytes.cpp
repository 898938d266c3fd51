#include "formats/Zstd_bytes.h"

#ifdef VORLANE_ZSTD
#include <zstd.h>

#include <new>
#include <utility>

#include "formats/Packed_bytes.h"
#else
#include "input/Link_file_kind.h"
#endif

namespace gns {

#ifdef VORLANE_ZSTD

namespace {

class Frames final : public Packed_bytes {
 public:
  Frames(std::unique_ptr<Line_reader> packed, const std::string& file)
      : Packed_bytes(std::move(packed), file, "zstd"), stream_(ZSTD_createDStream()) {
    if (stream_ == nullptr) throw std::bad_alloc();
  }
  ~Frames() override { ZSTD_freeDStream(stream_); }

 private:
  Step Unpack(std::string_view packed, char* buffer, std::size_t size) override {
    ZSTD_inBuffer in = {packed.data(), packed.size(), 0};
    ZSTD_outBuffer out = {buffer, size, 0};
    const std::size_t left = ZSTD_decompressStream(stream_, &out, &in);
    if (ZSTD_isError(left) != 0)
      Refuse(std::string("can't be unpacked (") + ZSTD_getErrorName(left) + ")");
    return {in.pos, out.pos, left == 0};
  }

  ZSTD_DStream* stream_;
};

}  // namespace

std::unique_ptr<Byte_source> Zstd_bytes(std::unique_ptr<Line_reader> packed,
                                        const std::string& file) {
  return std::make_unique<Frames>(std::move(packed), file);
}

#else

std::unique_ptr<Byte_source> Zstd_bytes(std::unique_ptr<Line_reader> /*packed*/,
                                        const std::string& file) {
  throw Xno_link_file(file, "a zstd file, and this program was built without libzstd", "zstdcat");
}

#endif

}  // namespace gns
