// SPDX-License-Identifier: GPL-3.0-or-later
// The source of the tenses: a row a tense, below its mood.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {

struct SourceMood {
  Utf8Text name;
  Utf8Text caption;
  Utf8Text control;  // its heading in the main window
};

struct SourceTense {
  std::string constant;  // "PresentSubjunctive"
  SourceMood mood;
  int firstSlot = 0;
  int formCount = 0;
  Utf8Text name;
  Utf8Text caption;
  Utf8Text heading;  // a control of the main window
  Utf8Text page;     // empty where there is none
  bool isHeadingLink = false;

  // What the other sources call it: "subjonctif passé", in the indicative "présent".
  [[nodiscard]] Utf8Text sourceName() const;
};

class TenseTable {
 public:
  explicit TenseTable(const std::string& path);

  [[nodiscard]] const std::vector<SourceTense>& rows() const { return rows_; }
  [[nodiscard]] int slotCount() const;

  // The tense of a constant's name; a table without it is a fault.
  [[nodiscard]] const SourceTense& of(std::string_view constant) const;

 private:
  SourceFile file_;
  std::vector<SourceTense> rows_;
};

}  // namespace odmiennik::tools
