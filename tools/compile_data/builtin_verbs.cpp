// Reading of the built-in verbs.
#include "tools/compile_data/builtin_verbs.h"

#include "tools/compile_data/source_file.h"

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

class Reader {
 public:
  explicit Reader(SourceFile file) : file_(std::move(file)) {}

  std::vector<BuiltinVerb> read() {
    std::vector<BuiltinVerb> verbs;
    while (next_ < file_.lines.size()) verbs.push_back(readVerb());
    return verbs;
  }

 private:
  const SourceLine& take() {
    if (next_ == file_.lines.size()) file_.fail(file_.lines.back(), "the last verb is cut short");
    return file_.lines[next_++];
  }

  std::string_view takeNamed(std::string_view name) {
    const SourceLine& line = take();
    std::string_view rest = line.text;
    if (!takePrefix(rest, name)) file_.fail(line, "\"" + std::string(name) + "\" is expected");
    return rest;
  }

  BuiltinVerb readVerb() {
    BuiltinVerb verb;
    const std::string name(takeNamed("verb "));
    const std::string_view auxiliary = takeNamed("auxiliary ");
    const SourceLine& line = file_.lines[next_ - 1];
    verb.isAvoir = auxiliary == "avoir";
    if (!verb.isAvoir && auxiliary != "être") file_.fail(line, "avoir or être is expected");
    while (file_.lines.at(next_).text.starts_with("has ") ||
           file_.lines.at(next_).text.starts_with("why "))
      ++next_;
    for (std::size_t tense = 0; tense < kLineNames.size(); ++tense)
      readTense(kLineNames[tense], engine::kTenses[tense], verb);
    if (verb.forms[engine::slot::kInfinitive] != french(file_, line, name))
      file_.fail(line, "the infinitive is not the block's verb");
    return verb;
  }

  void readTense(std::string_view name, const engine::Tense& tense, BuiltinVerb& verb) {
    const std::string_view text = takeNamed(name);
    const SourceLine& line = file_.lines[next_ - 1];
    std::vector<std::string> forms = split(text, '|');
    const auto count = static_cast<std::size_t>(tense.slotCount);
    if (forms.size() == 1 && (forms[0] == "*" || forms[0] == "@")) forms.resize(count, forms[0]);
    if (forms.size() != count) file_.fail(line, "a form for every person is expected");
    for (std::size_t person = 0; person < count; ++person) {
      if (forms[person].empty()) file_.fail(line, "an empty form; write \"@\" where there is none");
      verb.forms[static_cast<std::size_t>(tense.firstSlot) + person] =
          french(file_, line, forms[person]);
    }
  }

  SourceFile file_;
  std::size_t next_ = 0;
};

}  // namespace

std::vector<BuiltinVerb> readBuiltinVerbs(const std::string& path) {
  return Reader(readSource(path)).read();
}

}  // namespace odmiennik::tools
