// SPDX-License-Identifier: GPL-3.0-or-later
// Writing of the project's files.
#include "tools/build_help/project_files.h"

#include "tools/build_help/windows1250.h"

namespace odmiennik::tools {
namespace {

constexpr const char* kHead =
    "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\r\n"
    "<HTML><HEAD></HEAD><BODY>\r\n";
constexpr const char* kFoot = "</BODY></HTML>\r\n";

// Names of pages have French letters, which the project's Polish encoding lacks: the link to such a
// page is percent-encoded, as in the pages themselves.
std::string percentEncoded(const std::string& name) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string link;
  for (const char letter : name) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte < 0x80) {
      link += letter;
    } else {
      link.append({'%', kDigits[byte >> 4], kDigits[byte & 0xF]});
    }
  }
  return link;
}

std::string object(const std::string& title, const std::string& page) {
  return "<LI><OBJECT type=\"text/sitemap\">\r\n<param name=\"Name\" value=\"" +
         windows1250Markup(title) + "\">\r\n<param name=\"Local\" value=\"strony/" +
         percentEncoded(page) + "\">\r\n</OBJECT>\r\n";
}

}  // namespace

std::string projectFile(const std::vector<std::string>& pages) {
  std::string text = windows1250(
      "[OPTIONS]\r\n"
      "Compatibility=1.1 or later\r\n"
      "Compiled file=Werbolin.chm\r\n"
      "Contents file=Werbolin.hhc\r\n"
      "Index file=Werbolin.hhk\r\n"
      "Default topic=strony\\default.htm\r\n"
      "Full-text search=Yes\r\n"
      "Language=0x415 Polish (Poland)\r\n"
      "Title=Odmiennik – pomoc\r\n\r\n"
      "[FILES]\r\n");
  for (const char* sheet : kStyleSheets) text += std::string(sheet) + "\r\n";
  for (const std::string& page : pages) text += "strony\\" + page + "\r\n";
  // Context 2 is what the Help button of the entry box's hint asks for. chmcmd knows a page of an
  // alias by its forward slash alone, and writes its path as on the machine that compiles the help.
  return text +
         "\r\n[ALIAS]\r\nJakOdmienic=strony/JakOdmienic.htm\r\n"
         "\r\n[MAP]\r\n#define JakOdmienic 2\r\n";
}

std::string contentsFile(const std::vector<ContentsEntry>& entries) {
  std::string text = kHead;
  int level = 0;
  for (const ContentsEntry& entry : entries) {
    for (; level < entry.level; ++level) text += "<UL>\r\n";
    for (; level > entry.level; --level) text += "</UL>\r\n";
    text += object(entry.title, entry.page);
  }
  for (; level > 0; --level) text += "</UL>\r\n";
  return text + kFoot;
}

std::string indexFile(const std::vector<IndexEntry>& entries) {
  std::string text = std::string(kHead) + "<UL>\r\n";
  for (const IndexEntry& entry : entries) text += object(entry.keyword, entry.page);
  return text + "</UL>\r\n" + kFoot;
}

}  // namespace odmiennik::tools
