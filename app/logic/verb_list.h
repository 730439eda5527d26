// SPDX-License-Identifier: GPL-3.0-or-later
// The verb list: what stands in it and which of its controls are enabled.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::app {

// deliberate: a fixed number, the size of the general verb index, also behind the user's own verbs.
inline constexpr int kListedVerbs = 7342;

// The items of cmbLista: the user's own verbs, then the letters.
inline constexpr std::array<Utf8View, 27> kListChoices{"Wprowadzone przez użytkownika",
                                                       "a",
                                                       "b",
                                                       "c",
                                                       "d",
                                                       "e",
                                                       "f",
                                                       "g",
                                                       "h",
                                                       "i",
                                                       "j",
                                                       "k",
                                                       "l",
                                                       "m",
                                                       "n",
                                                       "o",
                                                       "p",
                                                       "q",
                                                       "r",
                                                       "s",
                                                       "t",
                                                       "u",
                                                       "v",
                                                       "w",
                                                       "x",
                                                       "y",
                                                       "z"};

// The letter of an item, 1 to 26: letterOfChoice(1) -> 'a'.
[[nodiscard]] constexpr char letterOfChoice(int choice) { return static_cast<char>(choice + 96); }

// The user-verbs file as the list is filled from it.
struct UserVerbsFound {
  bool isFilePresent = false;
  std::vector<std::string> infinitives;  // in file order
  std::int32_t storedCount = 0;
};

struct ListEnabling {
  bool lstCzasowniki = false;
  bool cmdOdmień = false;
  bool cmdEdytuj = false;
  bool cmdUsuń = false;
  bool cmdDrukuj = false;

  bool operator==(const ListEnabling&) const = default;
};

class VerbList {
 public:
  // Loads the user's own verbs, as the window does when it is loaded. The stored count decides what
  // is enabled, however many records the file has.
  void loadUserVerbs(UserVerbsFound found);

  // The same, chosen in cmbLista: what is enabled then follows the entries, but for cmdUsuń.
  void chooseUserVerbs(UserVerbsFound found);

  // The same for verbs that were saved or deleted elsewhere meanwhile: the selected verb stays
  // selected; when it is gone, what stands in its place is.
  void followUserVerbs(UserVerbsFound found);

  // A letter is filled verb by verb; meanwhile the list is disabled and out of sight.
  void beginLetter();
  void add(std::string_view verb) { entries_.emplace_back(verb); }
  void finishLetter();

  // The record of `infinitive` has been deleted: every entry of it goes, and the neighbour of the
  // selected one is selected. An infinitive that is not in the list changes nothing.
  void drop(std::string_view infinitive);

  // A place outside the list selects nothing.
  void select(std::size_t entry);

  [[nodiscard]] const std::vector<std::string>& entries() const { return entries_; }
  [[nodiscard]] std::optional<std::size_t> selected() const { return selected_; }
  [[nodiscard]] std::string_view selectedVerb() const;
  [[nodiscard]] const ListEnabling& enabled() const { return enabled_; }
  [[nodiscard]] bool isFilling() const { return isFilling_; }

  // "3/7342"
  [[nodiscard]] Utf8Text countLabel() const;

 private:
  void enableByEntries();
  void selectFirst();

  std::vector<std::string> entries_;
  std::optional<std::size_t> selected_;
  ListEnabling enabled_;
  bool isFilling_ = false;
};

// How wide the growing bar is once `filled` of `number` verbs stand in the list: from nothing to
// `fullWidth`, never shrinking.
[[nodiscard]] constexpr int barWidth(int filled, int number, int fullWidth) {
  if (number <= 0) return 0;
  return static_cast<int>(std::int64_t{fullWidth} * filled / number);
}

}  // namespace odmiennik::app
