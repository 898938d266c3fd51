// large_network [OPTIONS] > FILE: writes a random network of many links, for runs at large sizes.
//
// Part of the links are cliques that are planted, each of which keeps some nodes of the one before,
// so that there are chains of overlapping cliques of many sizes; some of their links lack, so that
// a planted clique becomes several maximal ones. The rest are drawn by R-MAT (D. Chakrabarti, Y.
// Zhan, C. Faloutsos, R-MAT: a recursive model for graph mining, SIAM Data Mining 2004): nodes are
// numbers of so many binary digits, and each digit of a link's two nodes is drawn from the same
// four chances, which makes few nodes of many links and many of few. Links are distinct, none joins
// a node with itself, and their order is shuffled. The same options give the same bytes everywhere:
// nothing depends on what a standard library makes of its distributions.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// A link in one number: the smaller node in the upper half.
using Link = std::uint64_t;
using Node = std::uint32_t;

struct Options {
  double links = 20'000'000;
  double digits = 22;
  double a = 0.55;
  double b = 0.19;
  double c = 0.19;
  double planted = 0.5;
  double smallest = 4;
  double largest = 40;
  double growth = 0.85;
  double missing = 0.03;
  double seed = 1;
};

struct Option {
  std::string_view name;
  double Options::*value;
  double least;
  double most;
  std::string_view meaning;
};

constexpr double most_links = 4e9;
constexpr Option options_known[] = {
    {"--links", &Options::links, 1, most_links, "links of the network"},
    {"--digits", &Options::digits, 2, 31, "binary digits of a node: there are 2^digits of them"},
    {"--a", &Options::a, 0, 1, "R-MAT's chance that a digit is 0 in both nodes"},
    {"--b", &Options::b, 0, 1, "that it is 0 and 1"},
    {"--c", &Options::c, 0, 1, "that it is 1 and 0; in what is left it is 1 in both"},
    {"--planted", &Options::planted, 0, 1, "share of the links that are in planted cliques"},
    {"--smallest", &Options::smallest, 3, 1000, "nodes of the smallest planted clique"},
    {"--largest", &Options::largest, 3, 1000, "nodes of the largest one"},
    {"--growth", &Options::growth, 0, 1, "chance that a clique gets one node more, each time"},
    {"--missing", &Options::missing, 0, 1, "share of the links of planted cliques that lack"},
    {"--seed", &Options::seed, 0, most_links, "of the random numbers"},
};

class Network {
 public:
  explicit Network(const Options& options)
      : options_(options),
        nodes_(std::uint64_t{1} << static_cast<unsigned>(options.digits)),
        random_(static_cast<std::uint64_t>(options.seed)) {
    links_.reserve(static_cast<std::size_t>(options.links));
    Plant();
    Fill();
  }

  /// In shuffled order, under names that tell nothing of the digits.
  void Write(std::ostream& out) {
    std::vector<Node> names(nodes_);
    std::iota(names.begin(), names.end(), Node{0});
    Shuffle(names);
    Shuffle(links_);
    std::string text;
    for (const Link link : links_) {
      Append(text, names[link >> 32U], ' ');
      Append(text, names[link & 0xffffffffU], '\n');
      if (text.size() > (1U << 20U)) Flush(text, out);
    }
    Flush(text, out);
  }

 private:
  std::uint64_t Below(std::uint64_t bound) { return random_() % bound; }

  /// From 0 to below 1.
  double Fraction() { return static_cast<double>(random_() >> 11U) * 0x1p-53; }

  template <typename Value>
  void Shuffle(std::vector<Value>& values) {
    for (std::size_t left = values.size(); left > 1; --left)
      std::swap(values[left - 1], values[Below(left)]);
  }

  static void Append(std::string& text, Node node, char behind) {
    char digits[16];
    text.append(digits, std::to_chars(digits, std::end(digits), node).ptr);
    text += behind;
  }

  static void Flush(std::string& text, std::ostream& out) {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    text.clear();
  }

  void Add(Node one, Node other) {
    links_.push_back(static_cast<Link>(std::min(one, other)) << 32U | std::max(one, other));
  }

  void Drop_repeated() {
    std::sort(links_.begin(), links_.end());
    links_.erase(std::unique(links_.begin(), links_.end()), links_.end());
  }

