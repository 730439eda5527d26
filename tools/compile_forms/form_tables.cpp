// SPDX-License-Identifier: GPL-3.0-or-later
// Writing of the tables of forms.
#include "tools/compile_forms/form_tables.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "finder/letters.h"
#include "tools/compile_data/emit.h"

namespace odmiennik::tools {
namespace {

using finder::Folded;
using Numbers = std::vector<std::uint32_t>;

constexpr std::size_t kMost = std::numeric_limits<std::uint16_t>::max();

std::uint32_t narrow(std::size_t number) {
  if (number > kMost) throw std::runtime_error("the forms no longer fit numbers of 16 bits");
  return static_cast<std::uint32_t>(number);
}

std::string folded(std::string_view word) { return std::string(Folded(word).text()); }

std::uint32_t hashForward(std::string_view letters) {
  std::uint32_t hash = finder::kNoLetters;
  for (const char letter : letters) hash = finder::withLetter(hash, letter);
  return hash;
}

std::uint32_t hashBackward(std::string_view letters) {
  return hashForward(std::string(letters.rbegin(), letters.rend()));
}

// A table of positions 0…n-1 by their hashes, of which several may be the same.
class HashedTable {
 public:
  explicit HashedTable(std::size_t count)
      : rows_(std::bit_ceil(std::max<std::size_t>(count, 2))),
        shift_(32 - std::countr_zero(rows_.size())) {}

  void add(std::uint32_t hash, std::size_t position) {
    rows_[hash >> shift_].push_back({narrow(position), hash & finder::data::kPrintBits});
  }

  void write(std::ostream& out, std::string_view name) const {
    Numbers first{0};
    out << "constexpr Hashed " << name << "Rows[] = {\n";
    for (const auto& alike : rows_) {
      for (const auto& [position, print] : alike) out << "{" << position << "," << print << "},\n";
      first.push_back(narrow(first.back() + alike.size()));
    }
    out << "};\n";
    writeNumbers(out, "std::uint16_t", std::string(name) + "First", first);
    out << "const HashTable " << name << "{" << name << "First," << name << "Rows," << shift_
        << "};\n";
  }

 private:
  std::vector<std::vector<std::pair<std::uint32_t, std::uint32_t>>> rows_;
  int shift_;
};

// Which of so many bits are set.
void writeBits(std::ostream& out, std::string_view name, const std::set<std::uint32_t>& set,
               int bitsOfHash) {
  const std::uint32_t count = 1U << bitsOfHash;
  out << "const std::uint64_t " << name << "[] = {\n";
  for (std::uint32_t word = 0; word < count / 64; ++word) {
    std::uint64_t bits = 0;
    for (std::uint32_t bit = 0; bit < 64; ++bit)
      if (set.contains(64 * word + bit)) bits |= std::uint64_t{1} << bit;
    out << bits << "U,\n";
  }
  out << "};\n";
}

// Texts in one block, each once and where possible inside another one.
class Letters {
 public:
  std::uint32_t placeOf(const std::string& text) {
    auto place = letters_.find(text);
    if (place == std::string::npos) {
      place = letters_.size();
      letters_ += text;
    }
    return narrow(place);
  }
  void write(std::ostream& out) const {
    out << "const char kEndingLetters[] = " << literal(letters_) << ";\n";
  }

 private:
  std::string letters_;
};

// Places of forms, each pair of varieties once.
class DistinctPlaces {
 public:
  std::uint32_t numberOf(const finder::data::PlacesOfForm& places) {
    const auto [entry, isNew] =
        numbers_.try_emplace({places.system, places.norm}, narrow(rows_.size()));
    if (isNew) rows_.push_back(places);
    return entry->second;
  }
  void write(std::ostream& out) const {
    out << "const PlacesOfForm kPlaces[] = {\n";
    for (const auto& places : rows_) out << "{" << places.system << "U," << places.norm << "U},\n";
    out << "};\n";
  }

