#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "frame/clock.h"
#include "frame/dictionary.h"
#include "frame/event_pump.h"
#include "frame/ui/mouse_pointer.h"

class QDialog;
class QLabel;
class QProgressBar;
class QWidget;

namespace korvin {

/// What a print's progress shows itself with. All outlive it.
struct ProgressUmgebung {
  const Clock& clock;
  EventPump& pump;
  Dictionary& dictionary;
};

/// How far a print is. While it lives the pointer is the hourglass; a print that takes longer than a moment
/// gets a box with its pages and Cancel instead. From then on the event queue is handled between pages, so
/// that the windows are painted and the measurement behind goes on; the box is modal to all of them.
class PrintProgress {
 public:
  enum class Cancelling { allowed, tooLate };

  /// `seiten` gives the number of all pages, or 0; it is asked once, when the box appears. `words` is the
  /// number of the text that says what is being done.
  PrintProgress(const ProgressUmgebung& umgebung, std::int16_t words, std::function<int()> seiten,
                Cancelling cancelling, QWidget* parent);
  ~PrintProgress();
  PrintProgress(const PrintProgress&) = delete;
  PrintProgress& operator=(const PrintProgress&) = delete;

  /// Page `number`, from 1, is complete. Throws `DruckAbgebrochen` once the user has cancelled.
  void page(int number);

 private:
  bool passed(double seconds);
  void showBox();
  void showPage(int number);

  ProgressUmgebung u_;
  std::int16_t words_;
  std::function<int()> seiten_;
  Cancelling cancelling_;
  QWidget* parent_;
  float last_;  ///< time of day when the queue was handled last
  int all_ = 0;
  bool cancelled_ = false;
  HourglassScope hourglass_;
  std::unique_ptr<QDialog> box_;
  std::optional<NormalPointerScope> pointer_;
  QLabel* page_ = nullptr;
  QProgressBar* bar_ = nullptr;
};

}  // namespace korvin
