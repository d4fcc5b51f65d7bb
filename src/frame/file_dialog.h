#pragma once

#include <string>

namespace korvin {

/// What a file dialog is asked for. Texts are UTF-8.
struct FileDialogRequest {
  std::string folder;  ///< where it starts
  std::string filter;  ///< pairs of a text and a pattern, all separated by '|': "Position (*.O)|*.O"
  std::string title;   ///< caption; empty gives "Dateiauswahl"
  bool open = true;    ///< false: the name of a file to be saved
  std::string name{};  ///< name without folder that is offered; may be empty
};

/// The file dialog. A port.
class FileDialog {
 public:
  virtual ~FileDialog() = default;

  /// The chosen path in UTF-8, or the empty text after Cancel. A name typed with another extension than the
  /// kind's is completed with it.
  virtual std::string choose(const FileDialogRequest& request) = 0;
};

}  // namespace korvin
