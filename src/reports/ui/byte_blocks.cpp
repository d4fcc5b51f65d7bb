#include "reports/ui/byte_blocks.h"

#include <algorithm>

namespace korvin {
namespace {
constexpr std::size_t blockSize = std::size_t{1} << 16;
}

qint64 ByteBlocks::writeData(const char* from, qint64 count) {
  std::string_view rest(from, static_cast<std::size_t>(count));
  while (!rest.empty()) {
    if (blocks_.empty() || blocks_.back().size() == blockSize) blocks_.emplace_back().reserve(blockSize);
    std::string& block = blocks_.back();
    const std::size_t taken = std::min(rest.size(), blockSize - block.size());
    block.append(rest.substr(0, taken));
    rest.remove_prefix(taken);
  }
  return count;
}

std::size_t ByteBlocks::byteCount() const {
  std::size_t sum = 0;
  for (const std::string& block : blocks_) sum += block.size();
  return sum;
}

}  // namespace korvin
