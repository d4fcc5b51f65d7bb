#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/farbe.h"

namespace korvin {

/// How a text on paper is set.
struct PageFont {
  std::string name;  ///< as it was asked for, "ARIAL"
  double points = 10;
  bool bold = false;
  friend bool operator==(const PageFont&, const PageFont&) = default;
};

/// One mark on paper. Lengths are millimetres from the paper's top left corner.
struct PageMark {
  enum class Kind : std::uint8_t { text, line, circle, fill };

  Kind kind = Kind::line;
  std::uint16_t font = 0;  ///< of a text: index into `PageMarks::fonts`
  float x1 = 0;            ///< left end; of a circle the centre
  float y1 = 0;            ///< top of a text
  float x2 = 0;            ///< other end; of a circle the radius
  float y2 = 0;
  float width = 1;  ///< of a line or circle, in multiples of the thinnest line
  Farbe colour = 0;
  std::uint32_t textBegin = 0;  ///< into `PageMarks::letters`
  std::uint32_t textLength = 0;
};

/// All marks of one page in the order in which they were made: what the printer, the preview and a PDF show.
/// Small enough to keep all pages of a long report.
struct PageMarks {
  std::vector<PageMark> marks;
  std::vector<PageFont> fonts;
  std::string letters;  ///< the texts one behind the other, UTF-8

  std::string_view text(const PageMark& mark) const {
    return std::string_view(letters).substr(mark.textBegin, mark.textLength);
  }
};

/// Takes the pages of a report as they are completed. A port.
class PageSink {
 public:
  virtual ~PageSink() = default;

  /// A page is complete. May throw `DruckAbgebrochen`, and `std::runtime_error` if the medium fails.
  virtual void page(PageMarks&& page) = 0;
  /// So is the document.
  virtual void end() {}
};

}  // namespace korvin
