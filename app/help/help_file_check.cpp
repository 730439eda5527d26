// SPDX-License-Identifier: GPL-3.0-or-later
// The check of a compiled help file's directory.
#include "app/help/help_file_check.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::app {
namespace {

constexpr Utf8View kControlData = "::DataSpace/Storage/MSCompressed/ControlData";
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

std::optional<std::string_view> takeName(std::string_view& bytes) {
  const auto length = takeNumber(bytes);
  if (!length || *length > kLongestName || *length > bytes.size()) return std::nullopt;
  const std::string_view name = bytes.substr(0, static_cast<std::size_t>(*length));
  bytes.remove_prefix(name.size());
  return name;
}

// libchm tells names apart without regard to case.
bool isControlData(std::string_view name) { return isSameButForCase(asUtf8(name), kControlData); }

constexpr std::uint64_t kBlock = 0x8000;

// libchm divides by half a window whatever has become of reading it.
bool isSoundControlData(std::string_view record) {
  constexpr std::uint64_t kLargestWindow = 64 * kBlock;
  const std::uint64_t unit = word(record, 8) == 2 ? kBlock : 1;
  const std::uint64_t interval = word(record, 12) * unit;
  const std::uint64_t window = word(record, 16) * unit;
  const std::uint32_t windowsPerReset = word(record, 20);
  return record.substr(0, 8).ends_with("LZXC") && std::has_single_bit(window) && window >= kBlock &&
         window <= kLargestWindow && interval >= window / 2 && interval % (window / 2) == 0 &&
         interval <= kLargestWindow && windowsPerReset > 0 && windowsPerReset <= 64;
}

// The tree of pages by which a name is found.
class Directory {
 public:
  Directory(std::string_view pages, std::uint32_t pageSize, std::string_view contents)
      : pages_(pages), pageSize_(pageSize), contents_(contents), states_(pages.size() / pageSize) {}

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

  [[nodiscard]] bool isSoundListing(std::string_view page) const {
    constexpr std::size_t kHeader = 20;
    auto rest = entries(page, kHeader);
    while (rest && !rest->empty()) {
      const auto name = takeName(*rest);
      if (!name) return false;
      const auto section = takeNumber(*rest), place = takeNumber(*rest), length = takeNumber(*rest);
      if (!section || !place || !length) return false;
      if (isControlData(*name) && !(*section == 0 && isSoundControlData(content(*place, *length))))
        return false;
    }
    return rest.has_value();
  }

  // What stands there uncompressed; nothing where that is not inside the file.
  [[nodiscard]] std::string_view content(std::uint64_t place, std::uint64_t length) const {
    if (place > contents_.size() || length > contents_.size() - place) return {};
    return contents_.substr(static_cast<std::size_t>(place), static_cast<std::size_t>(length));
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
  std::string_view contents_;
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

// What the places of uncompressed files are counted from: behind the directory, or where a newer
// header says.
std::string_view contentsOf(std::string_view bytes, std::string_view directory) {
  const auto behind =
      static_cast<std::uint64_t>(directory.data() + directory.size() - bytes.data());
  const std::uint64_t start =
      word(bytes, 4) >= 3 ? number(bytes, 0x58, 8).value_or(behind) : behind;
  return start > bytes.size() ? std::string_view() : bytes.substr(static_cast<std::size_t>(start));
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
  return Directory(directory->substr(header), pageSize, contentsOf(bytes, *directory))
      .isSound(root < kNone ? root : first);
}

bool canBeUnpacked(std::string_view controlData, std::string_view resetTable) {
  return isSoundControlData(controlData) && number(resetTable, 0x20, 8) == kBlock;
}

}  // namespace odmiennik::app
