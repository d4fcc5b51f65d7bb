#pragma once

#include <QMetaObject>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace korvin::tour {

/// A step of the walk went wrong; the words say what was expected.
struct StepFailed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The windows' thread, as seen from the thread of the walk. A modal window runs an event loop of its own
/// inside the click that opened it, so the walk stands beside the windows, as a user does: all it does goes
/// through the event queue, and is handled by whichever loop is running.
class Gui {
 public:
  /// Runs `look` in the windows' thread and hands back what it returns. What it throws is thrown here.
  template <class F>
  auto ask(F look) -> std::invoke_result_t<F> {
    using Answer = std::invoke_result_t<F>;
    auto task = std::make_shared<std::packaged_task<Answer()>>(std::move(look));
    auto answer = task->get_future();
    post([task] { (*task)(); });
    if (answer.wait_for(answerLimit) != std::future_status::ready) {
      throw StepFailed("the windows do not answer");
    }
    return answer.get();
  }

  /// Has `deed` done in the windows' thread, and does not wait: it may open a modal window.
  static void post(std::function<void()> deed);

  /// Waits until `condition`, which is looked at in the windows' thread, holds. Throws `StepFailed` with
  /// `expected` after so many seconds.
  static void until(const std::string& expected, double seconds, std::function<bool()> condition);

 private:
  static constexpr std::chrono::seconds answerLimit{20};
};

}  // namespace korvin::tour
