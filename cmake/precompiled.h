// SPDX-License-Identifier: GPL-3.0-or-later
// What most files without a window include, compiled once. It saves time only: every file still
// includes what it uses.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>
