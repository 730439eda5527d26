// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any bytes as the file of the user's verbs; what is read, written and read again is
// the same.
#include <string>
#include <string_view>

#include "dictionary/user_record.h"
#include "dictionary/user_verbs.h"
#include "disk/fields.h"
#include "engine/normalization.h"
#include "engine/windows1252.h"
#include "tests/fuzz/fuzz_input.h"
#include "tests/fuzz/memory_files.h"

namespace odmiennik::testing {
namespace {

using namespace dictionary;
using Texts = std::vector<std::string>;

constexpr const char* kFile = "Czasowniki.dat";
constexpr std::string_view kNewVerb = "zzyzer";

struct CountedMessages final : MessageBoxes {
  Button show(MessageId id, Utf8View argument) override {
    ++shown;
    require(!messageText(id, argument).empty(), "a message says something");
    return row(id).defaultButton;
  }
  int shown = 0;
};

struct Program {
  explicit Program(MemoryFiles& files, std::int32_t count) : verbs("", count, messages, files) {}
  CountedMessages messages;
  UserVerbsFile verbs;
};

UserVerbRecord newRecord() {
  UserVerbRecord record;
  record.forms[0] = "zzyze";
  record.forms[engine::slot::kInfinitive] = kNewVerb;
  return record;
}

// deliberate: the writer quotes nothing, so a foreign quoted form with a comma comes back split and
// shifts those behind it.
bool hasQuote(std::string_view text) { return text.find('"') != std::string_view::npos; }

// A line that is written from what was read says the same when it is read.
void requireSameForms(std::string_view line) {
  if (!outlineOf(line)) return;
  const std::string written = rewrittenLine(line);
  require(written.ends_with("\r\n"), "a written line is ended");
  const std::string_view again = std::string_view(written).substr(0, written.size() - 2);
  require(outlineOf(again).has_value(), "what is written is no damage");
  if (hasQuote(line)) return;
  require(rewrittenLine(again) == written, "what was written once is written the same again");
  engine::FormTable before, after;
  readForms(line, before);
  readForms(again, after);
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    require(before[slot] == after[slot], "a form survives being written");
}

void requireSameLines(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto end = bytes.find_first_of("\r\n");
    requireSameForms(bytes.substr(0, end));
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
  }
}

void saveAndDelete(MemoryFiles& files, const Texts& before, std::int32_t lines) {
  Program program(files, lines);
  const std::string old = files.content(kFile);
  require(program.verbs.save(newRecord()) != SaveResult::failed, "a save that may write succeeds");
  engine::FormTable forms;
  std::uint8_t auxiliary = 0;
  require(program.verbs.load(kNewVerb, forms, auxiliary), "what was saved is found");
  require(forms[0] == "zzyze", "what was saved is read");
  Texts after = program.verbs.infinitives();
  std::string wanted, stored;
  engine::normalize(kNewVerb, wanted);
  const auto isNew = [&](const std::string& verb) {
    engine::normalize(verb, stored);
    return stored == wanted;
  };
  if (hasQuote(old)) return;
  Texts others = before;
  std::erase_if(others, isNew);
  std::erase_if(after, isNew);
  require(after == others, "a save loses and invents no other verb");
  require(program.verbs.remove(kNewVerb) == DeleteResult::deleted, "what was saved can be deleted");
  require(program.verbs.infinitives() == others, "a delete loses no other verb");
  require(files.content(kFile + std::string(".new")).empty(), "nothing is left beside the file");
  if (others.size() == before.size()) {
    Program third(files, lines);
    require(third.verbs.infinitives() == others, "a new start sees the same");
  }
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  requireSameLines(bytes);
  MemoryFiles files;
  files.put(kFile, bytes);
  constexpr std::int32_t kMoreThanThereAre = 1 << 30;
  Program program(files, kMoreThanThereAre);
  const Texts listed = program.verbs.infinitives();
  require(program.messages.shown <= 1, "damage is told once");
  std::string wanted;
  for (const std::string& verb : listed) {
    odmiennik::engine::FormTable forms;
    std::uint8_t auxiliary = 2;
    odmiennik::engine::normalize(verb, wanted);
    require(program.verbs.load(wanted, forms, auxiliary), "what is listed is found");
    require(auxiliary <= 1, "the auxiliary is avoir or être");
  }
  require(files.content(kFile) == bytes, "reading changes nothing");
  saveAndDelete(files, listed, kMoreThanThereAre);
  return 0;
}
