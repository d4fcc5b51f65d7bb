// The user's guide speaks of the program as it is: its links lead somewhere, its two languages tell the same,
// and what it marks as wording of the interface (<b class="ui">) stands in texts/.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string readAll(const fs::path& file) {
  const std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::string guide() {
  return readAll(fs::path(KORVIN_SOURCE) / "help/KorHelpD.HLP");
}

std::vector<std::string> all(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it) {
    found.push_back((*it)[1].str());
  }
  return found;
}

std::set<std::string> asSet(const std::vector<std::string>& list) {
  return {list.begin(), list.end()};
}

std::string german() {
  return guide().substr(0, guide().find("<a name=\"en\">"));
}
std::string english() {
  return guide().substr(guide().find("<a name=\"en\">"));
}

/// Wording without its mark of the access key and the dots of a menu entry.
std::string plain(std::string text) {
  std::erase(text, '&');
  for (const std::string dots : {" ...", "..."}) {
    if (text.ends_with(dots)) {
      text.erase(text.size() - dots.size());
    }
  }
  return text;
}

/// All wording of one column of texts/*.tsv.
std::set<std::string> wording(std::size_t column) {
  std::set<std::string> found;
  for (const auto& entry : fs::directory_iterator(fs::path(KORVIN_SOURCE) / "texts")) {
    if (entry.path().extension() != ".tsv") {
      continue;
    }
    std::istringstream rows(readAll(entry.path()));
    for (std::string row; std::getline(rows, row);) {
      std::istringstream cells(row);
      std::string cell;
      for (std::size_t i = 0; i <= column && std::getline(cells, cell, '\t'); ++i) {
        if (i == column) {
          found.insert(plain(cell));
        }
      }
    }
  }
  return found;
}

void expectWording(const std::string& text, std::size_t column) {
  const auto known = wording(column);
  for (const auto& word : all(text, "<b class=\"ui\">([^<]*)</b>")) {
    EXPECT_TRUE(known.contains(word)) << word;
  }
}

TEST(Guide, EveryLinkHasItsAnchor) {
  const auto anchors = asSet(all(guide(), "<a name=\"([^\"]+)\">"));
  for (const auto& link : all(guide(), "href=\"#([^\"]+)\"")) {
    EXPECT_TRUE(anchors.contains(link)) << link;
  }
  EXPECT_TRUE(anchors.contains("de"));
  EXPECT_TRUE(anchors.contains("en"));
}

TEST(Guide, BothLanguagesHaveTheSameParts) {
  for (const char* part : {"<(h2)>", "<(h3)>", "<(tr)>", "<(li)>", "src=\"([^\"]+)\""}) {
    const auto inGerman = all(german(), part);
    EXPECT_FALSE(inGerman.empty()) << part;
    EXPECT_EQ(inGerman, all(english(), part)) << part;
  }
}

TEST(Guide, WordingIsThatOfTheInterface) {
  EXPECT_GT(all(guide(), "<b class=\"ui\">([^<]*)</b>").size(), 60U);
  expectWording(german(), 1);
  expectWording(english(), 2);
}

TEST(Guide, TheBuiltGuideStandsAlone) {
  const std::string built = readAll(fs::path(KORVIN_BIN) / "KorHelpD.HLP");
  ASSERT_FALSE(built.empty());
  EXPECT_EQ(built.find("src=\"../"), std::string::npos);
  const std::regex source("src=\"[^\"]*\"");
  EXPECT_EQ(std::regex_replace(built, source, ""), std::regex_replace(guide(), source, ""));
}

}  // namespace
