// SPDX-License-Identifier: GPL-3.0-or-later
// Free-form field input: the fields of a line, divided by commas.
#pragma once

#include <string_view>

namespace odmiennik::disk {

// Blanks around a field are dropped. A field that begins with a double quote ends at the closing
// one (what follows it, but for blanks and one comma, is the next field) or at the line's end; what
// it holds is taken as it is. A line has at least one field: `a , "b, c",` holds "a", "b, c" and
// "".
class FieldScanner {
 public:
  explicit FieldScanner(std::string_view line) : rest_(line) {}

  // False when the line has no further field.
  [[nodiscard]] bool next(std::string_view& field);

 private:
  void takeQuoted(std::string_view& field);
  void takePlain(std::string_view& field);

  std::string_view rest_;
  bool hasMore_ = true;
};

}  // namespace odmiennik::disk
