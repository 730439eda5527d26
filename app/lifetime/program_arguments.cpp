// Reading of the command line.
#include "app/lifetime/program_arguments.h"

#include <QApplication>
#include <QCommandLineParser>
#include <filesystem>
#include <system_error>

#include "dictionary/file_names.h"
#include "dictionary/program_folder.h"

namespace odmiennik::app {
namespace {

std::string ownFolder() {
  const std::string folder = dictionary::programFolder();
  std::error_code ignored;  // the settings tell when they cannot be written
  std::filesystem::create_directories(dictionary::pathOf(folder), ignored);
  return folder;
}

}  // namespace

std::string folderOfArguments(const QApplication& application) {
  const QCommandLineOption folder(
      QStringLiteral("folder"),
      QStringLiteral("Folder programu: własne czasowniki i ustawienia leżą w FOLDERZE."),
      QStringLiteral("FOLDER"));
  // Qt's own help option speaks English.
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                QStringLiteral("Wyświetla te opcje."));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Odmienia czasowniki francuskie."));
  parser.addOption(help);
  parser.addVersionOption();
  parser.addOption(folder);
  parser.process(application);
  if (parser.isSet(help)) parser.showHelp();
  if (!parser.isSet(folder)) return ownFolder();
  const std::string named = parser.value(folder).toStdString();
  return std::string(dictionary::withoutTrailingSeparators(named));
}

}  // namespace odmiennik::app
