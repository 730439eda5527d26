// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of a dispatch: its rows, each with its model.
#include <algorithm>

#include "tools/compile_data/line_reader.h"
#include "tools/compile_data/rule_source.h"

namespace odmiennik::tools {
namespace {

using groups::Claim;

constexpr std::array<Named<Claim>, 2> kClaims{
    {{"compounds", Claim::onlyCompounds}, {"refused", Claim::refused}}};

constexpr int kLastOrder = 255;

std::size_t positionOf(LineReader& line, const std::vector<SourceModel>& models) {
  const Utf8View name = line.takeWord("a model is expected");
  const auto found = std::find_if(models.begin(), models.end(),
                                  [&](const SourceModel& model) { return model.name == name; });
  if (found == models.end()) line.fail("no model is called " + inQuotes(name));
  return static_cast<std::size_t>(found - models.begin());
}

// The consonant group that the model cuts too: the letters before the infinitive's "er".
std::string takeGroup(LineReader& line, const std::string& ending) {
  const std::string group = line.french(line.takeWord("a consonant group is expected"));
  if (!ending.ends_with(group + "er")) line.fail("the group does not stand before \"er\"");
  return group;
}

// What stands behind the ending: "-  refused", or a model and perhaps its group or "compounds".
void readClaim(LineReader& line, const std::vector<SourceModel>& models, SourceRow& row) {
  const bool hasModel = !line.take("-");
  if (hasModel) row.model = positionOf(line, models);
  if (hasModel && models[row.model].takesGroup)
    row.group = takeGroup(line, row.ending);
  else if (!hasModel || !line.isAtEnd())
    row.claim = line.takeNamed(kClaims);
  if (hasModel == (row.claim == Claim::refused)) line.fail("\"-\" and \"refused\" go together");
  line.finish();
}

// Refuses a row that the rows before it leave nothing to, and a gap in the numbers.
void checkOrder(const LineReader& line, const std::vector<SourceRow>& rows, const SourceRow& row) {
  for (const SourceRow& earlier : rows)
    if (row.ending.ends_with(earlier.ending))
      line.fail("never reached: row " + decimal(earlier.order) + " claims this ending");
  const int before = rows.empty() ? 0 : rows.back().order;
  if (row.order != before + 1 && (row.order != before || rows.empty()))
    line.fail("the number before it is " + decimal(before));
}

}  // namespace

std::vector<SourceRow> readDispatch(const std::string& path,
                                    const std::vector<SourceModel>& models) {
  const SourceFile file = readSource(path);
  std::vector<SourceRow> rows;
  for (const SourceLine& source : file.lines) {
    LineReader line(file, source);
    SourceRow row{.order = line.takeNumber(1, kLastOrder)};
    row.ending = line.french(line.takeWord("an ending is expected"));
    readClaim(line, models, row);
    checkOrder(line, rows, row);
    rows.push_back(row);
  }
  return rows;
}

}  // namespace odmiennik::tools
