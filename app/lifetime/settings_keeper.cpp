// Reading, writing and resetting the settings.
#include "app/lifetime/settings_keeper.h"

#include "app/logic/start_up.h"

namespace odmiennik::app {

using dictionary::MessageId;
using dictionary::SettingsRead;

void SettingsKeeper::ReadSettings() {
  dictionary::removeUnfinishedSettings(needs_.prefix, needs_.files);
  const auto read = [this] {
    return dictionary::readSettingsFile(needs_.prefix, settings_, needs_.files);
  };
  SettingsRead result = read();
  if (result == SettingsRead::missing) {
    WriteDefaultSettings();
    result = read();
  }
  isFileUnread_ = result == SettingsRead::unreadable;
  needs_.userVerbs.startWith(settings_.userVerbCount);
  if (result == SettingsRead::read)
    needs_.colours.applyTo({settings_.moodColour, settings_.tenseColour});
  else  // also where the file could not be created
    needs_.messages.show(MessageId::settingsNotRead);
}

void SettingsKeeper::WriteDefaultSettings() {
  const auto [mood, tense] = needs_.colours.design();
  write({.moodColour = mood, .tenseColour = tense});
}

// The colours come from the headings and not from what was read: whatever was applied since is
// saved. Another program may have saved verbs that are to be counted.
dictionary::Settings SettingsKeeper::current() {
  needs_.userVerbs.lookAgain();
  const auto [mood, tense] = needs_.colours.live();
  return {.userVerbCount = needs_.userVerbs.count(),
          .moodColour = mood,
          .tenseColour = tense,
          .conjugationCount = settings_.conjugationCount,
          .runCount = settings_.runCount};
}

void SettingsKeeper::SaveSettings() {
  if (!saveSilently()) needs_.messages.show(MessageId::settingsNotWritten);
}

bool SettingsKeeper::saveSilently() {
  return !isFileUnread_ && dictionary::writeSettingsFile(needs_.prefix, current(), needs_.files);
}

void SettingsKeeper::ResetSettings() {
  if (needs_.messages.show(MessageId::settingsWillBeReset) != dictionary::Button::ok) return;
  WriteDefaultSettings();
  needs_.end();
}

void SettingsKeeper::countConjugation() { countOne(settings_.conjugationCount); }

void SettingsKeeper::countRun() { countOne(settings_.runCount); }

void SettingsKeeper::write(const dictionary::Settings& settings) {
  if (!dictionary::writeSettingsFile(needs_.prefix, settings, needs_.files))
    needs_.messages.show(MessageId::settingsNotWritten);
}

}  // namespace odmiennik::app
