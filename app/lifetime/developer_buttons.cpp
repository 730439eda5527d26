// SPDX-License-Identifier: GPL-3.0-or-later
// The developers' tools on their buttons.
#include "app/lifetime/developer_buttons.h"

#include <QPushButton>

#include "app/controls/controls.h"
#include "dictionary/developer_tools.h"

namespace odmiennik::app {

// A tool that fails writes nothing; whoever runs it looks at the file.
void connectDeveloperButtons(const Controls& controls, const Utf8Text& prefix,
                             const dictionary::UserVerbsFile& userVerbs) {
  const auto& build = controls.get<QPushButton>(positionOf("Command1"));
  QObject::connect(&build, &QPushButton::clicked, &build, [prefix, &userVerbs] {
    static_cast<void>(dictionary::buildResourceScript(prefix, userVerbs.count(),
                                                      dictionary::resourceScriptPath(prefix)));
  });
  const auto& join = controls.get<QPushButton>(positionOf("Command3"));
  QObject::connect(&join, &QPushButton::clicked, &join,
                   [prefix] { static_cast<void>(dictionary::joinTextFiles(prefix)); });
}

}  // namespace odmiennik::app
