// A check box is no QLabel.
#include "app/controls/control_table.h"

using namespace odmiennik::app;

constexpr ControlAt<QLabel> kBox = positionOf("chkZAvoir");
