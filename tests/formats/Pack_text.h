#pragma once

#include <string>

#ifdef VORLANE_ZLIB
#include <zlib.h>
#endif
#ifdef VORLANE_ZSTD
#include <zstd.h>
#endif

namespace gns {

/// Texts, packed as the libraries that are at hand do it.
#ifdef VORLANE_ZLIB
inline std::string Gzip(const std::string& text) {
  z_stream stream = {};
  deflateInit2(&stream, 1, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
  std::string packed(deflateBound(&stream, text.size()), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}
#endif

#ifdef VORLANE_ZSTD
inline std::string Zstd(const std::string& text) {
  std::string packed(ZSTD_compressBound(text.size()), '\0');
  packed.resize(ZSTD_compress(packed.data(), packed.size(), text.data(), text.size(), 1));
  return packed;
}
#endif

}  // namespace gns
