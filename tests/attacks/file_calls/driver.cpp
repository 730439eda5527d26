// SPDX-License-Identifier: GPL-3.0-or-later
// file_call_driver FOLDER STEP…: what the window does with its files, without a window. Steps:
// start, save:VERB, delete:VERB, load:VERB, list, exit, reset. Every answer and every message is a
// line of standard output.
#include <cstdio>
#include <string>
#include <string_view>

#include "app/lifetime/settings_keeper.h"
#include "dictionary/user_verbs.h"
#include "disk/program_folder.h"

namespace odmiennik::attacks {
namespace {

using namespace dictionary;

void tell(std::string_view what, std::string_view text) {
  std::printf("%.*s %.*s\n", static_cast<int>(what.size()), what.data(),
              static_cast<int>(text.size()), text.data());
}

// Yes and OK to everything.
class ToldMessages final : public MessageBoxes {
 public:
  Button show(MessageId id, Utf8View argument) override {
    const bool isQuestion = id == MessageId::settingsWillBeReset;
    tell(isQuestion ? "asked" : "message", bytesOf(messageText(id, argument)));
    return isQuestion ? Button::ok : row(id).defaultButton;
  }
};

// Together longer than what is read and written at once, so that a save takes several.
std::string longForm(std::string_view verb) { return std::string(verb) + std::string(40'000, 'e'); }

UserVerbRecord recordOf(std::string_view verb) {
  UserVerbRecord record;
  record.forms[0] = longForm(verb);
  record.forms[engine::slot::kInfinitive] = verb;
  return record;
}

class Driver {
 public:
  explicit Driver(Utf8View folder)
      : prefix_(disk::AppFolder(folder)),
        verbs_(prefix_, 0, messages_),
        settings_({prefix_, verbs_, colours(), messages_, [this] { hasEnded_ = true; }}) {}

  // False for a step that there is not.
  bool take(std::string_view step) {
    const auto colon = step.find(':');
    const std::string_view name = step.substr(0, colon);
    const std::string_view verb = colon == step.npos ? "" : step.substr(colon + 1);
    for (const auto& [known, run] : kSteps)
      if (name == known) return (this->*run)(verb), true;
    return false;
  }

 private:
  using Run = void (Driver::*)(std::string_view verb);
  struct Step {
    std::string_view name;
    Run run;
  };
  static const Step kSteps[7];

  static app::HeadingColourPort colours() {
    constexpr app::ColourNumbers kDesigned{255, 65280};
    return {[=] { return kDesigned; }, [=] { return kDesigned; }, [](app::ColourNumbers) {}};
  }

  void start(std::string_view) {
    settings_.ReadSettings();
    verbs_.recoverAfterCrash();
    settings_.countRun();
    tell("started", std::to_string(verbs_.count()));
  }
  void save(std::string_view verb) {
    constexpr std::string_view kResults[] = {"replaced", "appended", "failed"};
    tell("save", kResults[static_cast<std::size_t>(verbs_.save(recordOf(verb)))]);
  }
  void remove(std::string_view verb) {
    constexpr std::string_view kResults[] = {"deleted", "notFound", "failed"};
    tell("delete", kResults[static_cast<std::size_t>(verbs_.remove(verb))]);
  }
  void load(std::string_view verb) {
    engine::FormTable forms;
    std::uint8_t auxiliary = 0;
    const bool isFound = verbs_.load(verb, forms, auxiliary);
    if (isFound && forms[0] != longForm(verb)) return tell("load", "wrong");
    tell("load", isFound ? "found" : "missing");
  }
  void list(std::string_view) {
    for (const std::string& verb : verbs_.infinitives()) tell("listed", verb);
  }
  void exit(std::string_view) {
    settings_.SaveSettings();
    tell("exit", "");
  }
  void reset(std::string_view) {
    settings_.ResetSettings();
    tell("reset", hasEnded_ ? "ended" : "cancelled");
  }

  Utf8Text prefix_;
  ToldMessages messages_;
  bool hasEnded_ = false;
  UserVerbsFile verbs_;
  app::SettingsKeeper settings_;
};

const Driver::Step Driver::kSteps[7] = {{"start", &Driver::start},   {"save", &Driver::save},
                                        {"delete", &Driver::remove}, {"load", &Driver::load},
                                        {"list", &Driver::list},     {"exit", &Driver::exit},
                                        {"reset", &Driver::reset}};

}  // namespace
}  // namespace odmiennik::attacks

int main(int count, char** arguments) {
  constexpr int kWrongUsage = 2;
  if (count < 2) return kWrongUsage;
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);  // what is told survives a sudden end
  odmiennik::attacks::Driver driver(arguments[1]);
  for (int i = 2; i < count; ++i)
    if (!driver.take(arguments[i])) return kWrongUsage;
  return 0;
}
