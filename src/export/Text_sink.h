#pragma once

#include <concepts>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "foundation/text/Csv_text.h"
#include "foundation/text/Json_text.h"
#include "foundation/text/Number_text.h"
#include "foundation/text/Xml_text.h"

namespace vorlane::exporting {

/// Names, as a format holds them: a value of XML, a string of JSON with its quotes, a field of a
/// table.
struct In_xml {
  std::string_view name;
};
struct In_json {
  std::string_view name;
};
struct In_csv {
  std::string_view name;
  char separator;
};

/// Takes the text of an export, piece by piece, and hands it on in blocks.
class Text_sink {
 public:
  Text_sink() { text_.reserve(2 * block); }
  Text_sink(const Text_sink&) = delete;
  Text_sink& operator=(const Text_sink&) = delete;
  virtual ~Text_sink() = default;

  Text_sink& operator<<(std::string_view text) {
    text_.append(text);
    if (text_.size() >= block) Hand_on();
    return *this;
  }
  Text_sink& operator<<(char c) {
    text_ += c;
    return *this;
  }
  template <typename Number>
  requires std::integral<Number> || std::floating_point<Number> Text_sink& operator<<(
      Number number) {
    gns::Append_number(number, text_);
    return *this;
  }
  Text_sink& operator<<(In_xml field) {
    changed_names_ += gns::Append_xml(field.name, text_) ? 0 : 1;
    return *this;
  }
  Text_sink& operator<<(In_json field) {
    changed_names_ += gns::Append_json(field.name, text_) ? 0 : 1;
    return *this;
  }
  Text_sink& operator<<(In_csv field) {
    gns::Append_csv(field.name, field.separator, text_);
    return *this;
  }

  /// To be called at the end.
  void Hand_on() {
    Take(text_);
    text_.clear();
  }

  /// How many times a name was written with characters that the format can't hold replaced.
  [[nodiscard]] std::size_t Changed_names() const { return changed_names_; }

 protected:
  virtual void Take(std::string_view text) = 0;

 private:
  static constexpr std::size_t block = std::size_t{1} << 16U;

  std::string text_;  ///< not handed on yet
  std::size_t changed_names_ = 0;
};

/// Hands on to a stream.
class Stream_sink : public Text_sink {
 public:
  explicit Stream_sink(std::ostream& stream) : stream_(stream) {}

 protected:
  void Take(std::string_view text) override {
    stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
  }

 private:
  std::ostream& stream_;
};

}  // namespace vorlane::exporting
