// SPDX-License-Identifier: GPL-3.0-or-later
// The check of a compiled help file's directory.
#include "app/help/help_file_check.h"

#include <bit>
#include <cstdint>
#include <optional>
#include <vector>

namespace odmiennik::app {
namespace {

constexpr std::size_t kLongestName = 512;  // libchm's buffer for a name
constexpr int kDeepest = 8;
constexpr std::uint32_t kSmallestPage = 256;
constexpr std::uint32_t kLargestPage = 65536;

// A number of `size` bytes, least significant byte first; nothing outside the text.
std::optional<std::uint64_t> number(std::string_view bytes, std::uint64_t place, std::size_t size) {
  if (place > bytes.size() || bytes.size() - place < size) return std::nullopt;
  std::uint64_t value = 0;
  for (std::size_t i = size; i-- > 0;)
    value = value << 8 | static_cast<unsigned char>(bytes[static_cast<std::size_t>(place) + i]);
  return value;
}

std::uint32_t word(std::string_view bytes, std::uint64_t place) {
  return static_cast<std::uint32_t>(number(bytes, place, 4).value_or(0));
}

// Takes a number written in groups of seven bits off the text.
std::optional<std::uint64_t> takeNumber(std::string_view& bytes) {
  std::uint64_t value = 0;
  while (!bytes.empty()) {
    const auto group = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    value = value << 7 | (group & 0x7F);
    if (group < 0x80) return value;
  }
  return std::nullopt;
}

bool takeName(std::string_view& bytes) {
  const auto length = takeNumber(bytes);
  if (!length || *length > kLongestName || *length > bytes.size()) return false;
  bytes.remove_prefix(static_cast<std::size_t>(*length));
  return true;
}

// The tree of pages by which a name is found.
class Directory {
 public:
  Directory(std::string_view pages, std::uint32_t pageSize)
      : pages_(pages), pageSize_(pageSize), states_(pages.size() / pageSize) {}

  [[nodiscard]] bool isSound(std::uint64_t page, int depth = 0) {
    if (page >= states_.size() || depth > kDeepest) return false;
    State& state = states_[static_cast<std::size_t>(page)];
    if (state == State::entered) return false;  // a circle
    if (state == State::sound) return true;
    state = State::entered;
    if (!isSoundPage(pages_.substr(static_cast<std::size_t>(page) * pageSize_, pageSize_), depth))
      return false;
    states_[static_cast<std::size_t>(page)] = State::sound;
    return true;
  }

 private:
  enum class State : std::uint8_t { unseen, entered, sound };

  [[nodiscard]] bool isSoundPage(std::string_view page, int depth) {
    if (page.starts_with("PMGL")) return isSoundListing(page);
    return page.starts_with("PMGI") && isSoundIndex(page, depth);
  }

  // What stands between the page's header and its free space.
  [[nodiscard]] static std::optional<std::string_view> entries(std::string_view page,
                                                               std::size_t header) {
    const std::uint32_t free = word(page, 4);
    if (free > page.size() - header) return std::nullopt;
    return page.substr(header, page.size() - header - free);
  }

  [[nodiscard]] static bool isSoundListing(std::string_view page) {
    constexpr std::size_t kHeader = 20;
    auto rest = entries(page, kHeader);
    while (rest && !rest->empty()) {
      if (!takeName(*rest)) return false;
      for (int part = 0; part < 3; ++part)  // section, place, length
        if (!takeNumber(*rest)) return false;
    }
    return rest.has_value();
  }

  [[nodiscard]] bool isSoundIndex(std::string_view page, int depth) {
    constexpr std::size_t kHeader = 8;
    auto rest = entries(page, kHeader);
    while (rest && !rest->empty()) {
      if (!takeName(*rest)) return false;
      const auto below = takeNumber(*rest);
      if (!below || !isSound(*below, depth + 1)) return false;
    }
    return rest.has_value();
  }

  std::string_view pages_;
  std::uint32_t pageSize_;
  std::vector<State> states_;
};

// The directory's header and its pages; nothing when they do not lie inside the file.
std::optional<std::string_view> directoryOf(std::string_view bytes) {
  const auto place = number(bytes, 0x48, 8);
  const auto length = number(bytes, 0x50, 8);
  if (!bytes.starts_with("ITSF") || !place || !length) return std::nullopt;
  if (*place > bytes.size() || *length > bytes.size() - *place) return std::nullopt;
  return bytes.substr(static_cast<std::size_t>(*place), static_cast<std::size_t>(*length));
}

}  // namespace

bool hasSoundDirectory(std::string_view bytes) {
  const auto directory = directoryOf(bytes);
  if (!directory || !directory->starts_with("ITSP") || directory->size() < 0x54) return false;
  const std::uint32_t header = word(*directory, 0x08);
  const std::uint32_t pageSize = word(*directory, 0x10);
  if (header > directory->size()) return false;
  if (pageSize < kSmallestPage || pageSize > kLargestPage) return false;
  constexpr std::uint32_t kNone = 0x80000000;  // a negative root: the listing is the whole tree
  const std::uint32_t root = word(*directory, 0x1C);
  const std::uint32_t first = word(*directory, 0x20);
  return Directory(directory->substr(header), pageSize).isSound(root < kNone ? root : first);
}

bool canBeUnpacked(std::string_view controlData, std::string_view resetTable) {
  constexpr std::uint64_t kBlock = 0x8000;
  constexpr std::uint64_t kLargestWindow = 64 * kBlock;
  const std::uint64_t unit = word(controlData, 8) == 2 ? kBlock : 1;
  const std::uint64_t interval = word(controlData, 12) * unit;
  const std::uint64_t window = word(controlData, 16) * unit;
  const std::uint32_t windowsPerReset = word(controlData, 20);
  return controlData.substr(0, 8).ends_with("LZXC") && std::has_single_bit(window) &&
         window >= kBlock && window <= kLargestWindow && interval >= window / 2 &&
         interval <= kLargestWindow && windowsPerReset > 0 && windowsPerReset <= 64 &&
         number(resetTable, 0x20, 8) == kBlock;
}

}  // namespace odmiennik::app
