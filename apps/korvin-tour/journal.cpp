#include "journal.h"

#include <cstdio>
#include <iomanip>
#include <sstream>
#include <stdexcept>

namespace korvin::tour {

Journal::Journal(const std::string& file) : out_(file) {
  if (!out_) throw std::runtime_error(file + " can't be written");
}

void Journal::line(const std::string& text) {
  out_ << text << std::endl;
}

void Journal::done(double seconds, const std::string& step, const std::string& read) {
  std::ostringstream text;
  text << std::setw(2) << ++number_ << "  ok  " << std::fixed << std::setprecision(1) << std::setw(5)
       << seconds << " s  " << step;
  if (!read.empty()) text << "\n                 " << read;
  line(text.str());
}

void Journal::failed(const std::string& step, const std::string& why) {
  std::ostringstream text;
  text << std::setw(2) << ++number_ << "  FAILED       " << step << "\n                 " << why;
  line(text.str());
  std::fprintf(stderr, "korvin-tour: failed: %s\nkorvin-tour: %s\n", step.c_str(), why.c_str());
}

}  // namespace korvin::tour
