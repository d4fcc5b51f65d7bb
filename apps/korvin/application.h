#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace korvin {

/// The application. What no handler caught is told to the user, and the program goes on: a measurement that
/// is not saved yet must not be lost to it.
class Application : public QApplication {
 public:
  Application(int& argc, char** argv);

  bool notify(QObject* receiver, QEvent* event) override;

  /// Shows the words of an exception. Not called again while it is at it.
  std::function<void(const std::string& words)> onUncaught;

 private:
  void tell(const char* words);

  bool telling_ = false;
};

/// To be called before the application is made: settles what can't be changed later. False if there is no
/// screen to show windows on; the error output tells it then.
bool preparePlatform();

}  // namespace korvin
