#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands/Answers.h"
#include "foundation/Errors.h"
#include "foundation/text/Json_text.h"
#include "vorlane/results.h"

namespace gns {

namespace {

using vorlane::Place;
using vorlane::Results;

/// "4:0:2" as numbers, as many as are asked for.
std::vector<std::uint32_t> Numbers(const std::string& text, std::size_t count) {
  std::vector<std::uint32_t> numbers;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at <= end) {
    std::uint32_t number = 0;
    const auto read = std::from_chars(at, end, number);
    if (read.ec != std::errc() || (read.ptr != end && *read.ptr != ':')) break;
    numbers.push_back(number);
    at = read.ptr + 1;
  }
  if (numbers.size() != count || at != end + 1)
    throw Xerror_msg("'" + text + "' is not of the form " + (count == 2 ? "K:I" : "K:I:J") +
                     ", such as " + (count == 2 ? "4:0" : "4:0:2") + ".\n");
  return numbers;
}

std::string In_json(const std::vector<std::string>& names) {
  Json_list list(Json_list::Kind::array);
  for (const std::string& name : names) list.Add(Json_string(name));
  return list.Text();
}

void Tell_community(const Results& results, const Word_line& line, std::ostream& out) {
  const auto numbers = Numbers(line.options.find("--community")->second, 2);
  const std::vector<std::string> names = results.Names_in({numbers[0], numbers[1]});
  Json_list overlaps(Json_list::Kind::array);
  std::string in_words;
  for (const vorlane::Overlap& overlap : results.Overlaps_at(numbers[0])) {
    if (overlap.first != numbers[1] && overlap.second != numbers[1]) continue;
    const auto other = overlap.first == numbers[1] ? overlap.second : overlap.first;
    const std::string shared = std::to_string(overlap.shared);
    overlaps.Add(Json_list(Json_list::Kind::object)
                     .Add("community", std::to_string(other))
                     .Add("shared", shared)
                     .Text());
    in_words += "shares " + shared + " with community " + std::to_string(other) + "\n";
  }
  if (line.Has("--json")) {
    Json_list json(Json_list::Kind::object);
    json.Add("k", std::to_string(numbers[0]));
    json.Add("community", std::to_string(numbers[1]));
    json.Add("nodes", In_json(names));
    json.Add("overlaps", overlaps.Text());
    out << json.Text() << "\n";
    return;
  }
  for (const std::string& name : names) out << name << "\n";
  if (!in_words.empty()) out << "\n" << in_words;
}

void Tell_overlap(const Results& results, const Word_line& line, std::ostream& out) {
  const auto numbers = Numbers(line.options.find("--overlap")->second, 3);
  std::vector<std::string> one = results.Names_in({numbers[0], numbers[1]});
  std::vector<std::string> other = results.Names_in({numbers[0], numbers[2]});
  std::ranges::sort(one);
  std::ranges::sort(other);
  std::vector<std::string> shared;
  std::ranges::set_intersection(one, other, std::back_inserter(shared));
  if (line.Has("--json")) {
    out << In_json(shared) << "\n";
    return;
  }
  for (const std::string& name : shared) out << name << "\n";
}

/// "4: 0 2" for each k, or the same in JSON.
void Tell_places(const std::string& name, const std::vector<Place>& places, bool json,
                 std::ostream& out) {
  Json_list list(Json_list::Kind::array);
  std::string in_words;
  std::uint32_t k = 0;
  for (const Place& place : places) {
    if (place.k != std::exchange(k, place.k))
      in_words.append("\n  k=").append(std::to_string(place.k)).append(":");
    in_words.append(" ").append(std::to_string(place.community));
    list.Add(Json_list(Json_list::Kind::object)
                 .Add("k", std::to_string(place.k))
                 .Add("community", std::to_string(place.community))
                 .Text());
  }
  if (json)
    out << Json_list(Json_list::Kind::object)
               .Add("node", Json_string(name))
               .Add("communities", list.Text())
               .Text()
        << "\n";
  else
    out << name << (places.empty() ? ": in no community" : in_words) << "\n";
}

}  // namespace

void Answer_query(const Word_line& line, std::ostream& out) {
  const Results results = Results::Open(line.arguments.front());
  if (line.Has("--community")) Tell_community(results, line, out);
  if (line.Has("--overlap")) Tell_overlap(results, line, out);
  if (line.arguments.size() < 2 && !line.Has("--community") && !line.Has("--overlap"))
    throw Xerror_msg("Ask for a node, for --community K:I or for --overlap K:I:J.\n");
  for (std::size_t i = 1; i < line.arguments.size(); ++i) {
    const std::string& name = line.arguments[i];
    const auto places = results.Places_of(name);
    if (!places)
      throw vorlane::Error(vorlane::Error_kind::parameters,
                           "There is no node '" + name + "' in the network.");
    Tell_places(name, *places, line.Has("--json"), out);
  }
}

}  // namespace gns
