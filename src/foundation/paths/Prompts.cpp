#include "foundation/paths/Prompts.h"

#include <iostream>

#include "foundation/Errors.h"

namespace gns {

namespace {

[[noreturn]] void Stop() { throw Xerror_msg("stopped interactively by user."); }

template <typename Answer>
Answer Read_answer() {
  std::cout.flush();
  Answer answer{};
  if (!(std::cin >> answer)) Stop();
  return answer;
}

}  // namespace

char Ask(const std::string& operation, const std::string& finding, std::string_view choices,
         std::string_view keys) {
  std::cout << operation << "():\n"
            << finding << "\nDo you wish to \n"
            << choices << " or stop (any other key)?\n";
  const char key = Read_answer<char>();
  if (keys.find(key) == std::string_view::npos) Stop();
  return key;
}

std::string Ask_name(std::string_view request) {
  std::cout << request << '\n';
  return Read_answer<std::string>();
}

}  // namespace gns
