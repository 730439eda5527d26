// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of the built-in verbs.
#include "tools/compile_data/builtin_verbs.h"

#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

constexpr std::array<Named<bool>, 2> kIsAvoir{{{"avoir", true}, {"être", false}}};

class Reader {
 public:
  Reader(SourceFile file, const TenseTable& tenses) : file_(std::move(file)), tenses_(tenses) {}

  std::vector<BuiltinVerb> read() {
    std::vector<BuiltinVerb> verbs;
    while (next_ < file_.lines.size()) verbs.push_back(readVerb());
    return verbs;
  }

 private:
  // The next line, with `name` taken off its front.
  LineReader takeNamed(Utf8View name) {
    if (next_ == file_.lines.size())
      file_.fail(file_.lines.back(), "the last verb is cut short: no " + inQuotes(name));
    LineReader line(file_, file_.lines[next_++]);
    if (!line.take(name)) line.fail(inQuotes(name) + " is expected");
    return line;
  }

  [[nodiscard]] bool isNext(Utf8View name) const {
    return next_ < file_.lines.size() && LineReader(file_, file_.lines[next_]).take(name);
  }

  BuiltinVerb readVerb() {
    BuiltinVerb verb;
    LineReader head = takeNamed("verb");
    const Utf8View name = head.takeRest("an infinitive is expected");
    once_.note(head, name);
    verb.infinitive = head.french(name);
    LineReader auxiliary = takeNamed("auxiliary");
    verb.isAvoir = auxiliary.takeNamed(kIsAvoir);
    auxiliary.finish();
    if (isNext("has")) {
      static_cast<void>(takeNamed("has").takeRest("tenses are expected"));
      static_cast<void>(takeNamed("why").takeRest("a reason is expected"));
    }
    for (const SourceTense& tense : tenses_.rows()) readTense(tense, verb);
    const int slot = tenses_.of("Infinitive").firstSlot;
    if (verb.forms[static_cast<std::size_t>(slot)] != verb.infinitive)
      head.fail("the infinitive is not the block's verb");
    return verb;
  }

  void readTense(const SourceTense& tense, BuiltinVerb& verb) {
    LineReader line = takeNamed(tense.sourceName());
    std::vector<Utf8Text> forms = split(line.takeRest("forms are expected"), '|');
    const auto count = static_cast<std::size_t>(tense.formCount);
    if (forms.size() == 1 && (forms[0] == "*" || forms[0] == "@")) forms.resize(count, forms[0]);
    if (forms.size() != count) line.fail("a form for every person is expected");
    for (const Utf8Text& form : forms) {
      if (form.empty()) line.fail("an empty form; write \"@\" where there is none");
      verb.forms.push_back(line.french(form));
    }
  }

  SourceFile file_;
  const TenseTable& tenses_;
  std::size_t next_ = 0;
  Once once_;
};

}  // namespace

std::vector<BuiltinVerb> readBuiltinVerbs(const std::string& path, const TenseTable& tenses) {
  return Reader(readSource(path), tenses).read();
}

}  // namespace odmiennik::tools
