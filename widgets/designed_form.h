// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace velquon {

/// Puts into a widget what a form of Qt Designer holds.
/// \tparam Form a class of the namespace Ui
/// \return the form, which leads to the widgets that it made
template <typename Form, typename Widget>
[[nodiscard]] std::unique_ptr<Form> set_up_form(Widget& widget) {
  auto form = std::make_unique<Form>();
  form->setupUi(&widget);
  return form;
}

}  // namespace velquon
