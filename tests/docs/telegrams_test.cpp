// docs/telegrams.md: the worked examples are what the program sends and accepts.

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "link/telegramm.h"

namespace {

struct Example {
  bool request;
  int modulus;
  std::string text;   ///< payload, or body without its check character
  std::string bytes;  ///< hexadecimal, as the page tells them
};

std::vector<Example> examples() {
  const std::regex line(R"re(^    (request|answer) +(\d+) +"([^"]*)" +((?:[0-9A-F]{2} ?)+)$)re");
  std::ifstream page(KORVIN_SOURCE "/docs/telegrams.md");
  std::vector<Example> found;
  for (std::string row; std::getline(page, row);) {
    std::smatch match;
    if (std::regex_match(row, match, line)) {
      found.push_back({match[1] == "request", std::stoi(match[2].str()), match[3].str(), match[4].str()});
    }
  }
  return found;
}

std::string hex(const std::string& bytes) {
  std::ostringstream out;
  out << std::hex << std::uppercase << std::setfill('0');
  for (const char c : bytes) {
    out << (out.tellp() > 0 ? " " : "") << std::setw(2) << static_cast<int>(static_cast<unsigned char>(c));
  }
  return out.str();
}

std::string answerFrame(const std::string& body) {
  return std::string(1, korvin::RahmenStart) + body + korvin::RahmenEnde;
}

TEST(TelegramsPage, HasExamplesOfBothGenerations) {
  int requests = 0;
  int answers = 0;
  int older = 0;
  for (const auto& example : examples()) {
    (example.request ? requests : answers) += 1;
    older += example.modulus == korvin::Modul95 ? 1 : 0;
  }
  EXPECT_GE(requests, 5);
  EXPECT_GE(answers, 4);
  EXPECT_GE(older, 3);
}

TEST(TelegramsPage, RequestsAreThoseOfTheProgram) {
  for (const auto& example : examples()) {
    if (example.request) {
      EXPECT_EQ(example.bytes, hex(korvin::rahmenBilden(example.text, example.modulus))) << example.text;
    }
  }
}

TEST(TelegramsPage, AnswersPassTheirCheck) {
  for (const auto& example : examples()) {
    if (!example.request) {
      const std::string body = example.text + korvin::PruefzeichenBilden(example.text, example.modulus);
      EXPECT_EQ(example.bytes, hex(answerFrame(body))) << example.text;
      EXPECT_TRUE(korvin::PruefzeichenPruefen(body, example.modulus)) << example.text;
    }
  }
}

TEST(TelegramsPage, TheMeasuredAnswerReadsAsTold) {
  korvin::KameraAntwort antwort;
  ASSERT_TRUE(korvin::antwortZerlegen("10K m 251234 247650 00042 91h", antwort));
  EXPECT_EQ(antwort.RohX, 251234);
  EXPECT_EQ(antwort.RohY, 247650);
  EXPECT_EQ(antwort.Wert3, 42);
  EXPECT_EQ(antwort.Intensitaet, 91);
}

}  // namespace
