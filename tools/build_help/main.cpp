// SPDX-License-Identifier: GPL-3.0-or-later
// build_help project HELP OUTPUT: turns the folder of the help's sources into a project for a help
// compiler; the list of the forms that depart from today's norm lies in OUTPUT already.
// build_help contexts STRINGS OUTPUT: gives the project OUTPUT its contexts once it was compiled,
// from the strings of the help file; it is then to be compiled again. build_help finish COMPILED
// RESULT: the help file that goes with the programs.
#include <cstdio>
#include <exception>

#include "tools/build_help/built_page.h"
#include "tools/build_help/compiled_file.h"
#include "tools/build_help/contents.h"
#include "tools/build_help/departures_page.h"
#include "tools/build_help/files.h"
#include "tools/build_help/project_files.h"

namespace {

namespace fs = std::filesystem;
using namespace odmiennik;
using namespace odmiennik::tools;

void copyPages(const fs::path& from, const fs::path& to, const std::vector<std::string>& pages,
               Utf8View departures) {
  for (const std::string& page : pages) {
    const fs::path name = fs::path(std::u8string(page.begin(), page.end()));
    try {
      const Utf8Text typed(asUtf8(readFile(from / name)));
      writeFile(to / name, builtPage(bytesOf(withDepartures(typed, departures))));
    } catch (const std::exception& error) {
      throw std::runtime_error(page + ": " + error.what());
    }
  }
}

std::vector<std::string> copyPictures(const fs::path& from, const fs::path& to) {
  const std::vector<std::string> pictures = namesIn(from, ".png");
  for (const std::string& picture : pictures) writeFile(to / picture, readFile(from / picture));
  return pictures;
}

// Pages of an earlier run may be gone by now: the folders of pages and pictures are made anew.
void buildHelp(const fs::path& help, const fs::path& output) {
  const HelpContents contents = readHelpContents(help.string());
  const std::vector<std::string> pages = namesIn(help / "strony", ".htm");
  const Utf8Text markup = departuresMarkup(readDepartureGroups((help / "odstepstwa.txt").string()),
                                           readDepartures((output / "departures.tsv").string()));
  fs::remove_all(output / "strony");
  fs::remove_all(output / "obrazy");
  copyPages(help / "strony", output / "strony", pages, markup);
  for (const char* sheet : kStyleSheets) writeFile(output / sheet, readFile(help / sheet));
  const std::vector<std::string> pictures = copyPictures(help / "obrazy", output / "obrazy");
  writeFile(output / "Werbolin.hhp", projectFile(pages, pictures));
  writeFile(output / "Werbolin.hhc", contentsFile(contents.contents));
  writeFile(output / "Werbolin.hhk", indexFile(contents.index));
  writeFile(output / kContextFile, emptyContextRecord());
}

void addContexts(const fs::path& strings, const fs::path& output) {
  writeFile(output / kContextFile, contextRecord(readFile(strings)));
}

void finish(const fs::path& compiled, const fs::path& result) {
  writeFile(result, withoutTimes(readFile(compiled)));
}

using Task = void (*)(const fs::path& from, const fs::path& to);

Task taskOf(std::string_view name) {
  if (name == "project") return buildHelp;
  if (name == "contexts") return addContexts;
  return name == "finish" ? finish : nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  const Task task = argc == 4 ? taskOf(argv[1]) : nullptr;
  if (task == nullptr) {
    std::fputs("usage: build_help project|contexts|finish FROM TO\n", stderr);
    return 2;
  }
  try {
    task(argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
