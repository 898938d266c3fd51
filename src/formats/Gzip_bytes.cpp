#include "formats/Gzip_bytes.h"

#ifdef VORLANE_ZLIB
#include <zlib.h>

#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "formats/Packed_bytes.h"
#else
#include "input/Link_file_kind.h"
#endif

namespace gns {

#ifdef VORLANE_ZLIB

namespace {

class Members final : public Packed_bytes {
 public:
  Members(std::unique_ptr<Line_reader> packed, const std::string& file)
      : Packed_bytes(std::move(packed), file, "gzip") {
    constexpr int gzip_alone = 16 + MAX_WBITS;
    if (inflateInit2(&stream_, gzip_alone) != Z_OK) throw std::bad_alloc();
  }
  ~Members() override { inflateEnd(&stream_); }

 private:
  Step Unpack(std::string_view packed, char* buffer, std::size_t size) override {
    // Zeros between or behind members fill blocks of a tape.
    if (!in_member_ && !packed.empty() && packed.front() == '\0')
      return {std::min(packed.find_first_not_of('\0'), packed.size()), 0, true};
    constexpr std::size_t most = std::numeric_limits<uInt>::max();
    stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream_.avail_in = static_cast<uInt>(std::min(packed.size(), most));
    stream_.next_out = reinterpret_cast<Bytef*>(buffer);
    stream_.avail_out = static_cast<uInt>(std::min(size, most));
    in_member_ = true;
    const int code = inflate(&stream_, Z_NO_FLUSH);
    if (code == Z_MEM_ERROR) throw std::bad_alloc();
    if (code != Z_OK && code != Z_STREAM_END && code != Z_BUF_ERROR) Refuse("is damaged");
    if (code == Z_STREAM_END) {
      in_member_ = false;
      inflateReset(&stream_);
    }
    return {static_cast<std::size_t>(reinterpret_cast<char*>(stream_.next_in) - packed.data()),
            static_cast<std::size_t>(reinterpret_cast<char*>(stream_.next_out) - buffer),
            !in_member_};
  }

  z_stream stream_ = {};
  bool in_member_ = false;
};

}  // namespace

std::unique_ptr<Byte_source> Gzip_bytes(std::unique_ptr<Line_reader> packed,
                                        const std::string& file) {
  return std::make_unique<Members>(std::move(packed), file);
}

#else

std::unique_ptr<Byte_source> Gzip_bytes(std::unique_ptr<Line_reader> /*packed*/,
                                        const std::string& file) {
  throw Xno_link_file(file, "a gzip file, and this program was built without zlib", "zcat");
}

#endif

}  // namespace gns
