// SPDX-License-Identifier: GPL-3.0-or-later
// The system's information tool.
#include "app/logic/system_information.h"

namespace odmiennik::app {
namespace {

constexpr std::string_view kToolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr std::string_view kToolValue = "PATH";
constexpr std::string_view kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr std::string_view kFolderValue = "MSINFO";
constexpr std::string_view kToolFile = "\\MSINFO32.EXE";

}  // namespace

std::optional<std::string> systemInformationTool(Registry& registry, const FileExists& fileExists) {
  if (auto path = registry.localMachineText(kToolKey, kToolValue)) return path;
  auto tool = registry.localMachineText(kFolderKey, kFolderValue);
  if (!tool) return std::nullopt;
  tool->append(kToolFile);
  return fileExists(*tool) ? tool : std::nullopt;
}

std::string_view withoutTerminatingNul(std::string_view read) {
  if (read.ends_with('\0')) read.remove_suffix(1);
  return read;
}

}  // namespace odmiennik::app
