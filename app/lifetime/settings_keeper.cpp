// SPDX-License-Identifier: GPL-3.0-or-later
// Reading, writing and resetting the settings.
#include "app/lifetime/settings_keeper.h"

#include "app/logic/start_up.h"

namespace odmiennik::app {

using dictionary::MessageId;
using disk::SettingsRead;

void SettingsKeeper::ReadSettings() {
  disk::removeUnfinishedSettings(parts_.prefix, parts_.files);
  const auto read = [this] {
    return disk::readSettingsFile(parts_.prefix, settings_, parts_.files);
  };
  SettingsRead result = read();
  if (result == SettingsRead::missing) {
    WriteDefaultSettings();
    result = read();
  }
  isFileUnread_ = result == SettingsRead::unreadable;
  parts_.userVerbs.startWith(settings_.userVerbCount);
  if (result == SettingsRead::read)
    parts_.colours.applyTo({settings_.moodColour, settings_.tenseColour});
  else  // also where the file could not be created
    parts_.messages.show(MessageId::settingsNotRead);
}

void SettingsKeeper::WriteDefaultSettings() {
  const auto [mood, tense] = parts_.colours.design();
  write({.moodColour = mood, .tenseColour = tense});
}

// The colours come from the headings and not from what was read: whatever was applied since is
// saved. Another program may have saved verbs that are to be counted.
disk::Settings SettingsKeeper::current() {
  parts_.userVerbs.lookAgain();
  const auto [mood, tense] = parts_.colours.live();
  return {.userVerbCount = parts_.userVerbs.count(),
          .moodColour = mood,
          .tenseColour = tense,
          .conjugationCount = settings_.conjugationCount,
          .runCount = settings_.runCount};
}

void SettingsKeeper::SaveSettings() {
  if (!saveSilently()) parts_.messages.show(MessageId::settingsNotWritten);
}

bool SettingsKeeper::saveSilently() {
  return !isFileUnread_ && disk::writeSettingsFile(parts_.prefix, current(), parts_.files);
}

void SettingsKeeper::ResetSettings() {
  if (parts_.messages.show(MessageId::settingsWillBeReset) != dictionary::Button::ok) return;
  WriteDefaultSettings();
  parts_.end();
}

void SettingsKeeper::countConjugation() { countOne(settings_.conjugationCount); }

void SettingsKeeper::countRun() { countOne(settings_.runCount); }

void SettingsKeeper::write(const disk::Settings& settings) {
  if (!disk::writeSettingsFile(parts_.prefix, settings, parts_.files))
    parts_.messages.show(MessageId::settingsNotWritten);
}

}  // namespace odmiennik::app
