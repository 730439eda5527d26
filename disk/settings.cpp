// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file's text.
#include "disk/settings.h"

#include <charconv>
#include <optional>

#include "disk/fields.h"
#include "engine/normalization.h"

namespace odmiennik::disk {
namespace {

constexpr int kFirstEncoded = 32;  // the code of a blank, encoded as 00
constexpr char kHexDigits[] = "0123456789ABCDEF";

// The fields of a text of several lines.
class SettingsFields {
 public:
  explicit SettingsFields(std::string_view text) : rest_(text), line_(takeLine()) {}

  std::optional<std::string_view> next() {
    std::string_view field;
    while (!line_.next(field)) {
      if (rest_.empty()) return std::nullopt;
      line_ = FieldScanner(takeLine());
    }
    return field;
  }

 private:
  std::string_view takeLine() {
    const auto end = rest_.find_first_of("\r\n");
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(line.size());
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : rest_.empty() ? 0 : 1);
    return line;
  }

  std::string_view rest_;
  FieldScanner line_;
};

std::optional<std::int32_t> parseNumber(std::string_view text) {
  text = engine::trimmed(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  std::int32_t number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::optional<std::int32_t> parseEncoded(std::string_view text) {
  text = engine::trimmed(text);
  if (text.size() % 2 != 0) return std::nullopt;
  std::string decoded;
  for (std::size_t position = 0; position < text.size(); position += 2) {
    const char* const digits = text.data() + position;
    unsigned char code = 0;
    const auto [end, fault] = std::from_chars(digits, digits + 2, code, 16);
    if (fault != std::errc() || end != digits + 2) return std::nullopt;
    // What goes beyond a byte becomes a control character, which is no digit.
    decoded += static_cast<char>(code + kFirstEncoded);
  }
  return parseNumber(decoded);
}

bool take(std::optional<std::int32_t> number, std::int32_t& value) {
  if (number) value = *number;
  return number.has_value();
}

}  // namespace

bool parseSettings(std::string_view text, Settings& settings) {
  SettingsFields fields(text);
  for (std::int32_t* value : {&settings.userVerbCount, &settings.moodColour, &settings.tenseColour,
                              &settings.conjugationCount})
    if (!take(parseNumber(fields.next().value_or("")), *value)) return false;
  return take(parseEncoded(fields.next().value_or("")), settings.runCount);
}

std::string settingsText(const Settings& settings) {
  std::string text;
  for (const std::int32_t value : {settings.userVerbCount, settings.moodColour,
                                   settings.tenseColour, settings.conjugationCount})
    text += std::to_string(value) + "\r\n";
  return text + encodeRunCount(settings.runCount) + "\r\n";
}

std::string encodeRunCount(std::int32_t runCount) {
  std::string encoded;
  for (const char letter : std::to_string(runCount)) {
    const int code = letter - kFirstEncoded;
    encoded += kHexDigits[code / 16];
    encoded += kHexDigits[code % 16];
  }
  return encoded;
}

}  // namespace odmiennik::disk
