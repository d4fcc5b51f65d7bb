#pragma once

#include <QIODevice>
#include <string>
#include <vector>

namespace korvin {

/// The bytes of a file in the making, in blocks: growing copies nothing, so they take no more memory than the
/// file will have.
class ByteBlocks : public QIODevice {
  Q_OBJECT
 public:
  ByteBlocks() { open(WriteOnly | Unbuffered); }

  bool isSequential() const override { return true; }
  const std::vector<std::string>& blocks() const { return blocks_; }
  std::size_t byteCount() const;

 protected:
  qint64 readData(char* /*to*/, qint64 /*most*/) override { return -1; }
  qint64 writeData(const char* from, qint64 count) override;

 private:
  std::vector<std::string> blocks_;
};

}  // namespace korvin
