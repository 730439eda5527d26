// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into the list: the letters of one go, and the verb that they lead to.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::app {

class VerbSearch {
 public:
  // The entry that one more key leads to, accents and case aside; `isContinued` when it followed
  // the key before it without a pause. The first key of a go leads past the current entry, so that
  // one letter typed again and again visits all verbs that begin with it. Nothing when no entry
  // begins with what has been typed.
  [[nodiscard]] std::optional<std::size_t> type(std::string_view key, bool isContinued,
                                                const std::vector<std::string>& entries,
                                                std::optional<std::size_t> current);

 private:
  std::string typed_;
};

}  // namespace odmiennik::app