 private:
  std::map<std::pair<finder::Places, finder::Places>, std::uint32_t> numbers_;
  std::vector<finder::data::PlacesOfForm> rows_;
};

// The endings of all paradigms, those that are the same without accents side by side.
class Endings {
 public:
  explicit Endings(const SourceForms& source) {
    for (std::size_t paradigm = 0; paradigm < source.paradigms.size(); ++paradigm)
      add(narrow(paradigm), source.paradigms[paradigm].endings);
  }

  void write(std::ostream& out) const {
    out << "const Ending kEndings[] = {\n" << rows_ << "};\n";
    letters_.write(out);
    places_.write(out);
    writeBits(out, "kSomeEnding", some_, finder::data::kSomeEndingBits);
    HashedTable table(firsts_.size());
    for (const auto& [hash, position] : firsts_) table.add(hash, position);
    table.write(out, "kFirstEndings");
  }

 private:
  void add(std::uint32_t paradigm, const SourceEndings& endings) {
    std::map<std::string, std::vector<std::string>> byLetters;
    for (const auto& [ending, places] : endings) byLetters[folded(ending)].push_back(ending);
    for (const auto& [plain, alike] : byLetters) {
      const std::uint32_t hash = hashBackward(plain);
      some_.insert(finder::data::bitOfEnding(hash));
      firsts_.emplace_back(finder::endingOf(hash, paradigm), count_);
      for (const std::string& ending : alike)
        addRow(paradigm, ending, endings.at(ending), &ending == &alike.back());
    }
  }

  void addRow(std::uint32_t paradigm, const std::string& ending,
              const finder::data::PlacesOfForm& places, bool isLast) {
    rows_ += "{" + std::to_string(paradigm) + "," + std::to_string(places_.numberOf(places)) + "," +
             std::to_string(letters_.placeOf(ending)) + "," + std::to_string(ending.size()) +
             (isLast ? ",true},\n" : ",false},\n");
    ++count_;
  }

  std::string rows_;
  std::size_t count_ = 0;
  Letters letters_;
  DistinctPlaces places_;
  std::set<std::uint32_t> some_;
  std::vector<std::pair<std::uint32_t, std::size_t>> firsts_;
};

void writeParadigms(std::ostream& out, const SourceForms& source) {
  out << "const Paradigm kParadigms[] = {\n" << std::boolalpha;
  for (const SourceParadigm& paradigm : source.paradigms) {
    const finder::data::Paradigm& facts = paradigm.facts;
    out << "{" << facts.system << "U," << facts.norm << "U," << facts.takesAvoir << ","
        << facts.takesEtre << "," << facts.isPronominal << "," << facts.agrees << "},\n";
  }
  out << "};\n";
}

void writeVerbs(std::ostream& out, const SourceForms& source, const Numbers& ranks) {
  out << "const Verb kVerbs[] = {\n";
  HashedTable stems(source.verbs.size());
  std::set<std::uint32_t> some;
  for (std::size_t position = 0; position < source.verbs.size(); ++position) {
    const SourceVerb& verb = source.verbs[position];
    out << "{" << verb.paradigm << "," << ranks.at(position) << "," << verb.stemSize << "},\n";
    const std::uint32_t hash = hashForward(folded(verb.infinitive.substr(0, verb.stemSize)));
    stems.add(hash, position);
    some.insert(finder::data::bitOfStem(hash));
  }
  out << "};\n";
  stems.write(out, "kStems");
  writeBits(out, "kSomeStem", some, finder::data::kSomeStemBits);
}

}  // namespace

void writeFormTables(std::ostream& out, const SourceForms& source,
                     const std::vector<std::uint32_t>& ranks) {
  out << "#include \"finder/form_index_data.h\"\nnamespace odmiennik::finder::data {\n";
  writeVerbs(out, source, ranks);
  writeParadigms(out, source);
  Endings(source).write(out);
  out << "}\n";
}

}  // namespace odmiennik::tools
