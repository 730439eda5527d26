// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any bytes read as UTF-8, and any bytes written as UTF-8.
#include <string>
#include <string_view>

#include "engine/normalization.h"
#include "engine/windows1252.h"
#include "tests/fuzz/fuzz_input.h"

namespace odmiennik::testing {
namespace {

using engine::FromUtf8;
using engine::Utf8Fault;

void readAsUtf8(std::string_view bytes) {
  const FromUtf8 result = engine::fromUtf8(asUtf8(bytes));
  require(result.position <= bytes.size(), "the position is inside the text");
  require((result.fault == Utf8Fault::none) == (result.position == bytes.size()),
          "a text without a fault is read to its end");
  const bool hasAccents = bytes.find('\xCC') != std::string_view::npos;  // they become one letter
  require(hasAccents || engine::toUtf8(result.text) == asUtf8(bytes.substr(0, result.position)),
          "what was read is what was written");
}

void writeAsUtf8(const std::string& bytes) {
  const FromUtf8 back = engine::fromUtf8(engine::toUtf8(bytes));
  require(back.fault == Utf8Fault::none && back.text == bytes, "every byte survives");
}

void normalizeTwice(const std::string& bytes) {
  std::string once, twice;
  engine::normalize(bytes, once);
  engine::normalize(once, twice);
  require(once == twice, "what is normalized stays");
  require(once.size() <= bytes.size(), "normalizing adds nothing");
  require(engine::withoutReflexivePrefix(once).size() + 3 >= once.size(),
          "at most one prefix is removed");
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  readAsUtf8(bytes);
  writeAsUtf8(bytes);
  normalizeTwice(bytes);
  return 0;
}
