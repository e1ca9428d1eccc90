#pragma once

#include <memory>

namespace velquon {

/// Makes the widgets of a Designer form in a window.
/// \tparam Form the class that uic makes of the form
template <typename Form, typename Window>
std::unique_ptr<Form> make_form(Window& window) {
  auto form = std::make_unique<Form>();
  form->setupUi(&window);
  return form;
}

}  // namespace velquon
