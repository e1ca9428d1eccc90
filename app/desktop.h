#pragma once

#include <future>

namespace velquon {

/// Chooses the windowing system and the kind of OpenGL context. Before the application object.
void prepare_desktop();

/// Starts GLUT, which the views need before they draw, in a thread of its own: loading the OpenGL
/// driver takes as long as making the windows, and both can be done at once. After
/// `prepare_desktop`, which changes the environment that the driver reads. What the application
/// object does meanwhile is harmless: it takes away one variable, and leaves the C locale, which is
/// never freed.
/// \return ready when GLUT is
[[nodiscard]] std::future<void> start_glut();

/// Settles what the application object has changed or left open: the decimal point of numbers in C,
/// the icon, and what screen readers see of the program's own controls.
void finish_desktop();

}  // namespace velquon
