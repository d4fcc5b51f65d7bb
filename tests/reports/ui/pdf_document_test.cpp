#include "reports/ui/pdf_document.h"

#include <gtest/gtest.h>

#include <QPdfWriter>
#include <filesystem>

#include "frame/posix_file_system.h"
#include "pdf_text.h"
#include "reports/ui/device_pages.h"
#include "support/faulty_file_system.h"
#include "support/test_files.h"

namespace korvin {
namespace {

using test::outputOf;
using test::PdfWord;
using test::wordOf;
using test::wordsOf;

constexpr double exact = 0.05;  // mm; the tool tells hundredths of a point

void text(Drucker& d, double x, double y, const char* words) {
  d.setX(x);
  d.setY(y);
  d.drucke(words);
}

Bericht bericht(std::function<void(Drucker&)> pages) {
  return {"KORVIN-Messprotokoll:  Welle 4711 – ä測", "Welle", std::move(pages)};
}

class PdfTest : public ::testing::Test {
 protected:
  std::string render(const Bericht& report, int language = 0) {
    const std::string path = folder.path("report.pdf");
    ByteBlocks bytes;
    renderPdf(report, language, {}, bytes);
    test::writeBlocks(path, bytes);
    return path;
  }

  test::TestFolder folder;
};

TEST_F(PdfTest, EachTextStandsAtItsPlace) {
  const std::string path = render(bericht([](Drucker& d) {
    d.setSchrift("ARIAL");
    d.setSchriftGroesse(9);
    text(d, 20, 10, "Heads");
    text(d, 180, 288, "foot");
    d.neueSeite();
    d.setSkala(-1, -1, 1, 1);
    text(d, 0, 0, "middle");
    d.dokumentEnde();
  }));
  const auto words = wordsOf(path);
  ASSERT_EQ(words.size(), 3U);
  // The box runs from the font's ascent to its descent.
  const PdfWord heads = wordOf(words, "Heads");
  EXPECT_EQ(heads.page, 1);
  EXPECT_NEAR(heads.left, 20, exact);
  EXPECT_NEAR(heads.top, 10, exact);
  const PdfWord foot = wordOf(words, "foot");
  EXPECT_NEAR(foot.left, 180, exact);
  EXPECT_NEAR(foot.top, 288, exact);
  const PdfWord middle = wordOf(words, "middle");
  EXPECT_EQ(middle.page, 2);
  EXPECT_NEAR(middle.left, 105, exact);
  EXPECT_NEAR(middle.top, 146, exact);
}

TEST_F(PdfTest, WhatIsMeasuredIsWhatIsPrinted) {
  const std::string path = render(bericht([](Drucker& d) {
    for (const double size : {7.0, 8.37, 9.0, 18.0}) {
      d.setSchriftGroesse(size);
      d.setSchrift("ARIAL");
      text(d, 150 - d.textBreite("-12.345"), size * 10, "-12.345");
    }
  }));
  const auto words = wordsOf(path);
  ASSERT_EQ(words.size(), 4U);
  for (const PdfWord& word : words) EXPECT_NEAR(word.right, 150, exact);
}

TEST_F(PdfTest, WordsComeOutAsTheyWentIn) {
  const std::string path = render(bericht([](Drucker& d) {
    d.setSchrift("ARIAL");
    text(d, 20, 10, "Konfiguration Stoffluss Affinität AVATAR");
    text(d, 20, 20, "ÄÖÜß°µ±€");
  }));
  const auto words = wordsOf(path);
  for (const char* word : {"Konfiguration", "Stoffluss", "Affinität", "AVATAR", "ÄÖÜß°µ±€"})
    wordOf(words, word);
}

TEST_F(PdfTest, ArialIsLiberationSansAndFontsAreEmbedded) {
  const std::string fonts = outputOf("pdffonts", render(bericht([](Drucker& d) {
                                       d.setSchrift("ARIAL");
                                       text(d, 20, 10, "Text");
                                     })));
  EXPECT_NE(fonts.find("LiberationSans"), std::string::npos) << fonts;
  // Columns: embedded, part of the font only, with its Unicode.
  EXPECT_NE(fonts.find("yes no  yes"), std::string::npos) << fonts;
}

TEST_F(PdfTest, ChineseAndJapaneseSignsComeFromTheFamilyOfTheLanguage) {
  const Bericht report = bericht([](Drucker& d) {
    d.setSchrift("ARIAL");
    text(d, 20, 10, "測定点 1234.5");
  });
  for (const auto& [language, family] :
       {std::pair(6, "CJKsc"), std::pair(7, "CJKjp"), std::pair(0, "CJKjp")}) {
    const std::string path = render(report, language);
    EXPECT_NE(outputOf("pdffonts", path).find(std::string("NotoSans") + family), std::string::npos)
        << language << outputOf("pdffonts", path);
    EXPECT_NE(outputOf("pdffonts", path).find("LiberationSans"), std::string::npos) << "the figures";
    const auto words = wordsOf(path);
    wordOf(words, "測定点");
    wordOf(words, "1234.5");
    EXPECT_NEAR(words.at(0).left, 20, exact);
  }
}

TEST_F(PdfTest, TheDocumentHasItsTitleAndIsA4) {
  const std::string info = outputOf("pdfinfo", render(bericht([](Drucker&) {})));
  EXPECT_NE(info.find("KORVIN-Messprotokoll:  Welle 4711 – ä測"), std::string::npos) << info;
  EXPECT_NE(info.find("A4"), std::string::npos) << info;
  EXPECT_NE(info.find("Pages:           1"), std::string::npos) << info;
}

TEST_F(PdfTest, MarginsOfTheDeviceMoveNothing) {
  const std::string path = folder.path("margins.pdf");
  QPdfWriter writer(QString::fromStdString(path));
  writer.setPageSize(QPageSize(QPageSize::A5));
  writer.setPageOrientation(QPageLayout::Landscape);
  writer.setPageMargins(QMarginsF(20, 15, 10, 25), QPageLayout::Millimeter);
  writer.setResolution(300);
  TextShaper shaper(0);
  {
    DevicePages pages(writer, shaper);
    compose(bericht([](Drucker& d) {
              d.setSchrift("ARIAL");
              text(d, 3, 4, "corner");
              d.neueSeite();
              text(d, 3, 4, "corner");
            }),
            shaper, pages, {});
  }
  EXPECT_NE(outputOf("pdfinfo", path).find("420 x 595"), std::string::npos) << "upright";
  const auto words = wordsOf(path);
  ASSERT_EQ(words.size(), 2U);
  for (const PdfWord& word : words) {
    EXPECT_NEAR(word.left, 3, exact);
    EXPECT_NEAR(word.top, 4, 0.1);
  }
}

TEST_F(PdfTest, AReportThatForgetsToEndIsWholeAllTheSame) {
  EXPECT_EQ(wordsOf(render(bericht([](Drucker& d) { text(d, 20, 20, "end"); }))).size(), 1U);
}

TEST_F(PdfTest, PagesComposedBeforeGiveTheSameTexts) {
  const Bericht report = bericht([](Drucker& d) {
    text(d, 20, 20, "one");
    d.neueSeite();
    text(d, 30, 40, "two");
  });
  TextShaper shaper(0);
  ByteBlocks bytes;
  renderPdf(report.titel, composedPages(report, shaper, {}), 0, {}, bytes);
  test::writeBlocks(folder.path("a.pdf"), bytes);
  const auto words = wordsOf(folder.path("a.pdf"));
  EXPECT_EQ(wordOf(words, "two").page, 2);
  EXPECT_NEAR(wordOf(words, "two").left, 30, exact);
}

TEST_F(PdfTest, EachPageIsToldAndTheWatchCanEndThePrint) {
  const Bericht report = bericht([](Drucker& d) {
    for (int i = 0; i < 4; ++i) d.neueSeite();
  });
  std::vector<int> told;
  ByteBlocks bytes;
  renderPdf(
      report, 0, [&told](int page) { told.push_back(page); }, bytes);
  EXPECT_EQ(told, (std::vector<int>{1, 2, 3, 4, 5}));
  const auto cancelAtTwo = [](int page) {
    if (page == 2) throw DruckAbgebrochen();
  };
  EXPECT_THROW(renderPdf(report, 0, cancelAtTwo, bytes), DruckAbgebrochen);
}

TEST_F(PdfTest, AFailedSaveKeepsTheFormerFileWhateverCallFails) {
  const std::string path = folder.path("a.pdf");
  ByteBlocks bytes;
  renderPdf(bericht([](Drucker& d) { text(d, 20, 20, "new"); }), 0, {}, bytes);
  int failures = 0;
  for (int call = 1; call < 60; ++call) {
    test::writeFile(path, "old");
    test::FaultyFileSystem disk;
    disk.failAt = call;
    disk.number = ENOSPC;
    disk.stays = true;
    const SaveResult result = savePdf(disk, path, bytes);
    if (disk.calls < call) break;
    if (result.state != SaveState::unchanged) continue;
    ++failures;
    EXPECT_EQ(test::readFile(path), "old") << call;
    EXPECT_EQ(result.error.kind, FileErrorKind::noSpace);
  }
  EXPECT_GT(failures, 5);
}

TEST_F(PdfTest, ASavedFileHoldsAllBytes) {
  ByteBlocks bytes;
  renderPdf(bericht([](Drucker& d) {
              for (int i = 0; i < 6000; ++i) text(d, i % 200, i % 280, std::to_string(i * 7919).c_str());
            }),
            0, {}, bytes);
  ASSERT_GE(bytes.blocks().size(), 2U);
  PosixFileSystem disk;
  const std::string path = folder.path("long.pdf");
  EXPECT_EQ(savePdf(disk, path, bytes).state, SaveState::saved);
  EXPECT_EQ(std::filesystem::file_size(path), bytes.byteCount());
  EXPECT_GT(wordsOf(path).size(), 3000U);
}

}  // namespace
}  // namespace korvin
