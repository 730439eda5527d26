// How the program is closed: what is asked and done, and in which order.
#pragma once

#include <cstdint>
#include <vector>

namespace odmiennik::app {

// Where the main window's close request comes from.
enum class CloseReason : std::uint8_t { closeBox, programCode, systemShutdown, taskManager };

// Whether the exit question is put. `noExitQuestion` is set by a first start that was aborted.
[[nodiscard]] bool asksBeforeClosing(CloseReason reason, bool noExitQuestion);

enum class ClosingStep : std::uint8_t {
  askToExit,      // No keeps the window
  askToSaveVerb,  // asks only while a verb is being edited; a refused or failed save keeps the
                  // window
  saveSettings,
  end,
};

// The steps in order. The save question comes after the exit question, while closing can still be
// cancelled.
[[nodiscard]] std::vector<ClosingStep> closingSteps(CloseReason reason, bool noExitQuestion);

}  // namespace odmiennik::app
