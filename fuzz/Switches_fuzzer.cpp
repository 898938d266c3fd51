// Command lines, one word on a line. What the switches hold is compared with a plain reading: the
// word behind the last place where a switch stands.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "Reader_input.h"
#include "cli/options/Parameters.h"
#include "cli/options/Switches.h"

namespace {

using Words = std::vector<std::string>;

constexpr const char* unknown = "unknown parameter in parameter list! (Check_keys()).\n";

bool Is_switch(const std::string& word) { return word.size() > 1 && word[0] == '-'; }

std::string Number(double value) {
  std::ostringstream text;
  text.precision(17);
  text << value;
  return text.str();
}

/// Numbers are compared if they are written in the plainest way.
bool Is_plain_number(const std::string& word) {
  return !word.empty() && word.size() < 10 &&
         word.find_first_not_of("0123456789") == std::string::npos;
}

class Plain_reading {
 public:
  explicit Plain_reading(const Words& words) : words_(words) {}

  [[nodiscard]] bool Known() const {
    const std::string known = " -h -i -w -W -o -d -t -D -I -k -U ";
    return (words_.empty() || Is_switch(words_[0])) &&
           std::ranges::all_of(words_, [&](const std::string& word) {
             return !Is_switch(word) || (word.size() == 2 && word[1] != ' ' &&
                                         known.find(' ' + word + ' ') != std::string::npos);
           });
  }
  [[nodiscard]] bool Has(const std::string& name) const {
    return std::ranges::find(words_, name) != words_.end();
  }
  /// The word behind the switch; the text that was given if there is none.
  [[nodiscard]] std::string Text(const std::string& name, const std::string& otherwise) const {
    const auto last = std::find(words_.rbegin(), words_.rend(), name).base();
    return last == words_.begin() || last == words_.end() || Is_switch(*last) ? otherwise : *last;
  }
  /// The same for a number; what was read is taken over where the word isn't a plain one.
  [[nodiscard]] double Value(const std::string& name, double read) const {
    const std::string text = Text(name, "");
    return Is_plain_number(text) ? std::stod(text) : read;
  }

 private:
  const Words& words_;
};

Words Lines_of(const std::string& bytes) {
  Words lines;
  std::istringstream stream(bytes);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Words words = Lines_of({data, data + size});
  Words arguments = words;
  arguments.insert(arguments.begin(), "vorlane");
  gns::Switch_values v;
  gns::Examin_params(gns::Switch_map(gns::Switches(arguments).Params()), v);
  if (v.error == v.errors.empty()) Expect_same("told without an error", v.errors);

  const Plain_reading plain(words);
  if (!plain.Known()) {
    Expect_same(v.errors, unknown);
    return 0;
  }
  std::ostringstream read;
  std::ostringstream expected;
  read << v.help << v.use_input_file << v.use_lower_threshold << v.use_upper_threshold
       << v.use_output_dir << v.use_digits << v.use_time_limit << v.directed << v.use_intensity
       << v.use_single_k << v.undirected_declared << ' ' << v.input_file << ' ' << v.output_dir;
  for (const char* name : {"-h", "-i", "-w", "-W", "-o", "-d", "-t", "-D", "-I", "-k", "-U"})
    expected << plain.Has(name);
  expected << ' ' << plain.Text("-i", "") << ' ' << plain.Text("-o", "");
  const auto compare = [&](const char* name, double value) {
    read << ' ' << Number(value);
    expected << ' ' << Number(plain.Value(name, value));
  };
  compare("-w", v.lower_threshold);
  compare("-W", v.upper_threshold);
  compare("-t", v.time_limit);
  compare("-I", v.intensity_threshold);
  compare("-k", v.single_k);
  Expect_same(read.str(), expected.str());
  return 0;
}
