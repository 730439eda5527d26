// The labels of the verb's information.
#include "app/main_window/verb_information_view.h"

#include "app/common/text.h"
#include "app/controls/caption_label.h"

namespace odmiennik::app {
namespace {

struct ValueLabel {
  std::size_t position;
  std::size_t caption;
  std::string_view engine::VerbLabels::*value;
};
constexpr ValueLabel kValueLabels[] = {
    {positionOf("lblGrupaWartość"), positionOf("lblGrupa"), &engine::VerbLabels::lblGrupaWartość},
    {positionOf("lblPrzechodniWartość"), positionOf("lblPrzechodni"),
     &engine::VerbLabels::lblPrzechodniWartość},
    {positionOf("lblNieprzechodniWartość"), positionOf("lblNieprzechodni"),
     &engine::VerbLabels::lblNieprzechodniWartość},
    {positionOf("lblPosiłkowyWartość"), positionOf("lblPosiłkowy"),
     &engine::VerbLabels::lblPosiłkowyWartość},
    {positionOf("lblRządWartość"), positionOf("lblRząd"), &engine::VerbLabels::lblRządWartość},
};

}  // namespace

VerbInformationView::VerbInformationView(const Controls& controls) : controls_(controls) {
  for (const ValueLabel& label : kValueLabels)
    controls_.get<QLabel>(label.caption).setBuddy(&controls_.get<QLabel>(label.position));
}

void VerbInformationView::show(const engine::VerbLabels& labels) const {
  for (const ValueLabel& label : kValueLabels)
    controls_.get<CaptionLabel>(label.position).showText(fromUtf8(labels.*label.value));
}

}  // namespace odmiennik::app
