#pragma once

class QWidget;

/// Asks the desktop to keep a window above the others, or no longer to.
class KeepOnTop {
 public:
  virtual ~KeepOnTop() = default;

  /// Position and size of the window stay as they are.
  virtual void request(QWidget& window, bool onTop) = 0;
};

/// Asks through the window's flags, on every desktop alike.
class WindowFlagKeepOnTop : public KeepOnTop {
 public:
  void request(QWidget& window, bool onTop) override;
};
