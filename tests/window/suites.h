// SPDX-License-Identifier: GPL-3.0-or-later
// The suites of this folder; each is run by its name.
#pragma once

#include <QObject>
#include <memory>

namespace odmiennik::window_test {

[[nodiscard]] std::unique_ptr<QObject> aboutSuite();
[[nodiscard]] std::unique_ptr<QObject> accessibilitySuite();
[[nodiscard]] std::unique_ptr<QObject> alwaysOnTopSuite();
[[nodiscard]] std::unique_ptr<QObject> auxiliaryFocusSuite();
[[nodiscard]] std::unique_ptr<QObject> clippingSuite();
[[nodiscard]] std::unique_ptr<QObject> closingSuite();
[[nodiscard]] std::unique_ptr<QObject> coloursSuite();
[[nodiscard]] std::unique_ptr<QObject> conjugatingSuite();
[[nodiscard]] std::unique_ptr<QObject> contrastSuite();
[[nodiscard]] std::unique_ptr<QObject> copyingSuite();
[[nodiscard]] std::unique_ptr<QObject> damagedSettingsSuite();
[[nodiscard]] std::unique_ptr<QObject> demonstrationSuite();
[[nodiscard]] std::unique_ptr<QObject> designSuite();
[[nodiscard]] std::unique_ptr<QObject> dialogBarsSuite();
[[nodiscard]] std::unique_ptr<QObject> editMenuSuite();
[[nodiscard]] std::unique_ptr<QObject> editingSuite();
[[nodiscard]] std::unique_ptr<QObject> editingKeysSuite();
[[nodiscard]] std::unique_ptr<QObject> elisionSuite();
[[nodiscard]] std::unique_ptr<QObject> entryBoxSuite();
[[nodiscard]] std::unique_ptr<QObject> entryKeysSuite();
[[nodiscard]] std::unique_ptr<QObject> explainingSuite();
[[nodiscard]] std::unique_ptr<QObject> exportingSuite();
[[nodiscard]] std::unique_ptr<QObject> findingSuite();
[[nodiscard]] std::unique_ptr<QObject> formLettersSuite();
[[nodiscard]] std::unique_ptr<QObject> helpSuite();
[[nodiscard]] std::unique_ptr<QObject> helpFaultsSuite();
[[nodiscard]] std::unique_ptr<QObject> helpKeySuite();
[[nodiscard]] std::unique_ptr<QObject> helpPrintingSuite();
[[nodiscard]] std::unique_ptr<QObject> helpReadingSuite();
[[nodiscard]] std::unique_ptr<QObject> helpSearchSuite();
[[nodiscard]] std::unique_ptr<QObject> hostileHelpSuite();
[[nodiscard]] std::unique_ptr<QObject> lettersSuite();
[[nodiscard]] std::unique_ptr<QObject> listSuite();
[[nodiscard]] std::unique_ptr<QObject> listCommandsSuite();
[[nodiscard]] std::unique_ptr<QObject> lookSuite();
[[nodiscard]] std::unique_ptr<QObject> lockedBoxesSuite();
[[nodiscard]] std::unique_ptr<QObject> menuSuite();
[[nodiscard]] std::unique_ptr<QObject> messageBoxSuite();
[[nodiscard]] std::unique_ptr<QObject> normSuite();
[[nodiscard]] std::unique_ptr<QObject> ownVerbsSuite();
[[nodiscard]] std::unique_ptr<QObject> pointerSuite();
[[nodiscard]] std::unique_ptr<QObject> printQueueSuite();
[[nodiscard]] std::unique_ptr<QObject> printingSuite();
[[nodiscard]] std::unique_ptr<QObject> refusedSaveSuite();
[[nodiscard]] std::unique_ptr<QObject> rescalingSuite();
[[nodiscard]] std::unique_ptr<QObject> restoringSuite();
[[nodiscard]] std::unique_ptr<QObject> savedListSuite();
[[nodiscard]] std::unique_ptr<QObject> savingSuite();
[[nodiscard]] std::unique_ptr<QObject> settingsSuite();
[[nodiscard]] std::unique_ptr<QObject> smallScreenSuite();
[[nodiscard]] std::unique_ptr<QObject> spokenSuite();
[[nodiscard]] std::unique_ptr<QObject> startUpSuite();
[[nodiscard]] std::unique_ptr<QObject> steadyWindowsSuite();
[[nodiscard]] std::unique_ptr<QObject> stoppedDemonstrationSuite();
[[nodiscard]] std::unique_ptr<QObject> tenseHeadingsSuite();
[[nodiscard]] std::unique_ptr<QObject> tipSuite();
[[nodiscard]] std::unique_ptr<QObject> tooltipsSuite();
[[nodiscard]] std::unique_ptr<QObject> wholeWindowsSuite();

}  // namespace odmiennik::window_test