  /// Cliques, as many as the share holds.
  void Plant() {
    const double share = options_.links * options_.planted;
    std::vector<Node> clique;
    for (;;) {
      auto size = static_cast<std::size_t>(options_.smallest);
      while (static_cast<double>(size) < options_.largest && Fraction() < options_.growth) ++size;
      Shuffle(clique);
      if (!clique.empty()) clique.resize(Below(std::min(clique.size(), size)));
      const std::size_t added = Pairs(size) - Pairs(clique.size());
      if (static_cast<double>(links_.size() + added) > share) break;
      while (clique.size() < size) Join(clique);
    }
    Drop_repeated();
  }

  static std::size_t Pairs(std::size_t nodes) { return nodes * (nodes - 1) / 2; }

  /// A random node that is none of the clique's joins it.
  void Join(std::vector<Node>& clique) {
    Node joining = 0;
    do {
      joining = static_cast<Node>(Below(nodes_));
    } while (std::find(clique.begin(), clique.end(), joining) != clique.end());
    for (const Node node : clique)
      if (Fraction() >= options_.missing) Add(node, joining);
    clique.push_back(joining);
  }

  /// Links by R-MAT, until there are enough that differ.
  void Fill() {
    const auto enough = static_cast<std::size_t>(options_.links);
    for (int rounds = 0; links_.size() < enough; ++rounds) {
      if (rounds == 200) throw std::runtime_error("so many links repeat themselves: more --digits");
      while (links_.size() < enough) Draw();
      Drop_repeated();
    }
  }

  void Draw() {
    Node one = 0;
    Node other = 0;
    for (int digit = 0; digit < options_.digits; ++digit) {
      const double drawn = Fraction();
      const bool upper = drawn >= options_.a + options_.b;
      const bool right =
          upper ? drawn >= options_.a + options_.b + options_.c : drawn >= options_.a;
      one = one << 1U | static_cast<Node>(upper);
      other = other << 1U | static_cast<Node>(right);
    }
    if (one != other) Add(one, other);
  }

  const Options options_;
  const std::uint64_t nodes_;
  std::mt19937_64 random_;
  std::vector<Link> links_;
};

/// What is no chance is a whole number.
double Value_of(const Option& option, std::string_view text) {
  double value = 0.0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (fault != std::errc() || end != text.data() + text.size() || value < option.least ||
      value > option.most || (option.most > 1 && value != std::floor(value)))
    throw std::invalid_argument(std::string(option.name) + " can't be '" + std::string(text) + "'");
  return value;
}

void Check(const Options& options) {
  const double nodes = std::exp2(options.digits);
  if (options.a + options.b + options.c > 1)
    throw std::invalid_argument("--a, --b and --c are more than 1 together");
  if (options.smallest > options.largest)
    throw std::invalid_argument("--smallest is more than --largest");
  if (options.largest > nodes / 2 || options.links > nodes * (nodes - 1) / 4)
    throw std::invalid_argument("too few nodes: take more --digits");
}

Options Read(int count, char** words) {
  Options options;
  for (int i = 1; i < count; i += 2) {
    const auto* const option =
        std::find_if(std::begin(options_known), std::end(options_known),
                     [&](const Option& known) { return known.name == words[i]; });
    if (option == std::end(options_known) || i + 1 == count)
      throw std::invalid_argument("'" + std::string(words[i]) + "' is no option, or lacks a value");
    options.*option->value = Value_of(*option, words[i + 1]);
  }
  Check(options);
  return options;
}

void Help() {
  std::cout << "large_network [OPTIONS] > FILE: writes a random network of many links.\n\n"
            << std::setprecision(10);
  for (const Option& option : options_known)
    std::cout << "  " << std::left << std::setw(12) << option.name << option.meaning << " ("
              << Options().*option.value << ")\n";
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  try {
    if (argc == 2 && argv[1] == std::string_view("--help"))
      Help();
    else
      Network(Read(argc, argv)).Write(std::cout);
    if (!std::cout.flush()) throw std::runtime_error("standard output can't be written");
    return 0;
  } catch (const std::invalid_argument& failure) {
    std::cerr << failure.what() << "; --help shows the options\n";
    return 2;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
