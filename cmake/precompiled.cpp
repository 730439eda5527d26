// SPDX-License-Identifier: GPL-3.0-or-later
// Only carries the precompiled header: a library needs a source.
