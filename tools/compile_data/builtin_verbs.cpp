// Reading of the built-in verbs.
#include "tools/compile_data/builtin_verbs.h"

#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

// The names of the lines, in slot order.
constexpr std::array<std::string_view, 22> kLineNames{
    "présent",
    "imparfait",
    "passé simple",
    "futur simple",
    "passé composé",
    "plus-que-parfait",
    "passé antérieur",
    "futur antérieur",
    "subjonctif présent",
    "subjonctif imparfait",
    "subjonctif passé",
    "subjonctif plus-que-parfait",
    "conditionnel présent",
    "conditionnel passé 1",
    "conditionnel passé 2",
    "impératif présent",
    "impératif passé",
    "infinitif présent",
    "infinitif passé",
    "participe présent",
    "participe passé",
    "participe passé composé",
};

constexpr std::array<Named<bool>, 2> kIsAvoir{{{"avoir", true}, {"être", false}}};

class Reader {
 public:
  explicit Reader(SourceFile file) : file_(std::move(file)) {}

  std::vector<BuiltinVerb> read() {
    std::vector<BuiltinVerb> verbs;
    while (next_ < file_.lines.size()) verbs.push_back(readVerb());
    return verbs;
  }

 private:
  // The next line, with `name` taken off its front.
  LineReader takeNamed(std::string_view name) {
    if (next_ == file_.lines.size())
      file_.fail(file_.lines.back(),
                 "the last verb is cut short: no \"" + std::string(name) + "\"");
    LineReader line(file_, file_.lines[next_++]);
    if (!line.take(name)) line.fail("\"" + std::string(name) + "\" is expected");
    return line;
  }

  [[nodiscard]] bool isNext(std::string_view name) const {
    return next_ < file_.lines.size() && LineReader(file_, file_.lines[next_]).take(name);
  }

  BuiltinVerb readVerb() {
    BuiltinVerb verb;
    LineReader head = takeNamed("verb");
    const std::string name(head.takeRest("an infinitive is expected"));
    once_.note(head, name);
    LineReader auxiliary = takeNamed("auxiliary");
    verb.isAvoir = auxiliary.takeNamed(kIsAvoir);
    auxiliary.finish();
    if (isNext("has")) {
      static_cast<void>(takeNamed("has").takeRest("tenses are expected"));
      static_cast<void>(takeNamed("why").takeRest("a reason is expected"));
    }
    for (std::size_t tense = 0; tense < kLineNames.size(); ++tense)
      readTense(kLineNames[tense], engine::kTenses[tense], verb);
    if (verb.forms[engine::slot::kInfinitive] != head.french(name))
      head.fail("the infinitive is not the block's verb");
    return verb;
  }

  void readTense(std::string_view name, const engine::Tense& tense, BuiltinVerb& verb) {
    LineReader line = takeNamed(name);
    std::vector<std::string> forms = split(line.takeRest("forms are expected"), '|');
    const auto count = static_cast<std::size_t>(tense.slotCount);
    if (forms.size() == 1 && (forms[0] == "*" || forms[0] == "@")) forms.resize(count, forms[0]);
    if (forms.size() != count) line.fail("a form for every person is expected");
    for (std::size_t person = 0; person < count; ++person) {
      if (forms[person].empty()) line.fail("an empty form; write \"@\" where there is none");
      verb.forms[static_cast<std::size_t>(tense.firstSlot) + person] = line.french(forms[person]);
    }
  }

  SourceFile file_;
  std::size_t next_ = 0;
  Once once_;
};

}  // namespace

std::vector<BuiltinVerb> readBuiltinVerbs(const std::string& path) {
  return Reader(readSource(path)).read();
}

}  // namespace odmiennik::tools
