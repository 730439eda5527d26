// SPDX-License-Identifier: GPL-3.0-or-later
// The general verb index: infinitives in dictionary order, with their records.
#include <algorithm>
#include <array>
#include <cstdint>

#include "engine/plain_letters.h"
#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

struct Index {
  std::vector<std::string> verbs;
  std::vector<Utf8Text> records;  // letters and digits alone
  std::vector<std::uint32_t> recordOfVerb;
  std::array<std::uint32_t, 27> firstOfLetter{};
};

std::uint32_t recordNumber(Index& index, const Utf8Text& record) {
  const auto found = std::find(index.records.begin(), index.records.end(), record);
  if (found == index.records.end()) index.records.push_back(record);
  return static_cast<std::uint32_t>(std::find(index.records.begin(), index.records.end(), record) -
                                    index.records.begin());
}

// A field that is one digit from 1 on.
void checkDigit(const LineReader& line, const Utf8Text& field, char last, Utf8View name) {
  if (field.size() != 1 || field[0] < '1' || field[0] > last)
    line.fail(inQuotes(field) + " is no " + Utf8Text(name));
}

// "h|1|1|2|1|0": perhaps "h"; group, transitive, intransitive, auxiliary; perhaps flags.
void checkRecord(const LineReader& line, const Utf8Text& record) {
  const std::vector<Utf8Text> fields = split(record, '|');
  if (fields.size() != 5 && fields.size() != 6) line.fail("a record has four fields or five");
  if (!fields[0].empty() && fields[0] != "h") line.fail("only \"h\" stands before the record");
  checkDigit(line, fields[1], '4', "group");
  checkDigit(line, fields[2], '4', "use");
  checkDigit(line, fields[3], '4', "use");
  checkDigit(line, fields[4], '3', "auxiliary");
  const Utf8Text flags = fields.size() == 6 ? fields[5] : "none";
  if (flags != "none" && flags != "0" && flags != "1" && flags != "2")
    line.fail(inQuotes(flags) + " is no flag");
  // The engine looks for the "h" only where flags follow.
  if (fields[0] == "h" && flags != "0") line.fail("behind \"h\" the flags are 0");
}

Index readIndex(const SourceFile& file) {
  Index index;
  Once once;
  char letter = 'a';
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    const std::vector<Utf8Text> fields = split(source.text, '\t');
    if (fields.size() != 2) line.fail("a verb, a tab and a record are expected");
    once.note(line, fields[0]);
    checkRecord(line, fields[1]);
    const std::string verb = line.french(fields[0]);
    const char initial = engine::initialLetter(verb.empty() ? '\0' : verb[0]);
    if (initial < letter) line.fail("no letter, or the letters are not in order");
    while (letter < initial)
      index.firstOfLetter[static_cast<std::size_t>(++letter - 'a')] =
          static_cast<std::uint32_t>(index.verbs.size());
    index.recordOfVerb.push_back(recordNumber(index, fields[1]));
    index.verbs.push_back(verb);
  }
  while (letter <= 'z')
    index.firstOfLetter[static_cast<std::size_t>(++letter - 'a')] =
        static_cast<std::uint32_t>(index.verbs.size());
  return index;
}

template <typename Text>
void writeTexts(std::ostream& out, const std::vector<Text>& texts, const char* offsets,
                const char* bytes) {
  TextBlock block;
  for (const Text& text : texts) block.add({text.data(), text.size()});
  block.write(out, offsets, bytes);
}

}  // namespace

void generateVerbIndex(const Paths& sources, std::ostream& out) {
  const SourceFile file = readSource(sources.at(0));
  const Index index = readIndex(file);
  const std::vector<std::uint32_t> table = hashTable(index.verbs);
  out << "#include \"dictionary/verb_index_data.h\"\nnamespace odmiennik::dictionary::data {\n";
  writeTexts(out, index.verbs, "kVerbOffsets", "kVerbBytes");
  writeTexts(out, index.records, "kRecordOffsets", "kRecordBytes");
  writeNumbers(out, "std::uint8_t", "kRecordOfVerb", index.recordOfVerb);
  writeNumbers(out, "std::uint16_t", "kFirstOfLetter",
               {index.firstOfLetter.begin(), index.firstOfLetter.end()});
  writeNumbers(out, "std::uint16_t", "kVerbHash", table);
  out << "const std::uint32_t kVerbHashSize = " << table.size() << ";\n}\n";
}

}  // namespace odmiennik::tools
