// SPDX-License-Identifier: GPL-3.0-or-later
// Building the resource script and joining texts.
#include "dictionary/developer_tools.h"

#include "dictionary/user_record_reader.h"
#include "disk/names.h"
#include "disk/replacement.h"
#include "engine/string_table.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;
namespace text_id = engine::text_id;

constexpr std::size_t kPrintZone = 14;
constexpr std::string_view kLineBreak = "\r\n";

// `4000          "vais"`: the text begins in the second print zone.
void writeEntry(disk::FileReplacement& script, std::string identifier, std::string_view text) {
  identifier.resize((identifier.size() / kPrintZone + 1) * kPrintZone, ' ');
  script.write(identifier + '"');
  script.write(text);
  script.write("\"\r\n");
}

// The identifier of infinitive `number`: "3001", and "31000" for the thousandth.
std::string infinitiveIdentifier(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return "3" + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

void writeInfinitive(disk::FileReplacement& script, const UserRecordReader& records) {
  writeEntry(script, infinitiveIdentifier(records.number()), records.outline().infinitive);
}

void writeForms(disk::FileReplacement& script, const UserRecordReader& records) {
  engine::FormTable forms;
  readForms(records.line(), forms);
  std::int64_t identifier =
      text_id::kBuiltinForms + text_id::kEntriesPerBuiltin * (records.number() - 1);
  for (const std::string& form : forms)
    writeEntry(script, std::to_string(identifier++), form.empty() ? engine::kMissing : form);
  writeEntry(script, std::to_string(identifier), std::to_string(records.outline().flag));
}

using WriteRecord = void (*)(disk::FileReplacement&, const UserRecordReader&);

bool writeEach(std::unique_ptr<disk::InputFile> verbs, std::int32_t count,
               disk::FileReplacement& script, WriteRecord writeRecord) {
  UserRecordReader records(std::move(verbs));
  while (records.number() < count) {
    if (records.next() != RecordRead::record) return false;
    writeRecord(script, records);
  }
  return true;
}

// False when the file is there and cannot be read.
bool appendLines(disk::FileSystem& files, const fs::path& source, disk::FileReplacement& joined) {
  const auto file = files.open(source);
  if (!file) return false;
  disk::LineReader lines(*file);
  disk::Line line;
  disk::LineRead status;
  while ((status = lines.next(line)) == disk::LineRead::line) {
    joined.write(line.text);
    if (!line.isCut) joined.write(kLineBreak);
  }
  if (line.isCut) joined.write(kLineBreak);
  return status == disk::LineRead::endOfFile;
}

}  // namespace

fs::path resourceScriptPath([[maybe_unused]] Utf8View prefix) {
#ifdef _WIN32
  return disk::pathOf("D:\\PROGRAMY\\PROGRAMOWANIE\\RC\\Czasowniki\\odmiana.rc");
#else
  return disk::findFile(prefix, "odmiana.rc").path;
#endif
}

bool buildResourceScript(Utf8View prefix, std::int32_t count, const fs::path& script,
                         disk::FileSystem& files) {
  const auto verbs = disk::existingFile(prefix, "czasowniki.dat", files);
  if (!verbs) return false;
  disk::FileReplacement entries(files,
                                disk::fileToReplace(files, {files.presence(script), script}));
  writeEntry(entries, std::to_string(text_id::kBuiltinCount), std::to_string(count));
  return writeEach(files.open(*verbs), count, entries, writeInfinitive) &&
         writeEach(files.open(*verbs), count, entries, writeForms) && entries.finish() &&
         entries.swapIn();
}

bool joinTextFiles(Utf8View prefix, disk::FileSystem& files) {
  constexpr int kFirstText = 196, kLastText = 252;
  const Utf8Text texts =
      Utf8Text(prefix) + "teksty" + static_cast<char>(fs::path::preferred_separator);
  disk::FileReplacement joined(
      files, disk::fileToReplace(files, disk::findFile(texts, "Połącz.txt", files)));
  // deliberate: even numbers only
  for (int number = kFirstText; number <= kLastText; number += 2)
    if (const auto source = disk::existingFile(texts, decimal(number) + ".txt", files))
      if (!appendLines(files, *source, joined)) return false;
  return joined.finish() && joined.swapIn();
}

}  // namespace odmiennik::dictionary
