// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of a compiled help file.
#include "app/help/help_file.h"

#ifdef _WIN32
#define PPC_BSTR  // libchm is built for names in wide letters
#include <windows.h>
#endif
#include <chm_lib.h>

#include <QFile>
#include <QFileInfo>

#include "app/help/help_file_check.h"

namespace odmiennik::app {
namespace {

constexpr qint64 kLongestFile = 64LL << 20;
constexpr std::uint64_t kLongestContent = 4U << 20;
constexpr qsizetype kLongestPath = 400;

constexpr char kControlData[] = "::DataSpace/Storage/MSCompressed/ControlData";
constexpr char kResetTable[] =
    "::DataSpace/Storage/MSCompressed/Transform/{7FC28940-9D31-11D0-9B27-00A0C91E9C7C}/"
    "InstanceData/ResetTable";

// A pipe would be waited for, and a device read without an end.
bool isSound(const QString& path) {
  if (!QFileInfo(path).isFile()) return false;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() > kLongestFile) return false;
  const QByteArray bytes = file.readAll();
  return hasSoundDirectory({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

chmFile* openWithLibrary(const QString& path) {
#ifdef _WIN32
  const BSTR name = SysAllocString(reinterpret_cast<const wchar_t*>(path.utf16()));
  chmFile* file = chm_open(name);
  SysFreeString(name);
  return file;
#else
  return chm_open(QFile::encodeName(path).constData());
#endif
}

std::string_view view(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

}  // namespace

void HelpFile::Close::operator()(chmFile* file) const { chm_close(file); }

std::optional<HelpFile> HelpFile::open(const QString& path) {
  if (!isSound(path)) return std::nullopt;
  chmFile* opened = openWithLibrary(path);
  if (opened == nullptr) return std::nullopt;
  HelpFile file(opened);
  if (!file.isReadable()) return std::nullopt;
  return file;
}

// The two records themselves are not compressed.
bool HelpFile::isReadable() const {
  for (const char* record : {kControlData, kResetTable}) {
    chmUnitInfo unit{};
    if (chm_resolve_object(file_.get(), record, &unit) != CHM_RESOLVE_SUCCESS) return false;
    if (unit.space != CHM_UNCOMPRESSED) return false;
  }
  const auto controlData = content(QLatin1String(kControlData));
  const auto resetTable = content(QLatin1String(kResetTable));
  return controlData && resetTable && canBeUnpacked(view(*controlData), view(*resetTable));
}

std::optional<QByteArray> HelpFile::content(const QString& path) const {
  const QByteArray name = path.toUtf8();
  chmUnitInfo unit{};
  if (name.size() > kLongestPath || name.contains('\0')) return std::nullopt;
  if (chm_resolve_object(file_.get(), name.constData(), &unit) != CHM_RESOLVE_SUCCESS)
    return std::nullopt;
  if (unit.length > kLongestContent) return std::nullopt;
  QByteArray bytes(static_cast<qsizetype>(unit.length), '\0');
  auto* data = reinterpret_cast<unsigned char*>(bytes.data());
  if (chm_retrieve_object(file_.get(), &unit, data, 0, bytes.size()) != bytes.size())
    return std::nullopt;
  return bytes;
}

}  // namespace odmiennik::app
