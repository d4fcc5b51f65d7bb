#pragma once

#include <QProcess>
#include <QString>
#include <string>

namespace korvin::tour {

/// The virtual head, as a process of its own. It ends with the walk, whatever end that comes to.
class HeadProcess {
 public:
  /// Starts `program` and waits until its line is open. `configFolder` is where the ports are linked. Throws
  /// `std::runtime_error` with the head's own words if it does not come up.
  HeadProcess(const QString& program, const QStringList& arguments, const QString& configFolder);
  ~HeadProcess();
  HeadProcess(const HeadProcess&) = delete;
  HeadProcess& operator=(const HeadProcess&) = delete;

  /// Presses a key of the head: 'm', 'j', 'l' or 'r'; 'n' carries it on to its next place. From any thread.
  void press(char key) const;
  /// What it said when it was ready.
  std::string ready() const { return ready_; }
  /// Ends it at once, from any thread.
  void endNow() const;

 private:
  QProcess process_;
  int keys_ = -1;  ///< the end of the pipe into which keys go
  qint64 pid_ = 0;
  std::string ready_;
};

}  // namespace korvin::tour
