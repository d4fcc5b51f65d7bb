#include "korvin-file/measuring_kind.h"

#include <algorithm>

#include "korvin-file/position_kind.h"
#include "korvin-file/read_only_files.h"
#include "korvin-file/straightness_kind.h"

namespace korvin::file {
namespace {

// Another program that saves without a pause leaves gaps between its saves.
constexpr int mostTries = 1000;

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool endsWith(std::string_view path, std::string_view ending) {
  return path.size() > ending.size() && std::equal(ending.rbegin(), ending.rend(), path.rbegin(),
                                                   [](char a, char b) { return lower(a) == lower(b); });
}

std::string allExtensions() {
  std::string text;
  for (const MeasuringKind* kind : allKinds()) {
    if (!text.empty()) text += ", ";
    text += kind->extension();
  }
  return text;
}

/// Tells the reason why `path` has no kind.
[[noreturn]] void refuse(FileSystem& files, const std::string& path) {
  FileInfo info;
  if (const int result = files.infoOf(path, info); result < 0)
    throw FileProblem(readingTrouble(FileError::ofSystem(-result, path)));
  if (info.folder) throw FileProblem("is a folder");
  if (const std::string head = headOf(path); !head.empty())
    throw FileProblem("is only a part of the measuring file " + head);
  throw FileProblem("is no measuring file: its name does not end in " + allExtensions());
}

}  // namespace

std::string readingTrouble(const FileError& error) {
  switch (error.kind) {
    case FileErrorKind::notFound:
      return "no such file";
    case FileErrorKind::noPermission:
      return "may not be read";
    case FileErrorKind::inputOutput:
      return "the disk or the connection to it fails";
    case FileErrorKind::notAFile:
      return "is a folder or a device, not a file";
    case FileErrorKind::busy:
      return "is being saved by another program; try again";
    case FileErrorKind::none:
    case FileErrorKind::noSpace:
    case FileErrorKind::nameTooLong:
    case FileErrorKind::other:
      break;
  }
  return error.systemText();
}

const std::vector<const MeasuringKind*>& allKinds() {
  static const std::vector<const MeasuringKind*> kinds{&positionKind(), &straightnessKind()};
  return kinds;
}

const MeasuringKind* kindOfHead(std::string_view path) {
  for (const MeasuringKind* kind : allKinds()) {
    if (endsWith(path, kind->extension())) return kind;
  }
  return nullptr;
}

std::string headOf(std::string_view path) {
  for (const MeasuringKind* kind : allKinds()) {
    for (const std::string_view ending : kind->endingsBeside()) {
      if (endsWith(path, std::string(kind->extension()).append(ending)))
        return std::string(path.substr(0, path.size() - ending.size()));
    }
  }
  return {};
}

std::unique_ptr<MeasuringFile> readMeasuringFile(FileSystem& files, const std::string& path) {
  const MeasuringKind* kind = kindOfHead(path);
  if (kind == nullptr) refuse(files, path);
  for (int tries = 0; tries < mostTries; ++tries) {
    ReadOnlyFiles view(files);
    try {
      auto file = kind->read(view, path);
      if (!view.overtaken()) return file;
    } catch (const FileProblem&) {
      if (!view.overtaken()) throw;
    }
  }
  throw FileProblem("is being saved by another program again and again; try again");
}

}  // namespace korvin::file
