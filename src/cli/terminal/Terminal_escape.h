#pragma once

#include <ostream>
#include <streambuf>

namespace gns {

/// While it lives, what a stream sends to a terminal is escaped, so that a name or a path can't
/// give the terminal commands. Elsewhere, and in a file, the bytes stay as they are.
class Terminal_escape {
 public:
  /// `descriptor` is where the stream goes.
  Terminal_escape(std::ostream& stream, int descriptor);
  ~Terminal_escape();
  Terminal_escape(const Terminal_escape&) = delete;
  Terminal_escape& operator=(const Terminal_escape&) = delete;

 private:
  /// Hands on what it gets, text by text.
  class Buffer : public std::streambuf {
   public:
    explicit Buffer(std::streambuf* target) : target_(target) {}

   protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override { return target_->pubsync(); }

   private:
    std::streambuf* target_;
  };

  std::ostream& stream_;
  std::streambuf* before_;
  Buffer escaping_;
};

}  // namespace gns
