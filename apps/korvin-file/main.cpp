#include <csignal>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "frame/clock.h"
#include "frame/folders.h"
#include "frame/posix_file_system.h"
#include "frame/programmstart.h"
#include "korvin-file/file_tool.h"
#include "korvin-file/pdf_maker.h"

namespace {

/// The dictionary beside the program, then the one in the program's folder.
std::vector<std::string> dictionaryPaths() {
  const korvin::FolderEnvironment environment = korvin::folderEnvironment();
  return {korvin::dbPfad(environment.executableFolder.string()),
          korvin::dbPfad(korvin::chooseFolders(environment).program.string())};
}

bool print(std::string_view bytes) {
  return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
}

void complain(std::string_view line) {
  std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // a limit of the file size is told as a full disk
  try {
    korvin::PosixFileSystem files;
    const korvin::SystemClock clock;
    korvin::file::PdfMaker pdfs;
    const auto pdf = [&pdfs](const korvin::Bericht& report, int language) {
      return pdfs.pdf(report, language);
    };
    return korvin::file::runFileTool({argv + 1, argv + argc},
                                     {files, print, complain, dictionaryPaths(), clock, pdf});
  } catch (const std::exception& error) {
    complain(std::string("korvin-file: ") + error.what());
    return 1;
  }
}
