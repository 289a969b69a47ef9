#pragma once

class QWidget;

/// The window that a message of nobody in particular belongs to: `parent` if there is one, else the window in
/// front; a window that is kept on top would hide it otherwise. Nothing if the program shows no window.
[[nodiscard]] QWidget* frontWindow(QWidget* parent);
