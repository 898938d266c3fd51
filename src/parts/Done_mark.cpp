#include "parts/Done_mark.h"

#include <sstream>

#include "foundation/io/File_system.h"
#include "parts/Part_reader.h"
#include "parts/Part_writer.h"

namespace gns::parts {

namespace {

enum Section : std::size_t { names, sizes, figures };

/// The number of values, and then each with its count.
void Append(std::vector<std::uint32_t>& numbers, const Distribution& distribution) {
  numbers.push_back(static_cast<std::uint32_t>(distribution.size()));
  for (const auto& [value, count] : distribution) {
    numbers.push_back(value);
    numbers.push_back(count);
  }
}

std::vector<std::uint32_t> Numbers_of(const std::vector<K_summary>& levels) {
  std::vector<std::uint32_t> numbers;
  for (const K_summary& level : levels) {
    numbers.push_back(level.k);
    const Distributions& all = level.statistics.all;
    for (const Distribution* const one : {&all.membership, &all.size, &all.overlap, &all.degree})
      Append(numbers, *one);
  }
  return numbers;
}

/// Reads what Numbers_of() has put together.
class Figures_in {
 public:
  explicit Figures_in(const Part_reader& reader)
      : reader_(reader), left_(reader.Section<std::uint32_t>(figures)) {}

  std::vector<K_summary> Levels() {
    std::vector<K_summary> levels;
    while (!left_.empty()) {
      K_summary& level = levels.emplace_back();
      level.k = Next();
      Distributions& all = level.statistics.all;
      for (Distribution* const one : {&all.membership, &all.size, &all.overlap, &all.degree})
        for (std::uint32_t values = Next(); values > 0; --values) {
          const std::uint32_t value = Next();
          (*one)[value] = Next();
        }
    }
    return levels;
  }

 private:
  std::uint32_t Next() {
    if (left_.empty()) reader_.Refuse_damaged();
    const std::uint32_t number = left_.front();
    left_ = left_.subspan(1);
    return number;
  }

  const Part_reader& reader_;
  std::span<const std::uint32_t> left_;
};

std::vector<Results_file> Files_listed(const Part_reader& reader) {
  std::vector<Results_file> files;
  std::istringstream lines(reader.Text(names));
  const auto bytes = reader.Section<std::uint64_t>(sizes);
  for (std::string name; std::getline(lines, name);) {
    if (files.size() == bytes.size()) reader.Refuse_damaged();
    files.push_back({name, bytes[files.size()]});
  }
  return files;
}

bool Is_there(const std::string& output_dir, const Results_file& file) {
  struct stat status {};
  const std::string path = output_dir + "/" + file.name;
  return File_system::At_hand().Status(path.c_str(), status, 0) == 0 &&
         static_cast<std::uint64_t>(status.st_size) == file.bytes;
}

}  // namespace

void Write_done_mark(File_aside& mark, const Done_key& key, const Done_work& work) {
  Part_writer writer([&](auto bytes) { mark.Write(bytes); },
                     {Part_kind::done, key.fingerprint, key.part});
  std::string all_names;
  std::vector<std::uint64_t> all_sizes;
  for (const Results_file& one : work.files) {
    all_names += one.name + "\n";
    all_sizes.push_back(one.bytes);
  }
  writer.Add(all_names);
  writer.Add(std::span<const std::uint64_t>(all_sizes));
  writer.Add(std::span<const std::uint32_t>(Numbers_of(work.levels)));
  writer.End();
  mark.Finish();
}

Done_work Read_done_mark(const Work_folder& folder, const Done_key& key,
                         const std::string& output_dir) {
  const std::string path = folder.Done(key.step, key.part);
  const Part_label label = folder.Label(path, key.step, key.part);
  const Mapped_file file = Mapped_part(label);
  const Part_reader reader(file.Bytes(), {Part_kind::done, key.fingerprint, key.part}, label);
  Done_work work = {Files_listed(reader), Figures_in(reader).Levels()};
  for (const Results_file& one : work.files)
    if (!Is_there(output_dir, one))
      throw Xbad_part(output_dir + "/" + one.name, "is missing, or isn't what was written",
                      label.cure);
  return work;
}

std::optional<Done_work> Done_work_of(const Work_folder& folder, const Done_key& key,
                                      const std::string& output_dir) {
  try {
    return Read_done_mark(folder, key, output_dir);
  } catch (const Xbad_part&) {
    return std::nullopt;
  }
}

}  // namespace gns::parts
