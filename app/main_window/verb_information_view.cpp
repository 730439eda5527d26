// The labels of the verb's information.
#include "app/main_window/verb_information_view.h"

#include "app/common/text.h"

namespace odmiennik::app {
namespace {

struct ValueLabel {
  std::size_t position;
  std::string_view engine::VerbLabels::*value;
};
constexpr ValueLabel kValueLabels[] = {
    {positionOf("lblGrupaWartość"), &engine::VerbLabels::lblGrupaWartość},
    {positionOf("lblPrzechodniWartość"), &engine::VerbLabels::lblPrzechodniWartość},
    {positionOf("lblNieprzechodniWartość"), &engine::VerbLabels::lblNieprzechodniWartość},
    {positionOf("lblPosiłkowyWartość"), &engine::VerbLabels::lblPosiłkowyWartość},
    {positionOf("lblRządWartość"), &engine::VerbLabels::lblRządWartość},
};

}  // namespace

void VerbInformationView::show(const engine::VerbLabels& labels) const {
  for (const ValueLabel& label : kValueLabels)
    controls_.get<QLabel>(label.position).setText(fromUtf8(labels.*label.value));
}

}  // namespace odmiennik::app
