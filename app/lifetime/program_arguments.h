// What the program's command line says.
#pragma once

#include <string>

class QApplication;

namespace odmiennik::app {

// The folder that keeps the user's verbs and settings: the one named with --folder, else the
// program's own, which is created for a user who has none yet. Arguments that are wrong or ask for
// help are answered in Polish and end the program. Example: odmiennik --folder /home/ala/verbs/ ->
// "/home/ala/verbs".
[[nodiscard]] std::string folderOfArguments(const QApplication& application);

}  // namespace odmiennik::app
