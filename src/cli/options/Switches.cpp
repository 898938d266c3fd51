#include "cli/options/Switches.h"

#include "foundation/Errors.h"

namespace gns {

Switches::Switches(const std::vector<std::string>& arguments) { Switches::Construct(arguments); }

Switches::Switches(int argc, const char* const* argv)
    : Switches(std::vector<std::string>(argv, argv + argc)) {}

Switches::~Switches() = default;

std::map<std::string, std::vector<std::string>> Switches::Params() const { return params_; }

std::string Switches::Prog_name() const { return prog_name_; }

void Switches::Construct(const std::vector<std::string>& arguments) {
  if (arguments.empty()) throw Xerror_msg(" program name missing in Switches...\n");
  prog_name_ = arguments.front();
  std::string key = "---noname";
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word.size() > 1 && word.starts_with('-')) {
      key = word;
      params_[key].clear();
    } else {
      params_[key].push_back(word);
    }
  }
}

}  // namespace gns
