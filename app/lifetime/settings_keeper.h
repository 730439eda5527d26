// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of the running program: read at start, written at the end.
#pragma once

#include <cstdint>
#include <functional>

#include "app/logic/colour_dialog.h"
#include "dictionary/messages.h"
#include "dictionary/user_verbs.h"
#include "disk/settings.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// The colours of the headings, which the window keeps.
struct HeadingColourPort {
  std::function<ColourNumbers()> design;       // of the first headings as they were designed
  std::function<ColourNumbers()> live;         // of the first headings as they stand
  std::function<void(ColourNumbers)> applyTo;  // the headings and the rules
};

// Keeps Werbolin.cfg and the counters in it. Whatever happens to the file, the program works on:
// each failure is told once, where it happens.
class SettingsKeeper {
 public:
  // `end` ends the program at once, without asking and without saving.
  struct Parts {
    Utf8Text prefix;  // of every file name
    dictionary::UserVerbsFile& userVerbs;
    HeadingColourPort colours;
    dictionary::MessageBoxes& messages;
    std::function<void()> end;
    disk::FileSystem& files = disk::systemFiles();
  };
  explicit SettingsKeeper(Parts parts) : parts_(std::move(parts)) {}

  // Reads the file, which is created first when there is none, applies its colours and gives the
  // user's verbs their number. Of a damaged file what stands before the damage is taken, and the
  // colours stay as they are.
  void ReadSettings();

  // Writes the settings of a first start; changes nothing in the running program.
  void WriteDefaultSettings();

  // Writes the counters and the colours that the headings show. A file that could not be read at
  // the start is not overwritten: that the settings are not saved is told.
  void SaveSettings();

  // The same where nobody can be asked or told any more; false when they could not be written.
  [[nodiscard]] bool saveSilently();

  // The hidden command "resetuj": asks, and unless cancelled leaves the default settings behind and
  // ends the program. The per-user store is not touched.
  void ResetSettings();

  // One verb more; one start more. A counter that is full stays there.
  void countConjugation();
  void countRun();

  // The verbs conjugated since the first run, and the starts of the program.
  [[nodiscard]] std::int32_t conjugationCount() const { return settings_.conjugationCount; }
  [[nodiscard]] std::int32_t runCount() const { return settings_.runCount; }

 private:
  [[nodiscard]] disk::Settings current();
  void write(const disk::Settings& settings);

  Parts parts_;
  disk::Settings settings_;
  bool isFileUnread_ = false;  // there is a file, and nobody knows what it holds
};

}  // namespace odmiennik::app
