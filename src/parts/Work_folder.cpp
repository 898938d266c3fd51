#include "parts/Work_folder.h"

#include <array>

#include "foundation/io/File_system.h"
#include "foundation/text/Shown_text.h"

namespace gns::parts {

std::string Name_of(Step step) {
  constexpr std::array names = {"plan", "search", "gather", "levels", "finish"};
  return names.at(static_cast<std::size_t>(step));
}

std::string Work_folder::Done(Step step, std::uint64_t part) const {
  std::string name = Name_of(step);
  if (part > 0) name.append(".").append(std::to_string(part));
  return *this / name.append(".done");
}

std::string Work_folder::Command(Step step, std::uint64_t part) const {
  std::string command = "vorlane parts " + Name_of(step);
  if (step == Step::plan) command += " -i ... -o ...";
  command += " --work " + Shell_word(path_);
  if (part > 0) command.append(" --part ").append(std::to_string(part));
  return command;
}

Part_label Work_folder::Label(const std::string& path, Step step, std::uint64_t part) const {
  if (step == Step::plan && path == Graph())
    return {path, "Delete " + Shell_word(path_) +
                      " and the unfinished results, and make the plan again."};
  if (step == Step::plan)
    return {path, "Make the plan again, by the command that has made it: vorlane parts plan ..."};
  return {path, "Make it again: " + Command(step, part)};
}

Mapped_file Mapped_part(const Part_label& label) {
  struct stat status {};
  if (File_system::At_hand().Status(label.name.c_str(), status, 0) != 0 && Leads_nowhere(errno))
    throw Xbad_part(label.name, "is missing", label.cure);
  return Mapped_file(label.name);
}

}  // namespace gns::parts
