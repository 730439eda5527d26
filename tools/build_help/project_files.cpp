// SPDX-License-Identifier: GPL-3.0-or-later
// Writing of the project's files.
#include "tools/build_help/project_files.h"

#include "tools/build_help/compiled_file.h"
#include "tools/build_help/windows1250.h"

namespace odmiennik::tools {
namespace {

constexpr const char* kHead =
    "<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML//EN\">\r\n"
    "<HTML><HEAD></HEAD><BODY>\r\n";
constexpr const char* kFoot = "</BODY></HTML>\r\n";

// Names of pages have French letters, which the project's Polish encoding lacks: the link to such a
// page is percent-encoded, as in the pages themselves.
std::string percentEncoded(Utf8View name) {
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

std::string object(Utf8View title, Utf8View page) {
  return "<LI><OBJECT type=\"text/sitemap\">\r\n<param name=\"Name\" value=\"" +
         windows1250Markup(title) + "\">\r\n<param name=\"Local\" value=\"strony/" +
         percentEncoded(page) + "\">\r\n</OBJECT>\r\n";
}

}  // namespace

std::string projectFile(const std::vector<std::string>& pages,
                        const std::vector<std::string>& pictures) {
  // A binary index would hold a byte that chmcmd sets to nothing; viewers read the other index.
  std::string text = windows1250(
      "[OPTIONS]\r\n"
      "Compatibility=1.1 or later\r\n"
      "Compiled file=Werbolin.chm\r\n"
      "Contents file=Werbolin.hhc\r\n"
      "Index file=Werbolin.hhk\r\n"
      "Binary Index=No\r\n"
      "Default topic=strony\\default.htm\r\n"
      "Default Window=main\r\n"
      "Full-text search=Yes\r\n"
      "Language=0x415 Polish (Poland)\r\n"
      "Title=Odmiennik – pomoc\r\n\r\n"
      "[FILES]\r\n");
  text += std::string(kContextFile) + "\r\n";
  for (const char* sheet : kStyleSheets) text += std::string(sheet) + "\r\n";
  for (const std::string& page : pages) text += "strony\\" + page + "\r\n";
  for (const std::string& picture : pictures) text += "obrazy\\" + picture + "\r\n";
  // chmcmd would write a context's page as its path on the machine that compiles the help. So the
  // record of contexts is a file of the project, and the page is brought among the strings by the
  // window, as the page of a button that it does not show.
  return text +
         windows1250(
             "\r\n[WINDOWS]\r\n"
             "main=\"Odmiennik – pomoc\",\"Werbolin.hhc\",\"Werbolin.hhk\",\"strony/default.htm\","
             "\"strony/default.htm\",\"") +
         std::string(kContextPage) +
         windows1250("\",\"Jak odmienić czasownik\",,,0x23520,,0x10304e,,,,,,,,0\r\n");
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
