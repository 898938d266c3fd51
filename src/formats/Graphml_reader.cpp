#include "formats/Graphml_reader.h"

#ifdef VORLANE_EXPAT
#include <expat.h>

#include <exception>
#include <limits>
#include <memory>
#include <new>

#include "control/Run_control.h"
#include "formats/Graphml_content.h"
#else
#include "foundation/Errors.h"
#endif

namespace gns {

#ifdef VORLANE_EXPAT

namespace {

/// Feeds the parser and hands on what it tells. Nothing may be thrown through its code: what the
/// content throws is kept, and thrown behind it.
class Graphml_parser {
 public:
  Graphml_parser(const std::string& file, Graphml_content& content)
      : file_(file), content_(content), parser_(XML_ParserCreate(nullptr), XML_ParserFree) {
    if (parser_ == nullptr) throw std::bad_alloc();
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), Begin, End);
    XML_SetCharacterDataHandler(parser_.get(), Text);
    XML_SetEntityDeclHandler(parser_.get(), Entity);
  }

  void Parse_all(Line_reader& reader) {
    for (bool more = true; more;) {
      external_control::Check_inside_long_stage();
      more = !reader.Peek(1).empty();
      constexpr std::size_t most = std::numeric_limits<int>::max();
      const std::string_view held = reader.Held().substr(0, most);
      const XML_Status status =
          XML_Parse(parser_.get(), held.data(), static_cast<int>(held.size()), more ? 0 : 1);
      if (failure_ != nullptr) std::rethrow_exception(failure_);
      if (status != XML_STATUS_OK) Refuse_syntax();
      reader.Take(held.size(), 0);
    }
  }

 private:
  static Graphml_parser& Of(void* user_data) { return *static_cast<Graphml_parser*>(user_data); }

  /// The name of an element without the prefix of its namespace.
  static std::string_view Bare(const char* element) {
    const std::string_view name = element;
    return name.substr(name.find(':') + 1);
  }

  [[nodiscard]] Field_place Place() const {
    return {XML_GetCurrentLineNumber(parser_.get()), XML_GetCurrentColumnNumber(parser_.get()) + 1};
  }

  template <typename Work>
  void Keep_failure(Work work) {
    if (failure_ != nullptr) return;
    try {
      work();
    } catch (...) {
      failure_ = std::current_exception();
      XML_StopParser(parser_.get(), XML_FALSE);
    }
  }

  static void Begin(void* user_data, const char* element, const char** attributes) {
    Graphml_parser& self = Of(user_data);
    self.Keep_failure([&] { self.content_.Begin(Bare(element), attributes, self.Place()); });
  }
  static void End(void* user_data, const char* element) {
    Graphml_parser& self = Of(user_data);
    self.Keep_failure([&] { self.content_.End(Bare(element)); });
  }
  static void Text(void* user_data, const char* text, int size) {
    Graphml_parser& self = Of(user_data);
    self.Keep_failure([&] { self.content_.Take_text({text, static_cast<std::size_t>(size)}); });
  }
  /// A few of them, each made of the one before, can stand for more text than any memory holds.
  static void Entity(void* user_data, const char* name, int /*is_parameter*/, const char* /*value*/,
                     int /*size*/, const char* /*base*/, const char* /*system_id*/,
                     const char* /*public_id*/, const char* /*notation*/) {
    Graphml_parser& self = Of(user_data);
    self.Keep_failure([&] {
      Refuse_field(self.file_, self.Place(),
                   {"no entity of the file's own", name, "Write its text where it is used."});
    });
  }

  [[noreturn]] void Refuse_syntax() const {
    const XML_Error error = XML_GetErrorCode(parser_.get());
    if (error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    Refuse_field(
        file_, Place(),
        {"XML", XML_ErrorString(error), "Some program left the file unfinished or damaged."});
  }

  const std::string& file_;
  Graphml_content& content_;
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_;
  std::exception_ptr failure_;
};

}  // namespace

void Read_graphml(Line_reader& reader, const Input_wishes& wishes, Name_rule& names,
                  const std::string& file, Link_file_check& check, Link_intake& intake) {
  Graphml_content content(file, intake.Is_weighted());
  Graphml_parser(file, content).Parse_all(reader);
  if (content.has_directed || content.has_undirected)
    Check_direction(content.has_directed, wishes.directed, content.first_edge_line, check);
  content.links.Hand_over(intake.Is_weighted(), names, check, intake);
}

#else

void Read_graphml(Line_reader& /*reader*/, const Input_wishes& /*wishes*/, Name_rule& /*names*/,
                  const std::string& file, Link_file_check& /*check*/, Link_intake& /*intake*/) {
  throw Xerror_msg("ERROR: '" + file + "' can't be read, as this program was built without " +
                   "expat, which GraphML needs:\n build it with libexpat, or save the network as " +
                   "csv.\n");
}

#endif

}  // namespace gns
