// SPDX-License-Identifier: GPL-3.0-or-later
// What every test of GoogleTest includes, compiled once. It saves time only: every file still
// includes what it uses.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/support/utf8_printing.h"
