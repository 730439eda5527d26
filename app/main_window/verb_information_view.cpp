// SPDX-License-Identifier: GPL-3.0-or-later
// The labels of the verb's information.
#include "app/main_window/verb_information_view.h"

#include "app/common/text.h"
#include "app/controls/caption_label.h"
#include "dictionary/verb_labels.h"

namespace odmiennik::app {
namespace {

using dictionary::VerbLabels;

struct ValueLabel {
  ControlAt<CaptionLabel> value;
  ControlAt<CaptionLabel> caption;
  Utf8View VerbLabels::*text;
};
constexpr ValueLabel kValueLabels[] = {
    {positionOf("lblGrupaWartość"), positionOf("lblGrupa"), &VerbLabels::group},
    {positionOf("lblPrzechodniWartość"), positionOf("lblPrzechodni"), &VerbLabels::transitive},
    {positionOf("lblNieprzechodniWartość"), positionOf("lblNieprzechodni"),
     &VerbLabels::intransitive},
    {positionOf("lblPosiłkowyWartość"), positionOf("lblPosiłkowy"), &VerbLabels::auxiliary},
    {positionOf("lblRządWartość"), positionOf("lblRząd"), &VerbLabels::government},
};

}  // namespace

VerbInformationView::VerbInformationView(const Controls& controls) : controls_(controls) {
  for (const ValueLabel& label : kValueLabels)
    controls_.get(label.caption).setBuddy(&controls_.get(label.value));
}

void VerbInformationView::show(const engine::VerbInformation& information) const {
  const VerbLabels labels = dictionary::labelsOf(information);
  for (const ValueLabel& label : kValueLabels)
    controls_.get(label.value).showText(fromUtf8(labels.*label.text));
}

}  // namespace odmiennik::app
