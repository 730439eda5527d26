// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing one record.
#include "dictionary/user_record.h"

#include <algorithm>
#include <charconv>

#include "disk/fields.h"
#include "engine/normalization.h"

namespace odmiennik::dictionary {
namespace {

constexpr int kFieldCount = engine::kSlotCount + 1;
constexpr std::string_view kLineEnd = "\r\n";

void appendForm(std::string& line, std::string_view form) {
  for (const char letter : engine::trimmed(form))
    line += letter == '\r' || letter == '\n' ? ' ' : letter;
  line += ',';
}

// What stands between two commas of a form is a field of the line.
bool holdsQuotedField(std::string_view form) {
  while (true) {
    const auto comma = form.find(',');
    if (engine::trimmed(form.substr(0, comma)).starts_with('"')) return true;
    if (comma == std::string_view::npos) return false;
    form.remove_prefix(comma + 1);
  }
}

void appendFlag(std::string& line, std::uint8_t flag) {
  line += ' ';
  line += std::to_string(flag);
  line += kLineEnd;
}

struct RecordParts {
  std::string_view infinitive;
  std::string_view flag;
};

std::optional<RecordParts> partsOfQuotedLine(std::string_view line) {
  disk::FieldScanner fields(line);
  RecordParts parts;
  int count = 0;
  for (; fields.next(parts.flag); ++count)
    if (count == engine::slot::kInfinitive) parts.infinitive = parts.flag;
  if (count < kFieldCount) return std::nullopt;
  return parts;
}

// What a look-up does with every line but a few: without quotes, the fields are what stands between
// the commas, and the two that are asked for stand near the end.
std::optional<RecordParts> partsOfPlainLine(std::string_view line) {
  auto commas = std::ranges::count(line, ',');
  if (commas < kFieldCount - 1) return std::nullopt;
  const std::string_view flag = line.substr(line.rfind(',') + 1);
  for (; commas > engine::slot::kInfinitive; --commas) line = line.substr(0, line.rfind(','));
  return RecordParts{engine::trimmed(line.substr(line.rfind(',') + 1)), flag};
}

}  // namespace

std::optional<std::uint8_t> parseFlag(std::string_view field) {
  field = engine::trimmed(field);
  const bool isNegative = field.starts_with('-');
  if (isNegative || field.starts_with('+')) field.remove_prefix(1);
  const auto point = field.find('.');
  if (point != std::string_view::npos) {
    if (field.find_first_not_of('0', point + 1) != std::string_view::npos) return std::nullopt;
    field = field.substr(0, point);
  }
  std::uint8_t flag = 0;
  const auto [end, fault] = std::from_chars(field.data(), field.data() + field.size(), flag);
  if (fault != std::errc() || end != field.data() + field.size()) return std::nullopt;
  if (isNegative && flag != 0) return std::nullopt;
  return flag;
}

std::optional<RecordOutline> outlineOf(std::string_view line) {
  const bool isQuoted = line.find('"') != std::string_view::npos;
  const auto parts = isQuoted ? partsOfQuotedLine(line) : partsOfPlainLine(line);
  const auto flag = parts ? parseFlag(parts->flag) : std::nullopt;
  if (!flag) return std::nullopt;
  return RecordOutline{parts->infinitive, *flag};
}

void readForms(std::string_view line, engine::FormTable& forms) {
  disk::FieldScanner fields(line);
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    std::string_view field;
    forms[slot].assign(fields.next(field) ? field : std::string_view{});
  }
  std::string& infinitive = forms[engine::slot::kInfinitive];
  infinitive = engine::keptInfinitive(infinitive);
}

std::string recordLine(const UserVerbRecord& record) {
  std::string line;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const std::string& form = record.forms[slot];
    appendForm(line, slot == engine::slot::kInfinitive ? engine::keptInfinitive(form) : form);
  }
  appendFlag(line, record.auxiliary);
  return line;
}

std::optional<int> quotedForm(const UserVerbRecord& record) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    if (holdsQuotedField(record.forms[slot])) return slot;
  return std::nullopt;
}

std::string rewrittenLine(std::string_view line) {
  std::string rewritten;
  disk::FieldScanner fields(line);
  std::string_view field, following;
  bool hasField = fields.next(field);
  while (hasField) {
    hasField = fields.next(following);
    if (hasField)
      appendForm(rewritten, field);
    else
      appendFlag(rewritten, parseFlag(field).value_or(0));
    field = following;
  }
  return rewritten;
}

}  // namespace odmiennik::dictionary
