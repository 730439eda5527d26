// SPDX-License-Identifier: GPL-3.0-or-later
// The numbered string table: small texts, tips and built-in verbs.
#include <map>

#include "engine/normalization.h"
#include "engine/string_table.h"
#include "tools/compile_data/builtin_verbs.h"
#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

using Texts = std::map<int, std::string>;
namespace text_id = engine::text_id;

void addText(Texts& texts, int identifier, std::string_view text, const LineReader& line) {
  if (!texts.emplace(identifier, text).second)
    line.fail("identifier " + decimal(identifier) + " stands twice");
}

// `1 "me " "te "`: texts of consecutive identifiers.
void addSmallTexts(Texts& texts, const std::string& path) {
  const SourceFile file = readSource(path);
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    int identifier = line.takeNumber(0, text_id::kLast);
    do addText(texts, identifier++, line.french(line.takeQuoted()), line);
    while (!line.isAtEnd());
  }
}

// A tip a line, kept in UTF-8; the entry before them is their number.
void addTips(Texts& texts, const std::string& path) {
  const SourceFile file = readSource(path);
  int identifier = text_id::kTipCount;
  texts[identifier] = std::to_string(file.lines.size());
  for (const SourceLine& line : file.lines)
    addText(texts, ++identifier, bytesOf(line.text), LineReader(file, line));
}

void addBuiltinVerbs(Texts& texts, const std::vector<BuiltinVerb>& verbs) {
  texts[text_id::kBuiltinCount] = std::to_string(verbs.size());
  int name = text_id::kBuiltinCount;
  int entry = text_id::kBuiltinForms;
  for (const BuiltinVerb& verb : verbs) {
    texts[++name] = verb.infinitive;
    for (const std::string& form : verb.forms) texts[entry++] = form;
    texts[entry++] = verb.isAvoir ? "1" : "0";
  }
}

// One offset for every identifier from 0 on, so that a text is found without a search.
void writeTexts(std::ostream& out, const Texts& texts) {
  if (texts.rbegin()->first != text_id::kLast)
    throw std::runtime_error("the string table must end at " + std::to_string(text_id::kLast));
  TextBlock block;
  for (int identifier = 0; identifier <= text_id::kLast; ++identifier) {
    const auto text = texts.find(identifier);
    block.add(text == texts.end() ? std::string_view{} : text->second);
  }
  out << "namespace odmiennik::engine::data {\n";
  block.write(out, "kStringOffsets", "kStringBytes");
  out << "}\n";
}

void writeKeys(std::ostream& out, const std::vector<BuiltinVerb>& verbs) {
  std::vector<std::string> keys;
  for (const BuiltinVerb& verb : verbs) keys.push_back(engine::lookupKey(verb.infinitive));
  TextBlock block;
  for (const std::string& key : keys) block.add(key);
  const std::vector<std::uint32_t> table = hashTable(keys);
  out << "namespace odmiennik::dictionary::data {\n";
  block.write(out, "kBuiltinKeyOffsets", "kBuiltinKeyBytes");
  writeNumbers(out, "std::uint8_t", "kBuiltinHash", table);
  out << "const std::uint32_t kBuiltinHashSize = " << table.size() << ";\n}\n";
}

}  // namespace

void generateStrings(const Paths& sources, std::ostream& out) {
  Texts texts;
  const TenseTable tenses(sources.at(0));
  addSmallTexts(texts, sources.at(1));
  addTips(texts, sources.at(2));
  const std::vector<BuiltinVerb> verbs = readBuiltinVerbs(sources.at(3), tenses);
  addBuiltinVerbs(texts, verbs);
  out << "#include \"dictionary/builtin_verbs_data.h\"\n"
         "#include \"engine/string_table_data.h\"\n";
  writeTexts(out, texts);
  writeKeys(out, verbs);
}

}  // namespace odmiennik::tools
