// The message boxes: an enumeration and a table.
#include <sstream>

#include "tools/compile_data/emit.h"
#include "tools/compile_data/generators.h"
#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

struct SourceMessage {
  std::string name, icon, buttons, title, text;
};

std::vector<SourceMessage> readMessages(const std::string& path) {
  const SourceFile file = readSource(path);
  std::vector<SourceMessage> messages;
  for (const SourceLine& line : file.lines) {
    std::string_view rest = line.text;
    if (takePrefix(rest, "message "))
      messages.push_back({.name = std::string(rest)});
    else if (messages.empty())
      file.fail(line, "a message is expected");
    else if (takePrefix(rest, "icon "))
      messages.back().icon = rest;
    else if (takePrefix(rest, "buttons "))
      messages.back().buttons = rest;
    else if (takePrefix(rest, "title "))
      messages.back().title = rest;
    else if (takePrefix(rest, "text "))
      messages.back().text = rest;
    else
      file.fail(line, "icon, buttons, title or text is expected");
  }
  for (const SourceMessage& message : messages)
    if (message.icon.empty() || message.buttons.empty() || message.text.empty())
      throw std::runtime_error(path + ": \"" + message.name + "\" is not complete");
  return messages;
}

// "yes no*" -> "Button::yes | Button::no", with the marked or the first one as default.
std::string buttonSet(const std::string& text, std::string& byDefault) {
  std::string set;
  for (std::string word : words(text)) {
    const bool isMarked = word.ends_with('*');
    if (isMarked) word.pop_back();
    if (isMarked || byDefault.empty()) byDefault = "Button::" + word;
    set += (set.empty() ? "Button::" : " | Button::") + word;
  }
  return set;
}

}  // namespace

void generateMessages(const Paths& sources, std::ostream& out) {
  std::ostringstream names, rows;
  for (const SourceMessage& message : readMessages(sources.at(0))) {
    std::string byDefault;
    const std::string buttons = buttonSet(message.buttons, byDefault);
    names << "  " << message.name << ",\n";
    rows << "    {MessageId::" << message.name << ", Icon::" << message.icon << ", " << buttons
         << ", " << byDefault << ", " << literal(message.title) << ",\n     "
         << literal(message.text) << "},\n";
  }
  out << "#pragma once\n#include \"dictionary/message_rows.h\"\nnamespace odmiennik::dictionary {\n"
      << "enum class MessageId : std::uint8_t {\n"
      << names.str() << "};\n"
      << "inline constexpr MessageRow kMessages[] = {\n"
      << rows.str() << "};\n}\n";
}

}  // namespace odmiennik::tools
