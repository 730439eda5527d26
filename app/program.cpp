// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of the program, put together.
#include "app/program.h"

#include "app/common/look.h"
#include "app/layout/screen_fit.h"
#include "app/lifetime/developer_buttons.h"
#include "disk/program_folder.h"

namespace odmiennik::app {

Program::Program(const Environment& given)
    : prefix_(disk::AppFolder(given.folder)),
      userVerbs_(prefix_, 0, given.messages, given.files),  // their number comes with the settings
      shell_(given.messages, [this] { settings_.ResetSettings(); }),
      driver_({index_, userVerbs_, builtinVerbs_, rules_, shell_}),
      silentDriver_({index_, userVerbs_, builtinVerbs_, rules_, silence_}),
      norm_(index_, builtinVerbs_, rules_),
      window_({driver_, silentDriver_, norm_}),
      pointer_(window_),
      settings_({prefix_, userVerbs_, headingColours(), given.messages, given.end, given.files}),
      closing_(window_, settings_, given.messages, given.end),
      tips_(window_, *window_.menuBar(), given.store),
      startUp_({prefix_, window_, pointer_, settings_, userVerbs_, tips_, closing_, given.messages,
                layout(), [&store = given.store] { return store.isUsable(); },
                [this, places = given.helpPlaces] { help_.help().lookIn(places); },
                [this, verb = given.verb] {
                  if (verb) editing_.conjugate(*verb);
                }}),
      viewMenu_(window_, chooser_, given.store),
      printing_(window_, given.messages),
      editing_(window_, pointer_, userVerbs_, given.messages, [this] { return printing_.print(); }),
      typing_(window_, given.store, given.messages),
      listMenu_(window_, prefix_, userVerbs_, editing_),
      findMenu_(window_, userVerbs_, editing_,
                [this](QLineEdit& field) { typing_.alsoServe(field); }),
      demonstration_(
          window_, editing_, [this](bool isOn) { typing_.suspendCompletion(isOn); }, given.pointer),
      help_(window_, given.store, given.messages,
            [this] {
              return Usage{settings_.conjugationCount(), settings_.runCount()};
            }),
      tooltips_(window_) {
  giveIconLater(window_);
  connectParts(given);
  connectDeveloperButtons(window_.controls(), prefix_, userVerbs_);
}

Program::~Program() = default;

// What one part needs of another that is made after it, or does not know.
void Program::connectParts(const Environment& given) {
  typing_.openHelpWith(help_.help());
  window_.scaling().setQuestion([given] {
    if (given.messages.show(dictionary::MessageId::resolutionTooLow) == dictionary::Button::yes)
      return true;
    given.end();
    return false;
  });
  closing_.askWith([this] { return editing_.leaveForClosing(); });
  closing_.stayWith([this] { editing_.stay(); });
  tips_.demonstrateWith(
      [&messages = given.messages] { messages.show(dictionary::MessageId::demonstrationWillRun); },
      [this](int way) { demonstration_.run(way); });
  QObject::connect(&window_, &MainWindow::conjugated, &window_,
                   [this] { settings_.countConjugation(); });
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
