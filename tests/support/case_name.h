// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <string>

namespace velquon::test {

/// Names a row of a table-driven test after its `name`.
template <typename Case>
std::string case_name(const ::testing::TestParamInfo<Case>& row) {
  return row.param.name;
}

}  // namespace velquon::test
