#include "korvin-file/output.h"

#include <algorithm>

#include "frame/safe_save.h"
#include "korvin-file/measuring_kind.h"

namespace korvin::file {
namespace {

std::string lastName(const std::string& path) {
  return path.substr(path.rfind('/') + 1);  // all of it without a slash
}

bool isFolder(FileSystem& files, const std::string& path) {
  FileInfo info;
  return files.infoOf(path, info) == 0 && info.folder;
}

bool sameFile(FileSystem& files, const std::string& a, const std::string& b) {
  FileInfo first;
  FileInfo second;
  return files.infoOf(a, first) == 0 && files.infoOf(b, second) == 0 && first.sameFile(second);
}

/// The files that make up the measurement `head`.
std::vector<std::string> filesOf(const std::string& head) {
  std::vector<std::string> all{head};
  if (const MeasuringKind* kind = kindOfHead(head)) {
    for (const std::string_view ending : kind->endingsBeside()) all.push_back(head + std::string(ending));
  }
  return all;
}

/// Refuses a result that would take a measurement's place, also under another name of it.
void protectMeasurements(FileSystem& files, const FileOptions& options, const std::string& result) {
  // A pattern that the shell resolves easily puts a measurement behind -o.
  if (kindOfHead(result) != nullptr || !headOf(result).empty())
    throw OptionError(result + " is the name of a measuring file; it is never written over");
  for (const std::string& head : options.files) {
    for (const std::string& input : filesOf(head)) {
      if (sameFile(files, result, input))
        throw OptionError(result + " is the measuring file " + input + "; it is never written over");
    }
  }
}

void refuseDoubles(const std::vector<std::string>& results) {
  for (auto one = results.begin(); one != results.end(); ++one) {
    if (std::find(one + 1, results.end(), *one) != results.end())
      throw OptionError("two results would be written to " + *one);
  }
}

const char* writingTrouble(const FileError& error) {
  switch (error.kind) {
    case FileErrorKind::notFound:
      return "no such folder";
    case FileErrorKind::noPermission:
      return "may not be written";
    case FileErrorKind::noSpace:
      return "the disk is full";
    case FileErrorKind::inputOutput:
      return "the disk or the connection to it fails";
    case FileErrorKind::notAFile:
      return "is no plain file";
    case FileErrorKind::busy:
      return "is being written by another program";
    case FileErrorKind::none:
    case FileErrorKind::nameTooLong:
    case FileErrorKind::other:
      break;
  }
  return nullptr;
}

const char* whatStands(SaveState state) {
  switch (state) {
    case SaveState::inPlace:
      return "; it is written, but may be lost in a power cut";
    case SaveState::pending:
      return "; old and new lie beside each other";
    case SaveState::saved:
    case SaveState::unchanged:
      break;
  }
  return "; nothing was changed";
}

}  // namespace

std::vector<std::string> resultPaths(FileSystem& files, const FileOptions& options, std::string_view ending,
                                     bool joined) {
  const bool toFolder = !options.toStandardOutput() && isFolder(files, options.output);
  if (options.files.size() > 1 && !joined && !toFolder) {
    throw OptionError(std::string(commandName(options.command)) +
                      " of several files needs a folder: -o FOLDER" +
                      (options.toStandardOutput() ? "" : "; " + options.output + " is none"));
  }
  if (options.toStandardOutput()) return std::vector<std::string>(options.files.size());
  std::vector<std::string> results;
  for (const std::string& file : options.files) {
    results.push_back(!toFolder ? options.output
                                : options.output + (options.output.ends_with('/') ? "" : "/") +
                                      lastName(file) + std::string(ending));
    protectMeasurements(files, options, results.back());
  }
  if (toFolder) refuseDoubles(results);
  return results;
}

void saveResult(FileSystem& files, const std::string& path, std::string_view bytes) {
  const SaveResult result = saveFile(files, path, bytes);
  if (!result.error) return;
  const char* trouble = writingTrouble(result.error);
  throw std::runtime_error((trouble != nullptr ? trouble : result.error.systemText()) +
                           std::string(whatStands(result.state)));
}

}  // namespace korvin::file
