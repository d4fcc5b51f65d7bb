#include "korvin-file/file_tool.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <optional>

#include "korvin-file/file_options.h"
#include "korvin-file/measuring_kind.h"
#include "korvin-file/output.h"
#include "korvin-file/tool_dictionary.h"
#include "korvin-file/utf8.h"
#include "korvin-file/value_text.h"

namespace korvin::file {
namespace {

constexpr int allWell = 0;
constexpr int somethingBad = 1;
constexpr int wrongUse = 2;

/// Makes a result's bytes of a measuring file and its path.
using Maker = std::function<std::string(const MeasuringFile&, const std::string& path)>;

bool contains(const std::vector<std::string_view>& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::string joined(const std::vector<std::string_view>& names) {
  std::string text;
  for (const std::string_view name : names) text.append(text.empty() ? "" : ", ").append(name);
  return text;
}

/// One call of the tool, its options read.
class Run {
 public:
  Run(const FileOptions& options, const Surroundings& surroundings)
      : options_(options), surroundings_(surroundings) {}

  int go() {
    switch (options_.command) {
      case Command::show:
        show();
        break;
      case Command::text:
        text();
        break;
      case Command::csv:
        convert(".csv",
                [this](const MeasuringFile& file, const std::string&) { return file.table(units()); });
        break;
      case Command::report:
        report();
        break;
      case Command::check:
        check();
        break;
    }
    return status_;
  }

 private:
  Units units() const { return {options_.inch, options_.pentaArcseconds}; }

  void complain(const std::string& about, const std::string& words) {
    surroundings_.complain("korvin-file: " + printable(about) + ": " + printable(words));
    status_ = somethingBad;
  }

  /// Runs `work`; what it throws is told of `about`. False if it threw.
  bool guarded(const std::string& about, const std::function<void()>& work) {
    try {
      work();
      return true;
    } catch (const std::exception& trouble) {
      complain(about, trouble.what());
      return false;
    }
  }

  void deliver(const std::string& path, const std::string& bytes) {
    if (!path.empty()) {
      guarded(path, [&] { saveResult(surroundings_.files, path, bytes); });
    } else if (!surroundings_.print(bytes)) {
      complain("standard output", "cannot be written");
    }
  }

  // ---- show ----

  Value told(const std::string& path) const {
    const auto file = readMeasuringFile(surroundings_.files, path);
    Value object = Value::ofObject();
    object.add("file", Value::ofText(path));
    object.add("kind", Value::ofText(std::string(kindOfHead(path)->name())));
    file->tell(object, units());
    return object;
  }

  std::string shown(const Value& value) const { return options_.json ? jsonText(value) : plainText(value); }

  /// Files that can be shown, in their order, together in one text.
  std::string shownTogether(const std::vector<Value>& all) const {
    if (options_.json) return jsonText(options_.files.size() == 1 ? all.front() : Value::ofList(all));
    std::string text;
    for (const Value& value : all) text += (text.empty() ? "" : "\n") + plainText(value);
    return text;
  }

  void show() {
    const auto results =
        resultPaths(surroundings_.files, options_, options_.json ? ".json" : ".txt", /*joined=*/true);
    const bool together = results.front() == results.back();
    std::vector<Value> all;
    for (std::size_t i = 0; i < options_.files.size(); ++i) {
      const std::string& path = options_.files[i];
      std::optional<Value> value;
      if (!guarded(path, [&] { value = told(path); })) continue;
      if (together) {
        all.push_back(std::move(*value));
      } else {
        deliver(results[i], shown(*value));
      }
    }
    if (together && !all.empty()) deliver(results.front(), shownTogether(all));
  }

  // ---- text, csv, report ----

  /// Opened with the first file that needs it.
  Dictionary& words() {
    if (!words_)
      words_.emplace(surroundings_.files, options_.dictionary, surroundings_.dictionaryPaths,
                     options_.language);
    return words_->dictionary();
  }

  void text() {
    convert(".txt", [this](const MeasuringFile& file, const std::string&) {
      return file.textCopy(units(), words());
    });
  }

  void report() {
    for (const std::string& path : options_.files) partsOf(path);  // wrong names are told before all work
    convert(".pdf", [this](const MeasuringFile& file, const std::string& path) {
      const ReportMeans means{units(), partsOf(path), asUtf8(path), words(), surroundings_.clock};
      return surroundings_.pdf(file.report(means), options_.language);
    });
  }

  /// The parts of the report of `path`; all if none is named. Throws `OptionError` for one that it has not.
  std::vector<std::string> partsOf(const std::string& path) const {
    const MeasuringKind* kind = kindOfHead(path);
    if (kind == nullptr) return {};  // refused when it is read
    const auto known = kind->reportParts();
    if (known.empty()) return {};  // without a report; the file tells so
    for (const std::string& part : options_.parts) {
      if (!contains(known, part))
        throw OptionError("--parts " + part + ": the report of a *" + std::string(kind->extension()) +
                          " has the parts " + joined(known));
    }
    return options_.parts.empty() ? std::vector<std::string>(known.begin(), known.end()) : options_.parts;
  }

  void convert(std::string_view ending, const Maker& make) {
    const auto results = resultPaths(surroundings_.files, options_, ending, /*joined=*/false);
    for (std::size_t i = 0; i < options_.files.size(); ++i) {
      const std::string& path = options_.files[i];
      std::string bytes;
      if (guarded(path, [&] { bytes = make(*readMeasuringFile(surroundings_.files, path), path); }))
        deliver(results[i], bytes);
    }
  }

  // ---- check ----

  std::string verdict(const std::string& path) {
    try {
      const auto file = readMeasuringFile(surroundings_.files, path);
      return "ok (" + std::string(kindOfHead(path)->name()) + ", " + file->summary() + ")";
    } catch (const std::exception& trouble) {
      status_ = somethingBad;
      return std::string("bad: ") + trouble.what();
    }
  }

  void check() {
    for (const std::string& path : options_.files)
      deliver({}, printable(path) + ": " + printable(verdict(path)) + "\n");
  }

  const FileOptions& options_;
  const Surroundings& surroundings_;
  std::optional<ToolDictionary> words_;
  int status_ = allWell;
};

}  // namespace

int runFileTool(const std::vector<std::string>& arguments, const Surroundings& surroundings) {
  try {
    const FileOptions options = parseOptions(arguments);
    if (options.help) return surroundings.print(helpText()) ? allWell : somethingBad;
    if (options.version)
      return surroundings.print("korvin-file " KORVIN_VERSION "\n") ? allWell : somethingBad;
    return Run(options, surroundings).go();
  } catch (const OptionError& error) {
    surroundings.complain("korvin-file: " + printable(error.what()));
    surroundings.complain("Try korvin-file --help.");
    return wrongUse;
  } catch (const DictionaryFailure& failure) {
    surroundings.complain("korvin-file: " + printable(failure.words));
    return somethingBad;
  }
}

}  // namespace korvin::file
