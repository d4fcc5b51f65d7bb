#include "pdf_text.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QXmlStreamReader>
#include <algorithm>
#include <cmath>
#include <fstream>

#include "frame/ui/qt_text.h"

namespace korvin::test {
namespace {

constexpr double mmPerPoint = 25.4 / 72;

std::string run(const std::string& program, const QStringList& arguments) {
  QProcess process;
  process.start(qText(program), arguments);
  if (!process.waitForFinished(30000) || process.exitCode() != 0) {
    ADD_FAILURE() << program << ": " << process.readAllStandardError().toStdString();
  }
  return process.readAllStandardOutput().toStdString();
}

double attribute(const QXmlStreamReader& xml, const char* name) {
  return xml.attributes().value(QLatin1String(name)).toDouble() * mmPerPoint;
}

}  // namespace

std::vector<PdfWord> wordsOf(const std::string& path) {
  QXmlStreamReader xml(qText(run("pdftotext", {QStringLiteral("-bbox"), qText(path), QStringLiteral("-")})));
  // The page's markup calls upon a document type that names its entities.
  std::vector<PdfWord> words;
  int page = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("page")) ++page;
    if (xml.name() != QLatin1String("word")) continue;
    PdfWord word{page,
                 {},
                 attribute(xml, "xMin"),
                 attribute(xml, "yMin"),
                 attribute(xml, "xMax"),
                 attribute(xml, "yMax")};
    word.text = xml.readElementText().toStdString();
    words.push_back(word);
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return words;
}

PdfWord wordOf(const std::vector<PdfWord>& words, const std::string& text) {
  const auto found =
      std::find_if(words.begin(), words.end(), [&text](const PdfWord& word) { return word.text == text; });
  if (found != words.end()) return *found;
  ADD_FAILURE() << "no word " << text;
  return {};
}

void expectTexts(const std::vector<PdfWord>& words, const std::vector<PageMarks>& pages, TextShaper& shaper) {
  std::size_t expected = 0;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    for (const PageMark& mark : pages[i].marks) {
      if (mark.kind != PageMark::Kind::text) continue;
      const std::string_view text = pages[i].text(mark);
      for (std::size_t begin = text.find_first_not_of(' '); begin != std::string_view::npos; ++expected) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        const std::string word(text.substr(begin, end - begin));
        // Without the kerning across the blank.
        const double left = mark.x1 + shaper.width(text.substr(0, begin), pages[i].fonts.at(mark.font));
        EXPECT_TRUE(std::any_of(words.begin(), words.end(),
                                [&](const PdfWord& its) {
                                  return its.page == static_cast<int>(i) + 1 && its.text == word &&
                                         std::abs(its.left - left) < 0.2 && std::abs(its.top - mark.y1) < 0.1;
                                }))
            << "page " << i + 1 << " (" << left << ", " << mark.y1 << ") " << word;
        begin = text.find_first_not_of(' ', end);
      }
    }
  }
  EXPECT_EQ(words.size(), expected) << "nothing else";
}

std::string outputOf(const std::string& program, const std::string& path) {
  return run(program, {qText(path)});
}

void writeBlocks(const std::string& path, const ByteBlocks& bytes) {
  std::ofstream file(path, std::ios::binary);
  for (const std::string& block : bytes.blocks()) file << block;
}

}  // namespace korvin::test
