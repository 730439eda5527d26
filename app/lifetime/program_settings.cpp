// The settings file as the window uses it.
#include "app/lifetime/program_settings.h"

#include <QPalette>

#include "app/common/colours.h"
#include "app/logic/colour_number.h"
#include "dictionary/file_names.h"
#include "dictionary/file_replacement.h"
#include "dictionary/settings.h"

namespace odmiennik::app {
namespace {

constexpr char kSettingsFile[] = "Werbolin.cfg";

std::int32_t storedColour(const QColor& colour) {
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return colourNumber({part(colour.red()), part(colour.green()), part(colour.blue())});
}

}  // namespace

std::int32_t storedUserVerbCount(const std::string& prefix) {
  dictionary::Settings settings;
  // A damaged file fills what stands before the damage, and the count stands first.
  static_cast<void>(dictionary::readSettingsFile(prefix, settings));
  return settings.userVerbCount;
}

bool writeDefaultSettings(const std::string& prefix) {
  const HeadingColours colours = designColours(QPalette());
  dictionary::Settings settings;
  settings.moodColour = storedColour(colours.mood);
  settings.tenseColour = storedColour(colours.tense);
  return dictionary::replaceFile(dictionary::systemFiles(),
                                 dictionary::fileFor(prefix, kSettingsFile),
                                 dictionary::settingsText(settings));
}

}  // namespace odmiennik::app
