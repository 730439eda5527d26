// SPDX-License-Identifier: GPL-3.0-or-later
// Taking a line of a source apart, from left to right: what is not expected is a fault that names
// its file and line, and nothing on a line is passed over.
#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>

#include "engine/utf8.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {

// A word of a source and what it stands for.
template <typename Value>
struct Named {
  Utf8View word;
  Value value;
};

class LineReader {
 public:
  LineReader(const SourceFile& file, const SourceLine& line)
      : file_(&file), line_(&line), rest_(line.text) {}

  [[noreturn]] void fail(Utf8View reason) const { file_->fail(*line_, reason); }

  // A reader of a part of the line, told with the line's place.
  [[nodiscard]] LineReader at(Utf8View part) const {
    LineReader reader = *this;
    reader.rest_ = part;
    return reader;
  }

  // Takes these words if they stand next, each whole: "cut" is not taken off "cutter".
  bool take(Utf8View words);

  // The next word; `expected` is the fault told where there is none.
  Utf8View takeWord(Utf8View expected);

  // The next word as a name for the code: letters and digits, a letter first.
  std::string takeIdentifier();

  // The next word as a whole number from `least` to `most`.
  int takeNumber(int least, int most);

  // A reader of the text up to the separator, which is taken too, or of all that is left. A
  // separator with nothing behind it is a fault.
  LineReader takePart(char separator);

  // `"me "` -> "me ": the text between quotes, blanks kept.
  Utf8View takeQuoted();

  // All that is left, at least one letter of it.
  Utf8View takeRest(Utf8View expected);

  // The next word, one of a table's.
  template <typename Value, std::size_t Count>
  Value takeNamed(const std::array<Named<Value>, Count>& known) {
    const Utf8View word = takeWord("a word is expected");
    for (const Named<Value>& row : known)
      if (row.word == word) return row.value;
    fail(inQuotes(word) + " is not known here");
  }

  [[nodiscard]] Utf8View rest() const { return rest_; }
  [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }

  // Fails if anything is left over.
  void finish() const;

  // The text in Windows-1252; a letter outside it is a fault.
  [[nodiscard]] std::string french(Utf8View utf8) const {
    return tools::french(*file_, *line_, utf8);
  }

 private:
  const SourceFile* file_;
  const SourceLine* line_;
  Utf8View rest_;
};

// What may stand only once in a block or in a file.
class Once {
 public:
  // Fails at the reader's line when `what` has been noted before.
  void note(const LineReader& reader, Utf8View what);
  [[nodiscard]] bool has(Utf8View what) const { return noted_.contains(what); }

 private:
  std::set<Utf8Text, std::less<>> noted_;
};

}  // namespace odmiennik::tools
