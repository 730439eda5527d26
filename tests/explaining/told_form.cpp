// SPDX-License-Identifier: GPL-3.0-or-later
// Explanations read back.
#include "tests/explaining/told_form.h"

#include <functional>
#include <map>

namespace odmiennik::testing {
namespace {

using explainer::PhraseId;
using Arguments = std::vector<std::string>;

void cut(std::string& word, const std::string& end) {
  if (word.ends_with(end)) word.resize(word.size() - end.size());
}

// The reader of an explanation: one form of the slot after the other.
class Told {
 public:
  explicit Told(const std::string& stored) : stored_(stored) {}

  void take(PhraseId phrase, const Arguments& told) {
    if (phrase == PhraseId::variant) return beginVariant(told[0]);
    const auto step = steps().find(phrase);
    if (step != steps().end()) step->second(*this, told);
  }

  [[nodiscard]] std::string form() const {
    const std::string bare = done_ + word_ + behind_;
    return bare.starts_with(before_) ? bare : before_ + bare;  // what is stored has it already
  }

 private:
  using Step = std::function<void(Told&, const Arguments&)>;

  // The separator is not told; it is what stands in the form.
  void beginVariant(const std::string& variant) {
    done_ += word_;
    word_.clear();
    variant_ = variant;
    const bool isNext = !done_.empty();
    if (isNext) done_ += stored_.find(", " + variant) != std::string::npos ? ", " : "/";
  }

  void start(const std::string& text) { word_ = text; }
  void add(const std::string& text) { word_ += text; }
  void addStored() { word_ = variant_.empty() ? stored_ : variant_; }

  void replaceLast(const std::string& to, const std::string& from) {
    const auto at = word_.rfind(from);
    if (at != std::string::npos) word_.replace(at, from.size(), to);
  }

  void addPronoun(const std::string& pronoun) {
    before_ = pronoun.ends_with('\'') ? pronoun : pronoun + " ";
  }

  static const std::map<PhraseId, Step>& steps();

  std::string stored_, variant_, before_, done_, word_, behind_;
};

const std::map<PhraseId, Told::Step>& Told::steps() {
  const auto start = [](Told& told, const Arguments& with) { told.start(with[0]); };
  const auto startForm = [](Told& told, const Arguments& with) {
    told.start(withoutSubject(with[0]));
    if (with.size() > 2) cut(told.word_, with[2]);
  };
  const auto startInfinitive = [](Told& told, const Arguments& with) {
    told.start(with[0]);
    if (with.size() > 1) cut(told.word_, with[1]);
  };
  const auto add = [](Told& told, const Arguments& with) { told.add(with[0]); };
  const auto replace = [](Told& told, const Arguments& with) {
    told.replaceLast(with[0], with[1]);
  };
  const auto addStored = [](Told& told, const Arguments&) { told.addStored(); };
  static const std::map<PhraseId, Step> kSteps{
      {PhraseId::stored, addStored},
      {PhraseId::infinitive, addStored},
      {PhraseId::writtenWhole, addStored},
      {PhraseId::missingVariant, addStored},
      {PhraseId::ownFeminine, start},
      {PhraseId::stem, start},
      {PhraseId::kept, start},
      {PhraseId::fromText, start},
      {PhraseId::fromForm, startForm},
      {PhraseId::fromFormLess, startForm},
      {PhraseId::fromInfinitive, startInfinitive},
      {PhraseId::fromInfinitiveLess, startInfinitive},
      {PhraseId::inserted, add},
      {PhraseId::doubledMute, add},
      {PhraseId::addedLetters, add},
      {PhraseId::replaced, replace},
      {PhraseId::replacedBefore, replace},
      {PhraseId::replacedMute, replace},
      {PhraseId::vowel, add},
      {PhraseId::vowelOf, add},
      {PhraseId::ending, add},
      {PhraseId::continued, add},
      {PhraseId::auxiliary, [](Told& told, const Arguments& with) { told.start(with[2] + " "); }},
      {PhraseId::participle, add},
      {PhraseId::agreement,
       [](Told& told, const Arguments& with) {
         if (!told.word_.ends_with(with[0])) told.add(with[0]);  // what is written whole has it
       }},
      {PhraseId::reflexive, [](Told& told, const Arguments& with) { told.addPronoun(with[0]); }},
      {PhraseId::enclitic, [](Told& told, const Arguments& with) { told.behind_ = with[0]; }},
  };
  return kSteps;
}

}  // namespace

std::string withoutSubject(const std::string& form) {
  for (const std::string subject : {"je ", "j'", "tu ", "il ", "nous ", "vous ", "ils "})
    if (form.starts_with(subject)) return form.substr(subject.size());
  return form;
}

std::optional<Arguments> argumentsOf(const explainer::Remark& remark) {
  const std::string pattern(bytesOf(explainer::rowOf(remark.phrase).text));
  const std::string text(bytesOf(remark.text));
  Arguments arguments;
  std::size_t inPattern = 0, inText = 0;
  for (int place = 1;; ++place) {
    const auto mark = pattern.find("{" + std::to_string(place) + "}", inPattern);
    const std::string literal = pattern.substr(inPattern, mark - inPattern);
    const bool isLast = mark == std::string::npos;
    const bool isEndOnly = isLast && place > 1;
    const auto found = isEndOnly ? text.rfind(literal) : text.find(literal, inText);
    if (found == std::string::npos || found < inText || (place == 1 && found != 0))
      return std::nullopt;
    if (place > 1) arguments.push_back(text.substr(inText, found - inText));
    inText = found + literal.size();
    if (isLast) return inText == text.size() ? std::optional(arguments) : std::nullopt;
    inPattern = mark + 3;
  }
}

std::string formBy(const explainer::Remarks& remarks, const std::string& stored) {
  Told told(stored);
  for (const explainer::Remark& remark : remarks)
    if (const auto arguments = argumentsOf(remark)) told.take(remark.phrase, *arguments);
  return told.form();
}

}  // namespace odmiennik::testing
