// Closing the program.
#include "app/logic/shutdown.h"

namespace odmiennik::app {

bool asksBeforeClosing(CloseReason reason, bool noExitQuestion) {
  const bool isOrdinary = reason == CloseReason::closeBox || reason == CloseReason::programCode;
  return isOrdinary && !noExitQuestion;
}

std::vector<ClosingStep> closingSteps(CloseReason reason, bool noExitQuestion) {
  using enum ClosingStep;
  std::vector<ClosingStep> steps{askToSaveVerb, saveSettings, end};
  if (asksBeforeClosing(reason, noExitQuestion)) steps.insert(steps.begin(), askToExit);
  return steps;
}

}  // namespace odmiennik::app
