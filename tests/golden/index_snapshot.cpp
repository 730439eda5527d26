// SPDX-License-Identifier: GPL-3.0-or-later
// Stems and participles taken out of the forms of a verb and put back in.
#include "tests/golden/index_snapshot.h"

#include <algorithm>
#include <stdexcept>

#include "engine/form_table.h"
#include "engine/pronouns.h"

namespace odmiennik::testing {
namespace {

namespace slot = engine::slot;

constexpr char kStemMark = '~';
constexpr char kParticipleMark = '+';

bool isCompound(int number) {
  const int first = engine::tenseOf(number).firstSlot;
  for (const int compound :
       {slot::kPerfect, slot::kPluperfect, slot::kPastAnterior, slot::kFuturePerfect,
        slot::kPerfectSubjunctive, slot::kPluperfectSubjunctive, slot::kPastConditional1,
        slot::kPastConditional2, slot::kPastImperative, slot::kPastInfinitive,
        slot::kCompoundParticiple})
    if (first == compound) return true;
  return false;
}

// Where the form proper begins: behind the reflexive pronoun.
std::size_t startOfForm(int number, std::string_view form) {
  if (number >= slot::kImperative && number < slot::kPastImperative) return 0;
  return form.size() - engine::withoutOwnReflexive(number, form).size();
}

// The positions at which the variants of "a/b" and "a, b" begin.
std::vector<std::size_t> startsOfVariants(int number, std::string_view form) {
  std::vector<std::size_t> starts{startOfForm(number, form)};
  for (std::size_t i = 0; i < form.size(); ++i)
    if (form[i] == '/' || form.substr(0, i + 1).ends_with(", ")) starts.push_back(i + 1);
  return starts;
}

std::size_t commonLength(std::string_view first, std::string_view second) {
  const auto end = std::mismatch(
      first.begin(),
      first.begin() + static_cast<std::ptrdiff_t>(std::min(first.size(), second.size())),
      second.begin());
  return static_cast<std::size_t>(end.first - first.begin());
}

// The longest beginning of the infinitive that all its simple forms have.
std::size_t stemLengthOf(const VerbSnapshot& verb) {
  std::size_t length = verb.infinitive.size();
  for (int number = 0; number < engine::kSlotCount; ++number) {
    const std::string& form = verb.boxes[static_cast<std::size_t>(number)];
    if (isCompound(number) || form == engine::kShownMissing) continue;
    for (const std::size_t start : startsOfVariants(number, form))
      if (!form.substr(start).starts_with(engine::kShownMissing))
        length = std::min(length, commonLength(verb.infinitive, form.substr(start)));
  }
  return length;
}

std::string withoutStem(int number, std::string form, std::string_view stem) {
  if (stem.empty() || form == engine::kShownMissing) return form;
  std::vector<std::size_t> starts = startsOfVariants(number, form);
  std::reverse(starts.begin(), starts.end());
  for (const std::size_t start : starts)
    if (std::string_view(form).substr(start).starts_with(stem))
      form.replace(start, stem.size(), 1, kStemMark);
  return form;
}

// What the compound tenses are built from: the participle up to its first separator, bare.
std::string participleOf(const std::array<std::string, engine::kSlotCount>& boxes) {
  std::string participle = boxes[slot::kPastParticiple];
  if (participle == engine::kShownMissing) return {};
  participle.resize(std::min(participle.size(), participle.find_first_of(";/,")));
  if (participle.ends_with("(e)")) participle.resize(participle.size() - 3);
  return participle;
}

std::string withoutParticiple(std::string form, const std::string& participle) {
  const auto at = participle.empty() ? std::string::npos : form.find(" " + participle);
  if (at != std::string::npos) form.replace(at + 1, participle.size(), 1, kParticipleMark);
  return form;
}

void replaceAll(std::string& text, char mark, const std::string& by) {
  for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + by.size()))
    text.replace(at, 1, by);
}

void refuseMarks(const VerbSnapshot& verb) {
  for (const std::string& form : verb.boxes)
    if (form.find(kStemMark) != std::string::npos ||
        form.find(kParticipleMark) != std::string::npos)
      throw std::logic_error("a form contains a mark of the snapshot: " + form);
}

// Patterns by content, so that a verb finds the one that an earlier verb has named.
class PatternNames {
 public:
  explicit PatternNames(std::map<std::string, Pattern>& patterns) : patterns_(patterns) {}

  std::string nameOf(const Pattern& pattern, const std::string& verb) {
    const auto [found, isNew] = names_.try_emplace(pattern, verb);
    if (isNew) patterns_[verb] = pattern;
    return found->second;
  }

 private:
  std::map<std::string, Pattern>& patterns_;
  std::map<Pattern, std::string> names_;
};

const Pattern& patternNamed(const std::map<std::string, Pattern>& patterns,
                            const std::string& name) {
  const auto found = patterns.find(name);
  if (found == patterns.end()) throw std::runtime_error("no pattern is called " + name);
  return found->second;
}

}  // namespace

IndexSnapshot encode(const std::vector<VerbSnapshot>& verbs) {
  IndexSnapshot snapshot;
  PatternNames simpleNames(snapshot.simplePatterns);
  PatternNames compoundNames(snapshot.compoundPatterns);
  for (const VerbSnapshot& verb : verbs) {
    refuseMarks(verb);
    const std::size_t stemLength = stemLengthOf(verb);
    const std::string stem = verb.infinitive.substr(0, stemLength);
    const std::string participle = participleOf(verb.boxes);
    Pattern simple{.origin = verb.origin}, compound;
    for (int number = 0; number < engine::kSlotCount; ++number) {
      const auto index = static_cast<std::size_t>(number);
      if (isCompound(number))
        compound.forms[index] = withoutParticiple(verb.boxes[index], participle);
      else
        simple.forms[index] = withoutStem(number, verb.boxes[index], stem);
    }
    snapshot.verbs.push_back({verb.infinitive, stemLength,
                              simpleNames.nameOf(simple, verb.infinitive),
                              compoundNames.nameOf(compound, verb.infinitive), verb.elidesJe});
  }
  return snapshot;
}

VerbSnapshot decode(const VerbLine& line, const IndexSnapshot& snapshot) {
  const Pattern& simple = patternNamed(snapshot.simplePatterns, line.simplePattern);
  const Pattern& compound = patternNamed(snapshot.compoundPatterns, line.compoundPattern);
  VerbSnapshot verb{
      .infinitive = line.infinitive, .origin = simple.origin, .elidesJe = line.elidesJe};
  for (int number = 0; number < engine::kSlotCount; ++number) {
    const auto index = static_cast<std::size_t>(number);
    verb.boxes[index] = isCompound(number) ? compound.forms[index] : simple.forms[index];
    replaceAll(verb.boxes[index], kStemMark, line.infinitive.substr(0, line.stemLength));
  }
  const std::string participle = participleOf(verb.boxes);
  for (std::string& form : verb.boxes) replaceAll(form, kParticipleMark, participle);
  return verb;
}

}  // namespace odmiennik::testing
