// SPDX-License-Identifier: GPL-3.0-or-later
// The message boxes: an enumeration and a table.
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/line_reader.h"

namespace odmiennik::tools {
namespace {

// Words of the source and the enumerators that they stand for.
constexpr std::array<Named<std::string_view>, 5> kIcons{{{"none", "Icon::none"},
                                                         {"information", "Icon::information"},
                                                         {"question", "Icon::question"},
                                                         {"exclamation", "Icon::exclamation"},
                                                         {"critical", "Icon::critical"}}};
// The default button is marked with a star.
constexpr std::array<Named<std::string_view>, 10> kButtons{{{"ok", "Button::ok"},
                                                            {"ok*", "Button::ok"},
                                                            {"cancel", "Button::cancel"},
                                                            {"cancel*", "Button::cancel"},
                                                            {"yes", "Button::yes"},
                                                            {"yes*", "Button::yes"},
                                                            {"no", "Button::no"},
                                                            {"no*", "Button::no"},
                                                            {"help", "Button::help"},
                                                            {"help*", "Button::help"}}};

struct SourceMessage {
  LineReader head;  // the block's first line, for faults of the whole block
  std::string name;
  std::string_view icon, byDefault;
  std::string buttons;
  Utf8Text title, text;
  Once once;
};

// "yes no*" -> "Button::yes | Button::no", with the marked or the first one as default.
void readButtons(LineReader& line, SourceMessage& message) {
  Once once;
  do {
    const bool isMarked = line.rest().substr(0, line.rest().find(' ')).ends_with('*');
    const std::string_view button = line.takeNamed(kButtons);
    once.note(line, asUtf8(button));
    if (isMarked) once.note(line, "*");
    if (isMarked || message.byDefault.empty()) message.byDefault = button;
    message.buttons.append(message.buttons.empty() ? "" : " | ").append(button);
  } while (!line.isAtEnd());
}

void readLine(LineReader& line, SourceMessage& message) {
  const Utf8View key = LineReader(line).takeWord("icon, buttons, title or text is expected");
  message.once.note(line, key);
  if (line.take("icon"))
    message.icon = line.takeNamed(kIcons), line.finish();
  else if (line.take("buttons"))
    readButtons(line, message);
  else if (line.take("title"))
    message.title = line.takeRest("a title is expected");
  else if (line.take("text"))
    message.text = line.takeRest("a text is expected");
  else
    line.fail("icon, buttons, title or text is expected");
}

void checkComplete(const SourceMessage& message) {
  for (const char* key : {"icon", "buttons", "text"})
    if (!message.once.has(key)) message.head.fail(inQuotes(key) + " is missing");
}

std::vector<SourceMessage> readMessages(const SourceFile& file) {
  std::vector<SourceMessage> messages;
  Once names;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    const LineReader head = line;
    if (!line.take("message")) {
      if (messages.empty()) line.fail("a message is expected");
      readLine(line, messages.back());
      continue;
    }
    if (!messages.empty()) checkComplete(messages.back());
    const std::string name = line.takeIdentifier();
    line.finish();
    names.note(line, asUtf8(name));
    messages.push_back({.head = head, .name = name});
  }
  checkComplete(messages.back());
  return messages;
}

}  // namespace

void generateMessages(const Paths& sources, std::ostream& out) {
  std::ostringstream names, rows;
  const SourceFile file = readSource(sources.at(0));
  for (const SourceMessage& message : readMessages(file)) {
    names << "  " << message.name << ",\n";
    rows << "    {MessageId::" << message.name << ", " << message.icon << ", " << message.buttons
         << ", " << message.byDefault << ", " << literal(message.title) << ",\n     "
         << literal(message.text) << "},\n";
  }
  out << "#pragma once\n#include \"dictionary/message_rows.h\"\nnamespace odmiennik::dictionary {\n"
      << "enum class MessageId : std::uint8_t {\n"
      << names.str() << "};\n"
      << "inline constexpr MessageRow kMessages[] = {\n"
      << rows.str() << "};\n}\n";
}

}  // namespace odmiennik::tools
