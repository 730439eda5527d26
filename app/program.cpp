// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of the program, put together.
#include "app/program.h"

#include "app/common/look.h"
#include "app/layout/screen_fit.h"
#include "app/lifetime/developer_buttons.h"
#include "app/menu_commands.h"
#include "disk/program_folder.h"

namespace odmiennik::app {
namespace {

// Whether to go on where the screen is too small; otherwise the program ends at once.
std::function<bool()> questionOfScreen(const Program::Environment& given) {
  return [&messages = given.messages, end = given.end] {
    if (messages.show(dictionary::MessageId::resolutionTooLow) == dictionary::Button::yes)
      return true;
    end();
    return false;
  };
}

}  // namespace

Program::Program(const Environment& given)
    : prefix_(disk::AppFolder(given.folder)),
      userVerbs_(prefix_, 0, given.messages, given.files),  // their number comes with the settings
      shell_(given.messages, [this] { settings_.ResetSettings(); }),
      driver_({index_, userVerbs_, builtinVerbs_, rules_, shell_}),
      silentDriver_({index_, userVerbs_, builtinVerbs_, rules_, silence_}),
      norm_(index_, builtinVerbs_, rules_),
      window_({driver_, silentDriver_, norm_}, questionOfScreen(given)),
      pointer_(window_),
      settings_({prefix_, userVerbs_, headingColours(), given.messages, given.end, given.files}),
      closing_(window_, settings_, given.messages, editedVerb(), given.end),
      tips_(window_, given.store, demonstrations(given.messages)),
      startUp_({prefix_, window_, pointer_, settings_, userVerbs_, tips_, closing_, given.messages,
                layout(), [&store = given.store] { return store.isUsable(); },
                [this, places = given.helpPlaces] { help_.help().lookIn(places); },
                [this, verb = given.verb] {
                  if (verb) editing_.conjugate(*verb);
                }}),
      viewMenu_(window_, chooser_, given.store),
      printing_(window_, given.messages),
      editing_(window_, pointer_, userVerbs_, given.messages, [this] { return printing_.print(); }),
      help_(window_, given.store, given.messages,
            [this] {
              return Usage{settings_.conjugationCount(), settings_.runCount()};
            }),
      typing_(window_, given.store, given.messages, help_.help()),
      exporting_(window_, silentDriver_, given.messages, given.files),
      listMenu_(
          window_, prefix_, userVerbs_, editing_,
          [this](QWidget& list, SavedList verbs) { exporting_.saveList(list, std::move(verbs)); }),
      findMenu_(window_, userVerbs_, editing_,
                [this](QLineEdit& field) { typing_.alsoServe(field); }),
      explainMenu_(window_, userVerbs_),
      demonstration_(
          window_, editing_, [this](bool isOn) { typing_.suspendCompletion(isOn); }, given.pointer),
      tooltips_(window_) {
  giveIconLater(window_);
  QObject::connect(&window_, &MainWindow::conjugated, &window_,
                   [this] { settings_.countConjugation(); });
  connectMenuCommands({window_, editing_, exporting_, typing_, listMenu_, findMenu_, explainMenu_,
                       tips_, printing_, viewMenu_, help_});
  connectDeveloperButtons(window_.controls(), prefix_, userVerbs_);
}

Program::~Program() = default;

EditedVerb Program::editedVerb() {
  return {.mayClose = [this] { return editing_.leaveForClosing(); },
          .stay = [this] { editing_.stay(); }};
}

Demonstrations Program::demonstrations(dictionary::MessageBoxes& messages) {
  return {.announce = [&messages] { messages.show(dictionary::MessageId::demonstrationWillRun); },
          .run = [this](int way) { demonstration_.run(way); }};
}

LayoutPort Program::layout() {
  return {.screenTwips = [this] { return qRound(screenWidth(window_).twips); },
          .rescale = [this] { return window_.scaling().rescale(); }};
}

HeadingColourPort Program::headingColours() {
  LiveColours& colours = window_.colours();
  return {[&colours] { return colours.design(); }, [&colours] { return colours.live(); },
          [&colours](ColourNumbers numbers) { colours.adopt(numbers); }};
}

}  // namespace odmiennik::app
