#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The head's side of the line: what it understands and what it says. Written apart from the program's own
/// link on purpose, so that a mistake in one does not hide in the other.
namespace korvin::head {

inline constexpr char kFrameStart = '\x17';
inline constexpr char kFrameEnd = '\x1B';
/// Characters between start and end of a request: five of payload and the check character.
inline constexpr std::size_t kRequestBody = 6;

/// Check character of `text`: the sum of its character codes (0 to 255 each), modulo `modulus` (95 or 223),
/// plus 32.
char checkCharacter(std::string_view text, int modulus);

/// What the program asks.
struct Request {
  char id = '0';       ///< head that is meant; '0' is any head
  char level = '0';    ///< filter level '0' to '7'
  char command = 'T';  ///< T status, M measurement, J quick measurement

  bool operator==(const Request&) const = default;
};

enum class Verdict {
  request,     ///< whole and right
  wrongCheck,  ///< whole, but the check character does not fit
  malformed,   ///< another length, or not the form of a request
};

/// Something that began with a frame start; only `Verdict::request` is ever answered.
struct HeardFrame {
  Verdict verdict = Verdict::malformed;
  Request request;   ///< valid with `Verdict::request`
  std::string body;  ///< what stood between start and end
};

/// Finds requests in the bytes that arrive, however they are cut. Noise between frames is ignored, and a
/// second start begins the frame anew (the program sends its start twice).
class RequestParser {
 public:
  explicit RequestParser(int modulus) : modulus_(modulus) {}

  /// Takes the next bytes; gives the frames that ended in them, in order.
  std::vector<HeardFrame> feed(std::string_view bytes);
  /// Forgets a frame that has begun.
  void reset();

 private:
  HeardFrame judged() const;

  int modulus_;
  bool inFrame_ = false;
  std::string body_;
};

/// The frame of an answer: start, `columns`, check character over the columns, end.
std::string answerFrame(std::string_view columns, int modulus);

/// The frame that the program sends for `request`, with its preamble; for tests and tools that ask a head.
std::string requestFrame(const Request& request, int modulus);

}  // namespace korvin::head
