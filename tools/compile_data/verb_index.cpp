// The general verb index: infinitives in dictionary order, with their records.
#include <algorithm>
#include <array>
#include <cstdint>

#include "engine/initial_letter.h"
#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

struct Index {
  std::vector<std::string> verbs, records;
  std::vector<std::uint32_t> recordOfVerb;
  std::array<std::uint32_t, 27> firstOfLetter{};
};

std::uint32_t recordNumber(Index& index, const std::string& record) {
  const auto found = std::find(index.records.begin(), index.records.end(), record);
  if (found == index.records.end()) index.records.push_back(record);
  return static_cast<std::uint32_t>(std::find(index.records.begin(), index.records.end(), record) -
                                    index.records.begin());
}

Index readIndex(const SourceFile& file) {
  Index index;
  char letter = 'a';
  for (const SourceLine& line : file.lines) {
    const std::vector<std::string> fields = split(line.text, '\t');
    if (fields.size() != 2) file.fail(line, "a verb, a tab and a record are expected");
    const std::string verb = french(file, line, fields[0]);
    const char initial = engine::initialLetter(verb.empty() ? '\0' : verb[0]);
    if (initial < letter) file.fail(line, "no letter, or the letters are not in order");
    while (letter < initial)
      index.firstOfLetter[static_cast<std::size_t>(++letter - 'a')] =
          static_cast<std::uint32_t>(index.verbs.size());
    index.recordOfVerb.push_back(recordNumber(index, french(file, line, fields[1])));
    index.verbs.push_back(verb);
  }
  while (letter <= 'z')
    index.firstOfLetter[static_cast<std::size_t>(++letter - 'a')] =
        static_cast<std::uint32_t>(index.verbs.size());
  return index;
}

void refuseDoubles(const SourceFile& file, std::vector<std::string> verbs) {
  std::sort(verbs.begin(), verbs.end());
  if (std::adjacent_find(verbs.begin(), verbs.end()) != verbs.end())
    file.fail(file.lines.back(), "a verb stands twice");
}

void writeTexts(std::ostream& out, const std::vector<std::string>& texts, const char* offsets,
                const char* bytes) {
  TextBlock block;
  for (const std::string& text : texts) block.add(text);
  block.write(out, offsets, bytes);
}

}  // namespace

void generateVerbIndex(const Paths& sources, std::ostream& out) {
  const SourceFile file = readSource(sources.at(0));
  const Index index = readIndex(file);
  refuseDoubles(file, index.verbs);
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
